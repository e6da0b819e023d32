#include "tests/monkey/touches.h"

#include "tests/monkey/script_text.h"
#include "tests/monkey/texts.h"

#include <vector>

namespace veldrin::monkey {

namespace {

using Names = std::vector<std::string>;

struct NamedWeight {
  const char* window;
  const char* control;
  int weight;
};

// Controls that are used more, or less, than others of their kind. Elements of an array count one each.
// clang-format off
constexpr NamedWeight kWeights[] = {
    {"Form2", "Command2", 26},       {"Form2", "Command3", 12},      {"Form2", "Command4", 8},
    {"Form2", "Command5", 16},       {"Form2", "Command6", 24},      {"Form2", "Command7", 12},
    {"Form2", "Command8", 30},       {"Form2", "Command9", 50},      {"Form2", "Command10", 8},
    {"Form2", "Command11", 10},      {"Form2", "Grid1", 60},         {"Form2", "Grid2", 60},
    {"Form2", "Spin4", 10},          {"Form2", "Spin5", 10},         {"Form2", "Spin6", 6},
    {"Form2", "menu_quit", 3},       {"Form2", "menu_set", 3},       {"Form2", "menu_about", 2},
    {"Form2", "menu_color", 3},      {"Form2", "menu_print", 3},     {"Form2", "clip", 1},
    {"Form2", "bmp", 0},             {"Form2", "menu_files", 5},     {"Form2", "menu_reg", 2},
    {"Form2", "menu_his_clear", 1},  {"Form2", "Text2", 6},          {"Form2", "Text3", 8},
    {"Form2", "Text4", 6},           {"Form2", "Text6", 8},          {"Form2", "Picture9", 4},
    {"Form2", "Picture28", 3},       {"Form2", "Picture21", 4},      {"Form2", "menu_comb", 6},
    {"Form3", "Command1", 40},       {"Form3", "Command2", 12},      {"Form3", "Command3", 4},
    {"Form3", "File1", 40},          {"Form3", "Combo1", 25},        {"Form3", "Combo2", 8},
    {"Form3", "Drive1", 4},          {"Form3", "Dir1", 8},           {"Form4", "Command1", 20},
    {"Form7", "CANCEL", 30},         {"Form7", "SAVE", 30},          {"Form7", "Drive1", 1},
    {"Form7", "Drive2", 1},          {"Form9", "Command2", 30},      {"Form10", "Picture_Close", 40},
};
// clang-format on

bool HasHandler(const Control& control, const char* name) {
  const Event* const event = control.FindEvent(name);
  return event != nullptr && event->Claims() > 0;
}

int WeightOfKind(const Control& control) {
  switch (control.kind) {
    case ControlKind::Button:
      return 10;
    case ControlKind::TextBox:
    case ControlKind::ComboBox:
    case ControlKind::FileBox:
      return 6;
    case ControlKind::SpinButton:
    case ControlKind::ScrollBar:
    case ControlKind::OptionButton:
    case ControlKind::DriveBox:
    case ControlKind::FolderBox:
    case ControlKind::Grid:
      return 4;
    case ControlKind::Menu:
      return HasHandler(control, "Click") ? 4 : 0;
    case ControlKind::Label:
      return HasHandler(control, "Click") || HasHandler(control, "DblClick") ? 3 : 0;
    case ControlKind::Picture:
      return HasHandler(control, "MouseUp") || HasHandler(control, "DblClick") || HasHandler(control, "Click")
                 ? 2
                 : 0;
    default:
      return 0;
  }
}

std::string Click(Random& random, const std::string& name, int right) {
  return Line({"click", name, random.Chance(right) ? "right" : "left"});
}

std::string Key(Random& random, const std::string& name, const Names& keys) {
  return Line({"key", name, random.Pick(keys)});
}

const Names kKeys{"Enter", "Enter", "Left", "Up", "Right", "Down", "Backspace", "Tab", "F1", "65"};

std::string TouchButton(Random& random, const Control& control, const std::string& name) {
  if (random.Chance(4)) return Key(random, name, kKeys);
  return Click(random, name, control.name == "Command2" && control.window.name == "Form2" ? 30 : 3);
}

std::string TouchText(Random& random, const Program& program, const Control& control,
                      const std::string& name) {
  const std::string text = AsWord(TextFor(random, program, control));
  const int way = random.Below(100);
  if (way < 40) return Line({"enter", name, text});
  if (way < 50) return Line({"type", name, text});
  if (way < 88) return Key(random, name, kKeys);
  if (way < 90) return Line({"dblclick", name});
  return Line({"focus", name});
}

std::string TouchSpin(Random& random, const std::string& name) {
  const std::string way = random.Chance(50) ? "up" : "down";
  if (random.Chance(70)) return Line({"spin", name, way});
  return Line({"spin", name, way, std::to_string(random.Chance(95) ? random.Between(2, 12) : 250)});
}

std::string TouchBar(Random& random, const std::string& name) {
  return Line({"scroll", name, std::to_string(random.Between(45, 260) * 100)});
}

std::string TouchGrid(Random& random, const Grid& grid, const std::string& name) {
  if (grid.Rows < 1 || grid.Cols < 1) return Line({"focus", name});
  return Line(
      {"pick", name, std::to_string(random.Below(grid.Rows)), std::to_string(random.Below(grid.Cols))});
}

/// An entry of the list as users see it, or one that is not there.
std::string EntryOf(Random& random, const Control& control) {
  const std::vector<std::string>* const entries = EntriesOf(control);
  return entries == nullptr || entries->empty() ? "nothing" : random.Pick(*entries);
}

std::string TouchCombo(Random& random, const Program& program, const Control& control,
                       const std::string& name) {
  const bool editable = static_cast<const ComboBox&>(control).editable;
  if (editable && random.Chance(65)) return TouchText(random, program, control, name);
  return Line({"select", name, AsWord(EntryOf(random, control))});
}

std::string TouchFolders(Random& random, const Control& control, const std::string& name) {
  const Names places{"C:\\VELDRIN\\DAT", "C:\\VELDRIN\\DAT", "C:\\VELDRIN\\LIST", "C:\\", "C:\\TEMP", "D:\\"};
  if (random.Chance(40)) return Line({"open", name, AsWord(random.Pick(places))});
  if (random.Chance(40)) return Line({"highlight", name, AsWord(EntryOf(random, control))});
  return Key(random, name, {"Enter", "Backspace", "Left", "65"});
}

std::string TouchFiles(Random& random, const Control& control, const std::string& name) {
  const int way = random.Below(100);
  if (way < 55) return Line({"select", name, AsWord(EntryOf(random, control))});
  if (way < 80) return Line({"dblclick", name, AsWord(EntryOf(random, control))});
  if (way < 90) return Key(random, name, {"Right", "Enter", "Down"});
  return Line({"click", name});
}

}  // namespace

int WeightOf(const Control& control) {
  const int ofKind = WeightOfKind(control);
  if (ofKind == 0) return 0;
  for (const NamedWeight& named : kWeights) {
    if (control.window.name == named.window && control.name == named.control) return named.weight;
  }
  return ofKind;
}

std::string Touch(Random& random, const Program& program, const Control& control) {
  const std::string name = control.FullName();
  switch (control.kind) {
    case ControlKind::Button:
      return TouchButton(random, control, name);
    case ControlKind::TextBox:
      return TouchText(random, program, control, name);
    case ControlKind::SpinButton:
      return TouchSpin(random, name);
    case ControlKind::ScrollBar:
      return TouchBar(random, name);
    case ControlKind::Grid:
      return TouchGrid(random, static_cast<const Grid&>(control), name);
    case ControlKind::ComboBox:
      return TouchCombo(random, program, control, name);
    case ControlKind::DriveBox:
      return Line({"select", name, AsWord(EntryOf(random, control))});
    case ControlKind::FolderBox:
      return TouchFolders(random, control, name);
    case ControlKind::FileBox:
      return TouchFiles(random, control, name);
    default:
      return random.Chance(30) && control.kind != ControlKind::Menu ? Line({"dblclick", name})
                                                                    : Click(random, name, 25);
  }
}

std::string TouchWindow(Random& random, const Window& window) {
  const std::string& name = window.name;
  const Names states{"normal", "minimised", "maximised"};
  const Names reasons{"user", "user", "session"};
  switch (random.Below(6)) {
    case 0:
      return Line({"move", name, std::to_string(random.Between(-20, 200) * 30),
                   std::to_string(random.Between(-20, 200) * 30)});
    case 1:
      return Line({"state", name, random.Pick(states)});
    case 2:
      return Line({random.Chance(50) ? "activate" : "deactivate", name});
    case 3:
      return Line({"close", name, random.Pick(reasons)});
    default:
      return Line({"resize", name, std::to_string(random.Between(60, 200) * 100),
                   std::to_string(random.Between(50, 150) * 100)});
  }
}

}  // namespace veldrin::monkey
