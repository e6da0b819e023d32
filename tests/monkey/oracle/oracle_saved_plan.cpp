// A saved plan opens again as the same plan, in a program of its own on a machine with the same list.
#include "runtime/text.h"
#include "tests/monkey/figures.h"
#include "tests/monkey/oracle/oracle.h"

#include <map>
#include <sstream>

namespace veldrin::monkey {

namespace {

/// A plan as its user sees it.
struct ShownPlan {
  std::string primary;
  std::string final;
  std::vector<std::string> pairs;
  float tyre = 0;
  int revolutions = 0;
  std::string remark;
};

bool AnyGearBeginsInItsLastRow(const Workspace& workspace) {
  for (int gear = 1; gear <= kGears; ++gear) {
    if (BeginsInItsLastRow(workspace, gear)) return true;
  }
  return false;
}

/// A quick-ratio or reference file can be saved before any plan of the machine was on show; its pairs are the
/// machine's first ones.
std::string PairOn(const Program& program, int gear, bool wasOnShow) {
  const Workspace& workspace = program.workspace;
  const std::string& shown = program.form2.Label12[gear].Caption;
  const int row = workspace.PlanIndex[gear];
  return !wasOnShow && row >= 1 && row <= kGearRowLimit ? workspace.GearTable(gear, row) : shown;
}

ShownPlan PlanOn(const Program& program, bool wasOnShow) {
  const Form2& form2 = program.form2;
  ShownPlan plan{form2.Label6.Caption,         form2.Label8.Caption,      {},
                 program.workspace.TyreLength, program.workspace.ShiftNe, form2.Text6.Text};
  for (int gear = 1; gear <= kGears; ++gear) plan.pairs.push_back(PairOn(program, gear, wasOnShow));
  return plan;
}

/// The first lines of a list, by which its machine is known.
std::string MachineOf(const std::string& list) {
  std::istringstream lines(list);
  std::string line;
  std::getline(lines, line);
  std::getline(lines, line);
  return Trim(line.substr(0, line.find('\r')));
}

class SavedPlanRule : public Rule {
 public:
  const char* Name() const override { return "saved plan"; }

  std::string Judge(const Look& look) override {
    std::string wrong;
    if (WasSaved(look)) wrong = JudgeSaved(look);
    if (look.now.Running() && look.program.form2.loaded) Remember(look);
    return wrong;
  }

 private:
  /// The plan and its list, as long as they can be had.
  void Remember(const Look& look) {
    shown_ = PlanOn(look.program, look.memory.planWasOnShow);
    const std::string& machine = look.program.workspace.MachineName;
    if (look.now.machineKey.empty() || lists_.count(machine) != 0) return;
    for (const char* folder : {"C:\\VELDRIN\\LIST", "C:\\VELDRIN\\DAT", "C:", "D:"}) {
      for (const std::string& name : look.world.machine.files.Matches(std::string(folder) + "\\*.RAT")) {
        const std::string list =
            look.world.machine.files.Text(std::string(folder) + "\\" + name).value_or("");
        if (MachineOf(list) == machine) lists_[machine] = list;
      }
    }
  }

  std::string JudgeSaved(const Look& look) {
    const std::string& folder = look.before.chooserFolder;
    const std::string path = folder + (folder.ends_with('\\') ? "" : "\\") + look.program.workspace.SaveName;
    const std::optional<std::string> text = look.world.machine.files.Text(path);
    if (!text) return path + " was saved and is not there";
    const auto list = lists_.find(look.program.workspace.MachineName);
    if (list == lists_.end()) return "";
    return Reopen(look, path, *text, list->second);
  }

  std::string Reopen(const Look& look, const std::string& path, const std::string& text,
                     const std::string& list) {
    std::ostringstream printed;
    ScriptHand hand;
    ScriptWorld second(hand, printed);
    const std::string name = look.program.workspace.MachineName;
    second.machine.profile = look.world.machine.profile;
    second.machine.files.AddFile("C:\\VELDRIN\\LIST\\" + name + ".RAT", list);
    second.machine.files.AddFile(path, text);
    const auto set = [&](const char* setting, const std::string& value) {
      second.machine.registry.Write(RegistryRoot::CurrentUser, "Software\\Tarn Ridge\\Veldrin", setting,
                                    value);
    };
    set("App Path", "C:\\VELDRIN");
    set("List_File", name + ".RAT");
    second.Start(path);
    second.Advance(2000);
    return Compare(second.Asked());
  }

  std::string Compare(const Program& second) const {
    if (second.ended) return "opening the saved plan ends the program";
    const ShownPlan plan = PlanOn(second, true);
    if (second.workspace.ModeWord != mode::kChange) return "the saved plan does not open";
    // Speeds that no refresh has brought to the pair that was stepped to are doubted.
    if (second.form2.Picture20.Visible) {
      return AnyGearBeginsInItsLastRow(second.workspace) ? "" : "the saved plan opens with a question";
    }
    if (plan.primary != shown_.primary) return Differs("primary", plan.primary, shown_.primary);
    if (plan.final != shown_.final) return Differs("final", plan.final, shown_.final);
    for (std::size_t i = 0; i < plan.pairs.size(); ++i) {
      // A gear whose only pair is in its last row stands at row 1 until it is stepped, and is saved so.
      if (plan.pairs[i] == kNoPair) continue;
      if (plan.pairs[i] != shown_.pairs[i])
        return Differs("gear " + std::to_string(i + 1), plan.pairs[i], shown_.pairs[i]);
    }
    if (plan.tyre != shown_.tyre)
      return Differs("tyre", std::to_string(plan.tyre), std::to_string(shown_.tyre));
    if (plan.revolutions != shown_.revolutions) {
      return Differs("shift", std::to_string(plan.revolutions), std::to_string(shown_.revolutions));
    }
    if (plan.remark != shown_.remark) return Differs("remark", plan.remark, shown_.remark);
    return "";
  }

  static std::string Differs(const std::string& what, const std::string& found, const std::string& saved) {
    return "the saved plan opens with " + what + " \"" + found + "\", not \"" + saved + "\"";
  }

  ShownPlan shown_;
  /// Lists of the machines that were loaded, by their names.
  std::map<std::string, std::string> lists_;
};

}  // namespace

bool WasSaved(const Look& look) {
  const bool inRole = look.before.Running() && look.before.chooserUp && look.before.role == ChooserRole::Save;
  const bool left = !look.now.chooserUp || look.now.role != ChooserRole::Save || look.now.ended;
  const bool byOk = look.deed.On("Form3", "Command1") || look.deed.On("Form3", "File1") ||
                    (look.deed.On("Form3", "Combo1") && look.deed.Is("key"));
  return inRole && left && byOk && !look.blocked;
}

std::unique_ptr<Rule> SavedPlansOpenAgain() {
  return std::make_unique<SavedPlanRule>();
}

}  // namespace veldrin::monkey
