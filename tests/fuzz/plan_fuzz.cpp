// A plan file of the sample machine.
#include "runtime/fault.h"
#include "tests/fuzz/fuzz_world.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace veldrin;
  FuzzWorld world;
  world.simulated.files.AddFile("C:\\VELDRIN\\DAT\\FUZZ.NX4", InputText(data, size));
  world.Start("C:\\VELDRIN\\DAT\\FUZZ.NX4");
  world.RequireStated({});
  world.LookAtThePlan();
  // The refresh divides by the plan's speeds and revolutions.
  world.RequireStated({kFaultDivisionByZero, kFaultOverflow});
  return 0;
}
