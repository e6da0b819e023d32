#include "desktop/keys.h"

#include "view/event.h"

#include <array>
#include <utility>

namespace veldrin {

namespace {

constexpr std::array<std::pair<int, int>, 22> kKeys = {
    {{Qt::Key_Return, kKeyEnter}, {Qt::Key_Enter, kKeyEnter}, {Qt::Key_Backspace, kKeyBackspace},
     {Qt::Key_Tab, kKeyTab},      {Qt::Key_Backtab, kKeyTab}, {Qt::Key_Shift, 16},
     {Qt::Key_Control, 17},       {Qt::Key_Alt, 18},          {Qt::Key_Pause, 19},
     {Qt::Key_CapsLock, 20},      {Qt::Key_Escape, 27},       {Qt::Key_Space, 32},
     {Qt::Key_PageUp, 33},        {Qt::Key_PageDown, 34},     {Qt::Key_End, 35},
     {Qt::Key_Home, 36},          {Qt::Key_Left, kKeyLeft},   {Qt::Key_Up, kKeyUp},
     {Qt::Key_Right, kKeyRight},  {Qt::Key_Down, kKeyDown},   {Qt::Key_Insert, 45},
     {Qt::Key_Delete, 46}}};

constexpr int kFunctionKeys = 12;

}  // namespace

int KeyNumber(const QKeyEvent& event) {
  const int key = event.key();
  for (const auto& [qt, number] : kKeys) {
    if (qt == key) return number;
  }
  if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z)) return key;
  if (key >= Qt::Key_F1 && key < Qt::Key_F1 + kFunctionKeys) return kKeyF1 + (key - Qt::Key_F1);
  return 0;
}

int QtKey(int number) {
  for (const auto& [qt, other] : kKeys) {
    if (other == number) return qt;
  }
  if ((number >= Qt::Key_0 && number <= Qt::Key_9) || (number >= Qt::Key_A && number <= Qt::Key_Z)) {
    return number;
  }
  if (number >= kKeyF1 && number < kKeyF1 + kFunctionKeys) return Qt::Key_F1 + (number - kKeyF1);
  return 0;
}

}  // namespace veldrin
