// A combination file beside the sample machine's list, shown for the plan and again after steps.
#include "runtime/fault.h"
#include "tests/fuzz/fuzz_world.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace veldrin;
  FuzzWorld world;
  world.simulated.files.AddFile("C:\\VELDRIN\\LIST\\NX4.CMB", InputText(data, size));
  world.Start(kPlanPath);
  world.Click(world.program->form2.menu_comb);
  world.LookAtThePlan();
  // A part without a name cannot be sized.
  world.RequireStated({kFaultDivisionByZero});
  return 0;
}
