// A reference file, chosen for the plan on the screen, and the search that it starts.
#include "tests/fuzz/fuzz_speeds.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  veldrin::FuzzSpeedsOfFile(veldrin::InputText(data, size), veldrin::LoadReferenceFile);
  return 0;
}
