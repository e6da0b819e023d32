#include "desktop/input/keys.h"

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

constexpr int kOtherCharacter = 255;  // a key that writes and has no number of its own

/// Signs, by the key that writes them on the keyboard that the numbers were made for. Of two on one key the
/// one without Shift comes first. None may pass by its own code, which is that of an arrow or Delete.
constexpr std::array<std::pair<int, int>, 32> kSigns = {
    {{Qt::Key_Semicolon, 186},    {Qt::Key_Colon, 186},       {Qt::Key_Equal, 187},
     {Qt::Key_Plus, 187},         {Qt::Key_Comma, 188},       {Qt::Key_Less, 188},
     {Qt::Key_Minus, 189},        {Qt::Key_Underscore, 189},  {Qt::Key_Period, 190},
     {Qt::Key_Greater, 190},      {Qt::Key_Slash, 191},       {Qt::Key_Question, 191},
     {Qt::Key_QuoteLeft, 192},    {Qt::Key_AsciiTilde, 192},  {Qt::Key_BracketLeft, 219},
     {Qt::Key_BraceLeft, 219},    {Qt::Key_Backslash, 220},   {Qt::Key_Bar, 220},
     {Qt::Key_BracketRight, 221}, {Qt::Key_BraceRight, 221},  {Qt::Key_Apostrophe, 222},
     {Qt::Key_QuoteDbl, 222},     {Qt::Key_ParenRight, '0'},  {Qt::Key_Exclam, '1'},
     {Qt::Key_At, '2'},           {Qt::Key_NumberSign, '3'},  {Qt::Key_Dollar, '4'},
     {Qt::Key_Percent, '5'},      {Qt::Key_AsciiCircum, '6'}, {Qt::Key_Ampersand, '7'},
     {Qt::Key_Asterisk, '8'},     {Qt::Key_ParenLeft, '9'}}};

constexpr std::array<std::pair<int, int>, 5> kKeypadSigns = {{{Qt::Key_Asterisk, 106},
                                                              {Qt::Key_Plus, 107},
                                                              {Qt::Key_Minus, 109},
                                                              {Qt::Key_Period, 110},
                                                              {Qt::Key_Slash, 111}}};

/// The key beside the left Shift that some keyboards have; on others its sign lies on the comma.
constexpr std::pair<int, int> kExtraKey = {Qt::Key_Less, 226};

template <class Table>
int NumberIn(const Table& table, int key) {
  for (const auto& [qt, number] : table) {
    if (qt == key) return number;
  }
  return 0;
}

template <class Table>
int KeyIn(const Table& table, int number) {
  for (const auto& [qt, other] : table) {
    if (other == number) return qt;
  }
  return 0;
}

int SignNumber(const QKeyEvent& event) {
  if (event.modifiers().testFlag(Qt::KeypadModifier)) {
    if (const int number = NumberIn(kKeypadSigns, event.key())) return number;
  }
  const bool shifted = event.modifiers().testFlag(Qt::ShiftModifier);
  if (event.key() == kExtraKey.first && !shifted) return kExtraKey.second;
  return NumberIn(kSigns, event.key());
}

/// Whether a text that begins so is more than a control code.
bool IsShown(QChar first) {
  return first.isPrint() || first.isHighSurrogate();
}

/// Whether a key writes something: Qt's codes are characters up to the first key without one.
bool Writes(const QKeyEvent& event) {
  const bool isCharacter = event.key() > Qt::Key_Space && event.key() < Qt::Key_Escape;
  return isCharacter || (!event.text().isEmpty() && IsShown(event.text().front()));
}

}  // namespace

int KeyNumber(const QKeyEvent& event) {
  const int key = event.key();
  if (const int number = NumberIn(kKeys, key)) return number;
  if ((key >= Qt::Key_0 && key <= Qt::Key_9) || (key >= Qt::Key_A && key <= Qt::Key_Z)) return key;
  if (key >= Qt::Key_F1 && key < Qt::Key_F1 + kFunctionKeys) return kKeyF1 + (key - Qt::Key_F1);
  if (const int number = SignNumber(event)) return number;
  return Writes(event) ? kOtherCharacter : 0;
}

int QtKey(int number) {
  if (const int key = KeyIn(kKeys, number)) return key;
  if ((number >= Qt::Key_0 && number <= Qt::Key_9) || (number >= Qt::Key_A && number <= Qt::Key_Z)) {
    return number;
  }
  if (number >= kKeyF1 && number < kKeyF1 + kFunctionKeys) return Qt::Key_F1 + (number - kKeyF1);
  if (number == kExtraKey.second) return kExtraKey.first;
  return KeyIn(kSigns, number);
}

bool IsUnmodified(const QKeyEvent& event) {
  return (event.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
}

bool IsRightClick(const QKeyEvent& event) {
  return (event.key() == Qt::Key_Menu && IsUnmodified(event)) ||
         (event.key() == Qt::Key_F10 && event.modifiers() == Qt::ShiftModifier);
}

bool IsByKeyboard(const QFocusEvent& event) {
  const Qt::FocusReason reason = event.reason();
  return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason || reason == Qt::OtherFocusReason;
}

}  // namespace veldrin
