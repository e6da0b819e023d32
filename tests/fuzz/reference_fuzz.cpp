// A reference file, chosen for the plan on the screen, and the search that it starts.
#include "dialogs/reference_file.h"
#include "runtime/fault.h"
#include "tests/fuzz/fuzz_world.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace veldrin;
  FuzzWorld world;
  world.simulated.files.AddFile("C:\\VELDRIN\\DAT\\FUZZ.NX4", InputText(data, size));
  world.Start(kPlanPath);
  Program& program = *world.program;
  world.Do([&] {
    program.workspace.TempDir = "C:\\VELDRIN\\DAT";
    FileBox& files = program.form3.File1;
    files.Pattern = "*.NX4";
    files.Path = "C:\\VELDRIN\\DAT";
    const auto chosen = std::find(files.entries.begin(), files.entries.end(), "FUZZ.NX4");
    Require(chosen != files.entries.end(), "the file is not offered");
    files.ListIndex = static_cast<std::int16_t>(chosen - files.entries.begin());
    LoadReferenceFile(program);
  });
  world.Wait();
  // Speeds and revolutions that are 0 or too large are nobody's to handle behind the reading.
  world.RequireStated({kFaultDivisionByZero, kFaultOverflow, kFaultSubscript});
  return 0;
}
