// A machine list, opened by the command line, and its first plan.
#include "runtime/fault.h"
#include "tests/fuzz/fuzz_world.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace veldrin;
  FuzzWorld world;
  world.simulated.files.AddFile("C:\\VELDRIN\\LIST\\FUZZ.RAT", InputText(data, size));
  world.Start("C:\\VELDRIN\\LIST\\FUZZ.RAT");
  world.RequireStated({});
  world.LookAtThePlan();
  // The refresh divides by speeds and revolutions, which a list makes 0 or too large.
  world.RequireStated({kFaultDivisionByZero, kFaultOverflow, kFaultSubscript});
  return 0;
}
