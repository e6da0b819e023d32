#include "dialogs/other_captions.h"

namespace veldrin {

namespace {

constexpr char kEnglishFont[] = "Arial";
constexpr char kJapaneseFont[] = "ＭＳ ゴシック";

Slot<std::string>& TextSlot(const AnySlot& slot) {
  return *std::get<Slot<std::string>*>(slot);
}

}  // namespace

bool ReadsJapanese(const Workspace& workspace) {
  return workspace.Language == kJapanese && workspace.IsJapanese == 1;
}

void TakeEnglishCaptions(Window& window) {
  for (const Control* control : window.controls) {
    if (const AnySlot* font = control->FindSlot("FontName")) TextSlot(*font) = kEnglishFont;
  }
  window.Caption = window.look.english;
  for (const Control* control : window.controls) {
    if (*control->look.english == '\0') continue;
    TextSlot(*control->FindSlot("Caption")) = control->look.english;
  }
}

void TakeJapaneseCaptions(const Workspace& workspace, Window& window) {
  if (!ReadsJapanese(workspace)) return;
  window.Caption = window.look.japanese;
  for (const Control* control : window.controls) {
    if (*control->look.japanese == '\0') continue;
    TextSlot(*control->FindSlot("FontName")) = kJapaneseFont;
    TextSlot(*control->FindSlot("Caption")) = control->look.japanese;
  }
}

}  // namespace veldrin
