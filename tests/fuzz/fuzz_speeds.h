// Reference and quick-ratio files: chosen for the plan on the screen, they start a search for their speeds.
#pragma once

#include "dialogs/reference_file.h"
#include "runtime/fault.h"
#include "tests/fuzz/fuzz_world.h"

namespace veldrin {

/// Has the file of this text read by `load`, and waits for the search.
inline void FuzzSpeedsOfFile(const std::string& text, void (*load)(Program&)) {
  FuzzWorld world;
  world.simulated.files.AddFile("C:\\VELDRIN\\DAT\\FUZZ.NX4", text);
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
    load(program);
  });
  world.Wait();
  // Speeds and revolutions that are 0 or too large are nobody's to handle behind the reading.
  world.RequireStated({kFaultDivisionByZero, kFaultOverflow, kFaultSubscript});
}

}  // namespace veldrin
