// A kept plan: as it stands, and with the right sum below it, as an older or a newer program may have left
// it. The program offers it, opens it and goes on.
#include "runtime/fault.h"
#include "tests/fuzz/fuzz_world.h"

namespace {

using namespace veldrin;

void OfferAndOpen(const std::string& text) {
  MemoryKeepFolder folder;
  folder.files["a.kept"] = text;
  folder.files["a-1.nx4"] = kFirstRowPlan;
  {
    NettedProgram p(folder, "");
    p.offers->Begin();
    if (p.Told() > 0 && !p.Last().actions.empty()) p.Act(0);
    p.Step(1);
    p.net->Secure();
    // What is in such a plan may be 0 or too large for the refresh.
    const int fault = p.program->endFault;
    Require(fault == 0 || fault == kFaultDivisionByZero || fault == kFaultOverflow, "ended by another fault");
  }
  const ReadKept read = ParseKept(text);
  if (read.flaw != KeptFlaw::None) Require(folder.files.at("a.kept") == text, "a flawed plan does not stay");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input = InputText(data, size);
  OfferAndOpen(input);
  const std::string right = WithKeptSum(input.ends_with('\n') ? input : input + "\n");
  const ReadKept read = ParseKept(right);
  if (read.flaw == KeptFlaw::None) {
    Require(ParseKept(KeptText(read.kept)).kept == read.kept, "a kept plan comes back as another");
  }
  OfferAndOpen(right);
  return 0;
}
