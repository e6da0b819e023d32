#include "dialogs/japanese_captions.h"

namespace veldrin {

namespace {

constexpr char kJapaneseFont[] = "ＭＳ ゴシック";

Slot<std::string>& TextSlot(const Control& control, const char* name) {
  return *std::get<Slot<std::string>*>(*control.FindSlot(name));
}

}  // namespace

void TakeJapaneseCaptions(const Workspace& workspace, Window& window) {
  if (workspace.Language != kJapanese || workspace.IsJapanese != 1) return;
  window.Caption = window.look.japanese;
  for (const Control* control : window.controls) {
    if (*control->look.japanese == '\0') continue;
    TextSlot(*control, "FontName") = kJapaneseFont;
    TextSlot(*control, "Caption") = control->look.japanese;
  }
}

}  // namespace veldrin
