// No control stays dead, and none answers where it must not: what is enabled belongs to the mode alone as
// soon as no question stands, no search runs and the chooser is left.
#include "tests/monkey/oracle/oracle.h"

#include <map>
#include <string_view>

namespace veldrin::monkey {

namespace {

/// Whether a control is enabled in a mode.
enum class Answers : char {
  Yes = '+',
  No = '-',
  Either = '.',
  Output = 'O',   // unless 3rd and 4th gear are a forbidden pair
  Primary = 'P',  // where there are two primary rows to step between
};

struct Row {
  const char* control;
  /// "BASING", "CHANGE", "SPEED", "RPM".
  const char* answers;
};

// clang-format off
constexpr Row kRows[] = {
    {"Command2",   "++++"}, {"Command3",   "++++"}, {"Command4",   ".+++"}, {"Command5",   "-O--"},
    {"Command6",   "++++"}, {"Command9",   "++++"}, {"Command10",  "++++"}, {"Command11",  ".+--"},
    {"Label6",     "-+--"}, {"Label8",     "-+--"}, {"Spin4",      "-P--"}, {"Spin5",      "-+--"},
    {"HScroll1",   "-+--"}, {"HScroll2",   "-+--"}, {"Command7",   "-..."}, {"f_rest",     "-..."},
    {"Text2",      "++++"}, {"Text3",      "++++"}, {"Text4",      "++++"}, {"Text6",      "++++"},
    {"Label12",    "++++"}, {"Spin6",      "++++"}, {"Text1",      "++++"}, {"Command1",   "++++"},
    {"Option1",    "++++"}, {"Picture21",  "++++"}, {"Picture28",  "++++"}, {"SpinButton1","++++"},
    {"SpinButton2","++++"}, {"menu_file",  "++++"}, {"menu_save",  "-O--"}, {"menu_load",  "++++"},
    {"menu_list_load","++++"}, {"menu_data_load","++++"}, {"menu_data_ref","++++"}, {"menu_qr","++++"},
    {"menu_del",   "++++"}, {"menu_folder","++++"}, {"menu_print", "-O--"}, {"menu_comb",  "-O--"},
    {"menu_quit",  "++++"}, {"menu_files", "++++"}, {"menu_edit",  "-O--"}, {"menu_f",     "++++"},
    {"f_mode",     "++++"}, {"f_calc",     "--++"}, {"f_comp",     ".+++"}, {"menu_color", "++++"},
    {"menu_opt",   "++++"}, {"menu_about", "++++"}, {"menu_set",   "++++"},
};
// clang-format on

constexpr const char* kModes[] = {mode::kBasing, mode::kChange, mode::kSpeed, mode::kRpm};

int ColumnOf(const std::string& word) {
  for (int column = 0; column < 4; ++column) {
    if (word == kModes[column]) return column;
  }
  return -1;
}

class ControlRule : public Rule {
 public:
  const char* Name() const override { return "controls"; }

  std::string Judge(const Look& look) override {
    const Program& program = look.program;
    const bool atRest = !look.now.ended && program.form2.loaded && look.now.question == 0 &&
                        !look.now.chooserUp && !program.form2.Timer1.Enabled && !program.form4 &&
                        !program.workspace.MachineKey.empty() && !look.memory.entryNotOpened;
    const int column = ColumnOf(look.now.mode);
    if (!atRest || column < 0) return "";
    std::string wrong = JudgeAnswers(look, column);
    if (wrong.empty()) wrong = JudgePointer(look, column);
    if (wrong.empty() && column > 0) wrong = JudgePanels(program);
    if (wrong.empty()) wrong = JudgeRestore(look);
    return wrong.empty() ? "" : wrong + " in " + look.now.mode;
  }

 private:
  static bool IsRed(const Program& program) { return program.form2.Label12[3].BackColor == kRed; }

  static std::string JudgeAnswers(const Look& look, int column) {
    static const std::map<std::string_view, const char*> kAnswers = [] {
      std::map<std::string_view, const char*> answers;
      for (const Row& row : kRows) answers[row.control] = row.answers;
      return answers;
    }();
    for (const Control* control : look.program.form2.controls) {
      const auto row = kAnswers.find(control->name);
      // The heads of columns and of the history are no controls to work with.
      const bool isHead =
          control->index == 0 && (control->name == "Label12" || control->name == "menu_files");
      if (row == kAnswers.end() || isHead) continue;
      const std::string wrong = JudgeControl(look, *control, static_cast<Answers>(row->second[column]));
      if (!wrong.empty()) return wrong;
    }
    return "";
  }

