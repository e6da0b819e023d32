#include "tests/monkey/random_user.h"

#include "tests/monkey/covered.h"
#include "tests/monkey/habits.h"
#include "tests/monkey/machines.h"
#include "tests/monkey/random.h"
#include "tests/monkey/touches.h"
#include "view/user_input.h"

#include <deque>
#include <memory>
#include <utility>

namespace veldrin::monkey {

namespace {

constexpr int kFewestActions = 20;
constexpr int kMostActions = 60;
/// How often a program that has ended is started again.
constexpr int kMostStarts = 3;

class User {
 public:
  explicit User(Random random) : random_(std::move(random)) {
    actionsLeft_ = random_.Between(kFewestActions, kMostActions);
    for (std::string& line : MakeMachine(random_)) plan_.push_back(std::move(line));
    settingUp_ = true;
  }

  std::optional<std::string> Next(ScriptWorld& world, const Moment& now) {
    if (settingUp_) {
      const std::string line = TakePlanned();
      settingUp_ = !plan_.empty();
      return line;
    }
    if (actionsLeft_-- <= 0) return std::nullopt;
    if (now.ended) return StartAgain();
    std::string line = Act(world.Running());
    while (IsAboutCovered(world.Running(), Deed(line))) line = Act(world.Running());
    return line;
  }

 private:
  std::string TakePlanned() {
    std::string line = std::move(plan_.front());
    plan_.pop_front();
    return line;
  }

  std::optional<std::string> StartAgain() {
    const bool planned = !plan_.empty();
    // Lines that were meant for the program that ended are no use any more.
    while (!plan_.empty() && !plan_.front().starts_with("start")) plan_.pop_front();
    if (++starts_ > kMostStarts || (!planned && random_.Chance(60))) return std::nullopt;
    if (!plan_.empty()) return TakePlanned();
    plan_.push_back("advance 1500");
    return StartLine(random_);
  }

  std::string Act(Program& program) {
    if (!plan_.empty() && random_.Chance(4)) plan_.clear();
    if (plan_.empty() && IsWaiting(program) && random_.Chance(85)) return Wait(program);
    if (!plan_.empty() && random_.Chance(93)) {
      if (plan_.front().starts_with("start")) plan_.pop_front();  // the program would not go
      if (!plan_.empty()) return TakePlanned();
    }
    if (plan_.empty() && program.desk.modal.empty() && random_.Chance(40)) {
      for (std::string& line : MakeHabit(random_, program)) plan_.push_back(std::move(line));
      return TakePlanned();
    }
    return ActByChance(program);
  }

  static bool IsWaiting(const Program& program) {
    return program.form1.Timer1.Enabled || program.form2.Timer1.Enabled || program.form2.Timer2.Enabled;
  }

  std::string Wait(const Program& program) {
    if (program.form1.Timer1.Enabled) return random_.Chance(70) ? "advance 1500" : "advance 100";
    return random_.Chance(80) ? "advance 100" : "advance 10";
  }

  std::string ActByChance(Program& program) {
    if (random_.Chance(2)) return Outside(program);
    const std::vector<Window*> windows = WindowsInFront(program);
    if (windows.empty() || random_.Chance(2)) return "advance 300";
    Window& window = *windows[static_cast<std::size_t>(
        random_.Chance(80) ? 0 : random_.Below(static_cast<int>(windows.size())))];
    if (random_.Chance(4)) return TouchWindow(random_, window);
    std::vector<int> weights;
    for (const Control* control : window.controls) {
      const int weight = WeightOf(*control);
      weights.push_back(weight > 0 && user::Reachable(*control) && !IsCovered(*control) ? weight : 0);
    }
    const int place = random_.Weighted(weights);
    if (place < 0) return TouchWindow(random_, window);
    return Touch(random_, program, *window.controls[static_cast<std::size_t>(place)]);
  }

  static std::vector<Window*> WindowsInFront(const Program& program) {
    if (!program.desk.modal.empty()) return {program.desk.modal.back()};
    return program.desk.shown;
  }

  /// What happens to the machine beside the program.
  std::string Outside(const Program& program) {
    const std::vector<std::string> events{
        "system instances 1",
        "system instances 0",
        "system printers 0",
        "delete \"C:\\VELDRIN\\DAT\\RAIN.nx4\"",
        "readonly \"C:\\VELDRIN\\DAT\"",
        "delete \"C:\\VELDRIN\\LIST\\" + program.workspace.MachineName + ".RAT\"",
        "advance 1000"};
    return random_.Pick(events);
  }

  Random random_;
  std::deque<std::string> plan_;
  bool settingUp_ = false;
  int actionsLeft_ = 0;
  int starts_ = 0;
};

}  // namespace

LineSource RandomUser(std::uint64_t seed, std::uint64_t sequence) {
  return RandomUser(Random(seed, sequence));
}

LineSource RandomUser(Random random) {
  auto user = std::make_shared<User>(std::move(random));
  return [user](ScriptWorld& world, const Moment& now) { return user->Next(world, now); };
}

}  // namespace veldrin::monkey
