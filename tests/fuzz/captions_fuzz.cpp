// A caption file as the language of a start.
#include "runtime/fault.h"
#include "tests/fuzz/fuzz_world.h"
#include "workspace/language.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace veldrin;
  FuzzWorld world;
  world.simulated.files.AddFile("C:\\VELDRIN\\FUZZ", InputText(data, size));
  world.Start(kPlanPath);
  world.Do([&] {
    world.program->workspace.Language = "FUZZ";
    LoadLanguage(*world.program);
  });
  world.LookAtThePlan();
  world.RequireStated({kFaultPastEnd});
  return 0;
}
