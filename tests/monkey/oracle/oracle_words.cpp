// The words that steer the flow come to rest: none of them stands longer than what it stands for.
#include "runtime/text.h"
#include "tests/monkey/oracle/oracle.h"

#include <algorithm>

namespace veldrin::monkey {

namespace {

bool IsOneOf(const std::string& word, std::initializer_list<const char*> words) {
  return std::any_of(words.begin(), words.end(), [&](const char* each) { return word == each; });
}

/// The start is over when the splash has given way to a window. At the end of a session it goes between its
/// ticks, and what was begun then never comes to an end.
bool IsAtWork(const Look& look) {
  const bool handedOver = look.program.form2.Visible || look.now.chooserUp;
  return !look.now.ended && handedOver && !look.program.form1.loaded;
}

class WordRule : public Rule {
 public:
  const char* Name() const override { return "words"; }

  std::string Judge(const Look& look) override {
    if (!IsAtWork(look)) return "";
    for (const auto judge : {JudgeMode, JudgeMachine, JudgePending, JudgeCaller}) {
      const std::string wrong = judge(look);
      if (!wrong.empty()) return wrong;
    }
    return "";
  }

 private:
  static std::string JudgeMode(const Look& look) {
    const std::string& word = look.now.mode;
    const bool known =
        IsOneOf(word, {"", mode::kBasing, mode::kChange, mode::kSpeed, mode::kRpm, mode::kList, mode::kData,
                       mode::kQuickRatio, mode::kReference, mode::kReferenceInForce});
    if (!known) return "ModeWord is \"" + word + "\"";
    const bool waits = IsOneOf(word, {mode::kList, mode::kData, mode::kQuickRatio, mode::kReference});
    if (waits && look.now.question == 0 && !look.now.chooserUp) {
      return "ModeWord stays \"" + word + "\" without a question and a chooser";
    }
    // A default list that was refused leaves its key and no machine.
    const bool machine = !look.program.workspace.LoadedMachine.empty();
    if (word.empty() && machine && !look.now.chooserUp) return "ModeWord is empty with a machine";
    return "";
  }

  /// The name is that of the loaded machine, but for the chooser, which needs that of the plan it looks at.
  static std::string JudgeMachine(const Look& look) {
    const Workspace& workspace = look.program.workspace;
    if (look.now.chooserUp) return "";
    if (LowerCase(workspace.MachineName) == workspace.MachineKey) return "";
    return "MachineName is \"" + workspace.MachineName + "\" with the machine \"" + workspace.MachineKey +
           "\"";
  }

  static std::string JudgePending(const Look& look) {
    const std::string& word = look.now.pending;
    if (!IsOneOf(word,
                 {pending::kNone, pending::kEnding, pending::kChangeLoad, pending::kChangeLoadHistory})) {
      return "PendingAction is \"" + word + "\"";
    }
    // A save of the user's own, with no question to answer, leads nowhere else.
    const bool ownSave = look.now.chooserUp && look.now.role == ChooserRole::Save && !look.before.chooserUp &&
                         look.before.question == 0;
    if (ownSave && word != pending::kNone) return "a plain save begins with PendingAction \"" + word + "\"";
    return "";
  }

  /// A word left behind would hold back the events of the user's own hands.
  static std::string JudgeCaller(const Look& look) {
    const std::string& word = look.now.caller;
    const bool works = IsOneOf(look.now.mode, {mode::kChange, mode::kSpeed, mode::kRpm});
    const bool holdsBack =
        IsOneOf(word, {caller::kModule1, caller::kInit, caller::kQuick, caller::kCopyRequests,
                       caller::kScroll, caller::kTakeBaseline, caller::kCombination, caller::kForm4Ok,
                       caller::kRead2, caller::kOriginal, caller::kForm1Timer, caller::kForm2Load});
    if (works && holdsBack && !look.now.chooserUp) return "CallerWord stays \"" + word + "\"";
    if (look.now.chooserUp && word == caller::kCloseOpen) return "the chooser's double click is held back";
    return "";
  }
};

// ---- Title ----

class TitleRule : public Rule {
 public:
  const char* Name() const override { return "title"; }

  std::string Judge(const Look& look) override {
    const std::string& mark = look.program.workspace.ChangedMark;
    const bool tells = IsAtWork(look) && !mark.empty() && !look.now.chooserUp && !look.now.machineKey.empty();
    if (!tells) return "";
    const bool marked = Contains(look.now.title, mark);
    const bool changed = look.now.dataChanged == dirty::kYes;
    if (marked == changed) {
      excused_ = false;
      return "";
    }
    excused_ = excused_ || IsExcused(look);
    if (excused_) return "";
    return "the title is \"" + look.now.title + "\" with DataChanged \"" + look.now.dataChanged + "\"";
  }

 private:
  /// Title and flag part company by rule:
  ///  - a plan that was never written has no mark, since the working file cannot undo its changes;
  ///  - an answer to the question of a load drops the flag, and a cancelled chooser brings it back, while the
  ///    title waits for what is loaded; so does a history entry opened from a forbidden pair;
  ///  - a quick-ratio or reference file, and a save, write the whole title.
  static bool IsExcused(const Look& look) {
    const bool answered = (look.before.question == 16 || look.before.question == 17) &&
                          (look.deed.On("Form2", "Command8") || look.deed.On("Form2", "Command9"));
    return look.now.stale || answered || look.before.chooserUp || look.deed.On("Form2", "menu_files") ||
           look.now.mode == mode::kReferenceInForce;
  }

  bool excused_ = false;
};

}  // namespace

std::unique_ptr<Rule> WordsComeToRest() {
  return std::make_unique<WordRule>();
}

std::unique_ptr<Rule> TitleTellsOfChanges() {
  return std::make_unique<TitleRule>();
}

}  // namespace veldrin::monkey
