// The text of the settings file: whatever it is, what was read of it is written and read again as the same.
#include "machine/registry/real_settings_tree.h"
#include "tests/fuzz/fuzz_world.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace veldrin;
  const std::string input = InputText(data, size);
  SettingsTree tree(input);
  const std::string text = tree.Text();
  const SettingsTree again(text);
  Require(!again.WasDamaged(), "the program has written a damaged file");
  Require(again.Text() == text, "what was written is read as something else");
  // Any bytes can be a value's name and text.
  tree.Write("CurrentUser\\A", input, input);
  const SettingsTree written(tree.Text());
  Require(!written.WasDamaged(), "a value has damaged the file");
  Require(written.Read("CurrentUser\\A", input) == input, "a value comes back as another");
  return 0;
}