  static bool IsOutput(const std::string& name) {
    return name == "Command5" || name == "menu_save" || name == "menu_print" || name == "menu_comb" ||
           name == "menu_edit";
  }

  static std::string JudgeControl(const Look& look, const Control& control, Answers answers) {
    const bool excused = IsOutput(control.name) && IsOutputExcused(look);
    if (excused || answers == Answers::Either) return "";
    bool expected = answers == Answers::Yes;
    if (answers == Answers::Output) expected = !IsRed(look.program);
    if (answers == Answers::Primary) expected = look.program.workspace.PrimaryCount >= 2;
    if (control.Enabled == expected) return "";
    return control.IndexedName() + " is " + (expected ? "dead" : "alive");
  }

  static bool IsOutputExcused(const Look& look) {
    return look.memory.redThroughRequests || (look.memory.dialogClosed && IsRequestMode(look.now.mode));
  }

  static std::string JudgePointer(const Look& look, int column) {
    if (IsOutputExcused(look)) return "";
    const bool canPrint = column == 1 && !IsRed(look.program);
    const int pointer = look.program.form2.Picture28.MousePointer;
    if (pointer == (canPrint ? kPointerDefault : kPointerNoDrop)) return "";
    return "Picture28 has the pointer " + std::to_string(pointer);
  }

  /// Of the three panels on one place, the mode's is the one in front.
  static std::string JudgePanels(const Program& program) {
    const Form2& form2 = program.form2;
    const bool plan = program.workspace.ModeWord == mode::kChange;
    const Picture& wanted = plan ? form2.Picture12 : form2.Picture4;
    const Picture& other = plan ? form2.Picture4 : form2.Picture12;
    if (other.Visible && other.ZOrder() < wanted.ZOrder()) return other.name + " lies over " + wanted.name;
    if (plan && form2.Picture30.Visible) return "Picture30 is left over";
    std::vector<const Control*> shown{&wanted, &form2.Picture2, &form2.Picture3, &form2.Text6,
                                      &form2.Picture31};
    if (plan)
      shown.insert(shown.end(),
                   {&form2.Command11, &form2.HScroll1, &form2.HScroll2, &form2.Picture29, &form2.Label13});
    for (const Control* control : shown) {
      if (!control->Visible) return control->name + " is hidden";
    }
    return "";
  }

  /// Changes that the working file can undo can be undone.
  static std::string JudgeRestore(const Look& look) {
    const Workspace& workspace = look.program.workspace;
    const bool changed = workspace.ModeWord == mode::kChange && workspace.DataChanged == dirty::kYes;
    if (!changed || workspace.WorkFileStale || look.memory.takenFromReference) return "";
    if (!look.program.form2.Command7.Enabled) return "Command7 is dead though the plan is changed";
    if (!look.program.form2.f_rest.Enabled) return "f_rest is dead though the plan is changed";
    return "";
  }
};

// ---- Questions ----

/// Texts of the two buttons, by the question's message.
struct Buttons {
  int question;
  int left;
  int right;
};

constexpr Buttons kButtons[] = {{13, 18, 22}, {14, 19, 23}, {15, 20, 24}, {16, 21, 25}, {17, 21, 25}};

class QuestionRule : public Rule {
 public:
  const char* Name() const override { return "question"; }

  std::string Judge(const Look& look) override {
    const Program& program = look.program;
    if (look.now.ended || look.now.question == 0) return "";
    if (look.now.question < 0) return "the panel asks \"" + program.form2.Label17.Caption.get() + "\"";
    if (!program.form2.Command9.Enabled) return "Command9 is dead under its question";
    // All gears are automatic already: searching so again makes no sense.
    if (!program.form2.Command8.Enabled && look.now.question != 14) {
      return "Command8 is dead under message " + std::to_string(look.now.question);
    }
    for (const Buttons& buttons : kButtons) {
      if (buttons.question != look.now.question) continue;
      if (!Reads(program, program.form2.Command8, buttons.left)) return Wrong(program.form2.Command8, look);
      if (!Reads(program, program.form2.Command9, buttons.right)) return Wrong(program.form2.Command9, look);
    }
    return "";
  }

 private:
  static bool Reads(const Program& program, const Button& button, int message) {
    return button.Caption == program.workspace.MessageTable[message];
  }

  static std::string Wrong(const Button& button, const Look& look) {
    return button.name + " reads \"" + button.Caption.get() + "\" under message " +
           std::to_string(look.now.question);
  }
};

}  // namespace

std::unique_ptr<Rule> ControlsAnswer() {
  return std::make_unique<ControlRule>();
}

std::unique_ptr<Rule> QuestionsCanBeAnswered() {
  return std::make_unique<QuestionRule>();
}

}  // namespace veldrin::monkey
