// A user: the input is the chance by which the random users act, under their oracle.
#include "tests/fuzz/fuzz_world.h"
#include "tests/monkey/random_user.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace veldrin::monkey;
  const Outcome outcome = Walk(RandomUser(Random(std::vector<std::uint8_t>(data, data + size))));
  if (!outcome.finding) return 0;
  for (const std::string& line : outcome.lines) std::fprintf(stderr, "%s\n", line.c_str());
  veldrin::Finding(outcome.finding->rule + ": " + outcome.finding->text);
}
