// The older settings file at a first start. What it becomes in the store lets every later start go on.
#include "runtime/fault.h"
#include "tests/fuzz/fuzz_world.h"
#include "workspace/stored_values.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace veldrin;
  FuzzWorld world;
  world.simulated.files.AddFile("C:\\VELDRIN\\VELDRIN.INI", InputText(data, size));
  world.Start(kPlanPath);
  world.RequireStated({});
  Require(!FindBadSetting(*world.program), "a number was stored that ends the next start");
  return 0;
}
