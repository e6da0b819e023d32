#include "runtime/text.h"
#include "script/commands/script_commands.h"
#include "script/script_error.h"
#include "script/script_slots.h"
#include "script/script_values.h"

#include <array>

namespace veldrin {

namespace {

/// A control, or a window, that an action is done to.
struct Target {
  Found found;
  std::string name;

  /// Throws ScriptError when it is of no kind that `can` has the action done to it.
  void Require(bool can, const char* action) const {
    if (!can) throw ScriptError{name + " is nothing to " + action};
  }
  ControlKind Kind() const { return found.model->kind; }
};

Target TargetOf(const CommandLine& line) {
  Program& program = line.world.Running();
  const ScriptName name = ParseName(line[1]);
  if (name.size() > 2) throw ScriptError{line[1] + " is neither a control nor a window"};
  if (name.size() == 2) return {line.world.catalogue.FindControl(program, name[0].name, name[1]), line[1]};
  return {line.world.catalogue.FindWindow(program, NameText(name)), line[1]};
}

Target WindowOf(const CommandLine& line) {
  Target target = TargetOf(line);
  if (target.Kind() != ControlKind::Window) throw ScriptError{line[1] + " is no window"};
  return target;
}

/// Does the gesture to the control; one that is not there is out of reach.
template <class Gesture>
void Act(const CommandLine& line, const Target& target, Gesture&& gesture) {
  line.world.Act([&](Program& program) {
    return target.found.control != nullptr && gesture(line.world.hand, program, *target.found.control);
  });
}

/// The same for what is picked out of a control: notes when it is not in it.
template <class Gesture>
void ActWithin(const CommandLine& line, const Target& target, const std::string& what, Gesture&& gesture) {
  const bool reachable = target.found.control != nullptr && user::Reachable(*target.found.control);
  Act(line, target, gesture);
  if (reachable && line.world.blocked) line.world.notes.push_back(target.name + " has no " + what);
}

// ---- mouse ----

int Button(const CommandLine& line) {
  if (line.Count() < 3 || line[2] == "left") return kLeftButton;
  if (line[2] == "right") return kRightButton;
  throw ScriptError{"\"" + line[2] + "\" is no button of the mouse: left or right"};
}

bool CanClick(ControlKind kind) {
  return kind != ControlKind::Timer && kind != ControlKind::Line && kind != ControlKind::Dialog;
}

void Click(const CommandLine& line) {
  const Target target = TargetOf(line);
  target.Require(CanClick(target.Kind()), "click");
  const int button = Button(line);
  Act(line, target, [&](ScriptHand& hand, Program& program, Control& control) {
    return hand.Click(program, control, button);
  });
}

void DoubleClick(const CommandLine& line) {
  const Target target = TargetOf(line);
  target.Require(CanClick(target.Kind()), "click");
  if (line.Count() == 2) {
    Act(line, target, [&](ScriptHand& hand, Program& program, Control& control) {
      return hand.DoubleClick(program, control);
    });
    return;
  }
  if (target.Kind() != ControlKind::FileBox) throw ScriptError{line[1] + " is no file box"};
  ActWithin(line, target, line[2], [&](ScriptHand& hand, Program& program, Control& control) {
    return hand.DoubleClickEntry(program, static_cast<FileBox&>(control), line[2]);
  });
}

void Select(const CommandLine& line) {
  const Target target = TargetOf(line);
  const ControlKind kind = target.Kind();
  target.Require(
      kind == ControlKind::ComboBox || kind == ControlKind::FileBox || kind == ControlKind::DriveBox,
      "select in");
  ActWithin(line, target, line[2], [&](ScriptHand& hand, Program& program, Control& control) {
    return hand.SelectEntry(program, control, line[2]);
  });
}

void Open(const CommandLine& line) {
  const Target target = TargetOf(line);
  target.Require(target.Kind() == ControlKind::FolderBox, "open a folder in");
  ActWithin(line, target, line[2], [&](ScriptHand& hand, Program& program, Control& control) {
    return hand.OpenFolder(program, static_cast<FolderBox&>(control), line[2]);
  });
}

void Highlight(const CommandLine& line) {
  const Target target = TargetOf(line);
  target.Require(target.Kind() == ControlKind::FolderBox, "highlight a folder in");
  ActWithin(line, target, line[2], [&](ScriptHand& hand, Program& program, Control& control) {
    return hand.HighlightFolder(program, static_cast<FolderBox&>(control), line[2]);
  });
}

void Pick(const CommandLine& line) {
  const Target target = TargetOf(line);
  target.Require(target.Kind() == ControlKind::Grid, "pick a cell of");
  const int row = IntNumber(line[2]);
  const int column = IntNumber(line[3]);
  ActWithin(line, target, "cell " + line[2] + " " + line[3],
            [&](ScriptHand& hand, Program& program, Control& control) {
              return hand.PickCell(program, static_cast<Grid&>(control), row, column);
            });
}

void Spin(const CommandLine& line) {
  const Target target = TargetOf(line);
  target.Require(target.Kind() == ControlKind::SpinButton, "spin");
  const bool up = line[2] == "up";
  if (!up && line[2] != "down") throw ScriptError{"\"" + line[2] + "\" is no direction: down or up"};
  const std::int64_t times = line.Count() > 3 ? WholeNumber(line[3], 1, 100000) : 1;
  Act(line, target, [&](ScriptHand& hand, Program& program, Control& control) {
    auto& spin = static_cast<SpinButton&>(control);
    const bool done = hand.Spin(program, spin, up);
    for (std::int64_t i = 1; done && i < times && !program.ended; ++i) {
      if (!hand.Spin(program, spin, up)) break;
    }
    return done;
  });
}

void Scroll(const CommandLine& line) {
  const Target target = TargetOf(line);
  target.Require(target.Kind() == ControlKind::ScrollBar, "scroll");
  const int value = IntNumber(line[2]);
  Act(line, target, [&](ScriptHand& hand, Program& program, Control& control) {
    return hand.ScrollTo(program, static_cast<ScrollBar&>(control), value);
  });
}

// ---- keys ----

int KeyNumber(const std::string& word) {
  struct NamedKey {
    const char* name;
    int number;
  };
  static constexpr std::array<NamedKey, 8> kKeys = {{{"Enter", kKeyEnter},
                                                     {"Left", kKeyLeft},
                                                     {"Up", kKeyUp},
                                                     {"Right", kKeyRight},
                                                     {"Down", kKeyDown},
                                                     {"Backspace", kKeyBackspace},
                                                     {"Tab", kKeyTab},
                                                     {"F1", kKeyF1}}};
  for (const NamedKey& key : kKeys) {
    if (EqualsIgnoringCase(word, key.name)) return key.number;
  }
  if (word == "\t") return kKeyTab;  // the constant TAB
  const bool isNumber = !word.empty() && word.find_first_not_of("0123456789") == std::string::npos;
  if (!isNumber) throw ScriptError{"\"" + word + "\" is no key"};
  return static_cast<int>(WholeNumber(word, 0, 255));
}

void KeyPress(const CommandLine& line) {
  const Target target = TargetOf(line);
  target.Require(TakesFocus(*target.found.model), "press a key on");
  const int key = KeyNumber(line[2]);
  Act(line, target, [&](ScriptHand& hand, Program& program, Control& control) {
    return hand.PressKey(program, control, key);
  });
}

void Enter(const CommandLine& line) {
  const Target target = TargetOf(line);
  target.Require(user::TakesText(*target.found.model), "enter a text in");
  Act(line, target, [&](ScriptHand& hand, Program& program, Control& control) {
    return hand.EnterText(program, control, line[2]);
  });
}

void Type(const CommandLine& line) {
  const Target target = TargetOf(line);
  target.Require(user::TakesText(*target.found.model), "type in");
  Act(line, target, [&](ScriptHand& hand, Program& program, Control& control) {
    return hand.TypeText(program, control, line[2]);
  });
}

void Focus(const CommandLine& line) {
  const Target target = TargetOf(line);
  target.Require(TakesFocus(*target.found.model), "move the focus to");
  Act(line, target,
      [&](ScriptHand& hand, Program& program, Control& control) { return hand.Focus(program, control); });
}

// ---- windows ----

void Resize(const CommandLine& line) {
  const Target target = WindowOf(line);
  const float width = SingleNumber(line[2]);
  const float height = SingleNumber(line[3]);
  Act(line, target, [&](ScriptHand& hand, Program& program, Control& control) {
    return hand.Resize(program, control.window, width, height);
  });
}

void Move(const CommandLine& line) {
  const Target target = WindowOf(line);
  const float left = SingleNumber(line[2]);
  const float top = SingleNumber(line[3]);
  Act(line, target, [&](ScriptHand& hand, Program& program, Control& control) {
    return hand.Move(program, control.window, left, top);
  });
}

void Drop(const CommandLine& line) {
  Act(line, WindowOf(line), [&](ScriptHand& hand, Program& program, Control& control) {
    return hand.Drop(program, control.window, line[2]);
  });
}

void State(const CommandLine& line) {
  const Target target = WindowOf(line);
  const int state = StateNumber(line[2]);
  Act(line, target, [&](ScriptHand& hand, Program& program, Control& control) {
    return hand.SetState(program, control.window, state);
  });
}

void Activate(const CommandLine& line) {
  Act(line, WindowOf(line), [&](ScriptHand& hand, Program& program, Control& control) {
    return hand.Activate(program, control.window);
  });
}

void Deactivate(const CommandLine& line) {
  Act(line, WindowOf(line), [&](ScriptHand& hand, Program& program, Control& control) {
    return hand.Deactivate(program, control.window);
  });
}

void Close(const CommandLine& line) {
  const Target target = WindowOf(line);
  const bool session = line.Count() > 2 && line[2] == "session";
  if (line.Count() > 2 && !session && line[2] != "user") {
    throw ScriptError{"\"" + line[2] + "\" is no reason to close: user or session"};
  }
  Act(line, target, [&](ScriptHand& hand, Program& program, Control& control) {
    return hand.Close(program, control.window, session ? CloseReason::SessionEnd : CloseReason::User);
  });
}

}  // namespace

const std::vector<Command>& ActionCommands() {
  static const std::vector<Command> kCommands = {
      {"click", 1, 2, "CONTROL [left|right]", Click},
      {"dblclick", 1, 2, "CONTROL [ITEM]", DoubleClick},
      {"select", 2, 2, "CONTROL ITEM", Select},
      {"open", 2, 2, "CONTROL PATH", Open},
      {"highlight", 2, 2, "CONTROL ITEM", Highlight},
      {"pick", 3, 3, "CONTROL ROW COL", Pick},
      {"spin", 2, 3, "CONTROL down|up [N]", Spin},
      {"scroll", 2, 2, "CONTROL VALUE", Scroll},
      {"key", 2, 2, "CONTROL KEY", KeyPress},
      {"enter", 2, 2, "CONTROL TEXT", Enter},
      {"type", 2, 2, "CONTROL TEXT", Type},
      {"focus", 1, 1, "CONTROL", Focus},
      {"resize", 3, 3, "WINDOW W H", Resize},
      {"move", 3, 3, "WINDOW LEFT TOP", Move},
      {"drop", 2, 2, "WINDOW PATH", Drop},
      {"state", 2, 2, "WINDOW normal|minimised|maximised", State},
      {"activate", 1, 1, "WINDOW", Activate},
      {"deactivate", 1, 1, "WINDOW", Deactivate},
      {"close", 1, 2, "WINDOW [user|session]", Close},
  };
  return kCommands;
}

}  // namespace veldrin
