// The program ends by a fault only where that is stated, tidies up where it ends at its own word, and stores
// the history that the menu shows.
#include "tests/monkey/oracle/oracle.h"
#include "tests/monkey/stated_faults.h"

#include <algorithm>

namespace veldrin::monkey {

namespace {

class EndRule : public Rule {
 public:
  const char* Name() const override { return "end"; }

  std::string Judge(const Look& look) override {
    const bool justEnded = look.now.ended && !look.before.ended;
    if (!justEnded || look.deed.Is("kill")) return "";
    return look.now.endFault != 0 ? JudgeFault(look) : JudgeOwnWord(look);
  }

 private:
  static std::string JudgeFault(const Look& look) {
    if (StatedFaultOf(look) != nullptr) return "";
    return "the program ended by fault " + std::to_string(look.now.endFault);
  }

  static bool SavedAndEnded(const Look& look) {
    return look.before.role == ChooserRole::Save && look.before.chooserUp &&
           look.before.pending == pending::kEnding;
  }

  static bool SearchedTheImpossible(const Look& look) {
    const std::vector<ShownBox>& boxes = look.world.machine.boxes.shown;
    return look.deed.Is("advance") && look.now.mode == mode::kReferenceInForce && !boxes.empty() &&
           boxes.back().icon == "critical";
  }

  static bool QuitFromChooser(const Look& look) { return look.deed.On("Form3", "Command3"); }

  static bool Closed(const Look& look) {
    return look.deed.Is("close") || look.deed.On("Form2", "menu_quit") ||
           (look.deed.On("Form2", "Command9") && look.before.question == 15);
  }

  static std::string JudgeOwnWord(const Look& look) {
    // Both end at once, and leave the working file behind.
    if (SavedAndEnded(look) || SearchedTheImpossible(look)) return "";
    if (!QuitFromChooser(look) && !Closed(look)) return "the program ended of itself";
    const std::string workFile = look.program.workspace.WorkFile;
    if (look.world.machine.files.FileExists(workFile))
      return "the working file " + workFile + " stays behind";
    return Closed(look) ? JudgeStored(look) : "";
  }

  /// The last instance stores what the menu shows.
  static std::string JudgeStored(const Look& look) {
    const Workspace& workspace = look.program.workspace;
    const bool last = look.world.machine.files.Matches("C:\\TEMP\\veld???.tmp").empty();
    if (!last || look.before.machineKey.empty()) return "";
    const std::string slot = workspace.ExtSlot == 0 ? "Sub" : std::to_string(workspace.ExtSlot);
    const auto stored = [&](int value) {
      return look.world.machine.registry
          .Read(RegistryRoot::CurrentUser, "Software\\Tarn Ridge\\Veldrin\\Ext\\" + slot,
                std::to_string(value))
          .value_or("");
    };
    const std::vector<std::string>& menu = look.before.history;
    if (stored(0) != std::to_string(menu.size())) {
      return "the menu had " + std::to_string(menu.size()) + " entries, stored are \"" + stored(0) + "\"";
    }
    for (std::size_t i = 0; i < menu.size(); ++i) {
      if (stored(static_cast<int>(i) + 1) != menu[i]) return menu[i] + " was not stored";
    }
    return "";
  }
};

}  // namespace

std::unique_ptr<Rule> EndsAreStated() {
  return std::make_unique<EndRule>();
}

}  // namespace veldrin::monkey
