// The stored history belongs to its machine, and nothing is stored without one.
#include "runtime/text.h"
#include "tests/monkey/oracle/oracle.h"

namespace veldrin::monkey {

namespace {

constexpr char kHistories[] = "Software\\Tarn Ridge\\Veldrin\\Ext\\";
constexpr int kMostSlots = 6;

class HistoryRule : public Rule {
 public:
  const char* Name() const override { return "history"; }

  std::string Judge(const Look& look) override {
    // Taking an extension away moves the names of the slots behind it, but not the histories below them.
    if (look.deed.On("Form2", "menu_reg") && !look.blocked) slotsMoved_ = true;
    std::string wrong = JudgeKey(look, "Sub");
    for (int slot = 1; slot <= kMostSlots && wrong.empty() && !slotsMoved_; ++slot) {
      wrong = JudgeKey(look, std::to_string(slot));
    }
    return wrong.empty() ? JudgeMenu(look) : wrong;
  }

 private:
  static std::string Stored(const Look& look, const std::string& key, const std::string& value) {
    return look.world.machine.registry.Read(RegistryRoot::CurrentUser, kHistories + key, value).value_or("");
  }

  /// Whether the plan's first line names the machine. What is gone, or never was a plan of anyone, is no
  /// witness.
  static bool BelongsTo(const Look& look, const std::string& path, const std::string& machine) {
    const std::string text = look.world.machine.files.Text(path).value_or("");
    if (!text.starts_with("FROM:")) return true;
    const std::string name = text.substr(5, text.find('.') - 5);
    return EqualsIgnoringCase(name, machine);
  }

  static std::string JudgeKey(const Look& look, const std::string& key) {
    const std::string count = Stored(look, key, "0");
    if (count.empty()) return "";
    const std::string machine = Stored(look, key, "");
    if (machine.empty()) return "the history of " + key + " was stored without a machine";
    if (count.size() > 3) return "the history of " + key + " has " + count + " entries";
    for (int i = 1; i <= std::stoi(count); ++i) {
      const std::string path = Stored(look, key, std::to_string(i));
      if (!BelongsTo(look, path, machine)) return path + " was stored in the history of " + machine;
    }
    return "";
  }

  static std::string JudgeMenu(const Look& look) {
    if (look.now.ended || look.now.chooserUp || look.now.machineKey.empty()) return "";
    for (const std::string& path : look.now.history) {
      if (!BelongsTo(look, path, look.now.machineKey))
        return path + " is in the menu of " + look.now.machineKey;
    }
    return "";
  }

  bool slotsMoved_ = false;
};

}  // namespace

std::unique_ptr<Rule> HistoryBelongsToItsMachine() {
  return std::make_unique<HistoryRule>();
}

}  // namespace veldrin::monkey
