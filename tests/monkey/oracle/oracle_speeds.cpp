// Shown speeds are those of the parts, revolutions and tyre that are shown with them.
#include "tests/monkey/figures.h"
#include "tests/monkey/oracle/oracle.h"

#include <cmath>

namespace veldrin::monkey {

namespace {

/// Figures beyond any machine are not held against texts.
constexpr float kFastest = 1e6F;

bool PlanIsShown(const Program& program) {
  const Form2& form2 = program.form2;
  return form2.loaded && form2.Picture12.Visible && !program.workspace.MachineKey.empty();
}

std::string Wrong(const std::string& what, const std::string& found, const std::string& expected) {
  return what + " reads \"" + found + "\", not \"" + expected + "\"";
}

class SpeedRule : public Rule {
 public:
  const char* Name() const override { return "speeds"; }

  std::string Judge(const Look& look) override {
    const Program& program = look.program;
    if (look.now.ended || look.now.chooserUp || !PlanIsShown(program)) return "";
    Speeds speeds;
    std::string wrong = FindSpeeds(program, speeds);
    if (wrong.empty()) wrong = JudgeConditions(look);
    for (int gear = 1; gear <= kGears && wrong.empty(); ++gear) wrong = JudgeGear(program, speeds, gear);
    return wrong;
  }

 private:
  /// The speeds of the parts by their texts. Where several parts bear one text, any of them will do.
  static std::string FindSpeeds(const Program& program, Speeds& speeds) {
    const Workspace& workspace = program.workspace;
    const std::vector<double> primaries = RatiosNamed(workspace, true, program.form2.Label6.Caption);
    const std::vector<double> finals = RatiosNamed(workspace, false, program.form2.Label8.Caption);
    if (primaries.empty()) return "no primary row is " + program.form2.Label6.Caption.get();
    if (finals.empty()) return "no final row is " + program.form2.Label8.Caption.get();
    for (const double primary : primaries) {
      for (const double final : finals) {
        if (FindGears(program, primary, final, speeds)) return "";
      }
    }
    return WrongSpeed(program, primaries[0], finals[0]);
  }

  static bool FindGears(const Program& program, double primary, double final, Speeds& speeds) {
    for (int gear = 1; gear <= kGears; ++gear) {
      if (!FindGear(program, primary, final, gear, speeds[static_cast<std::size_t>(gear)])) return false;
    }
    speeds[0] = speeds[1];
    return true;
  }

  static bool FindGear(const Program& program, double primary, double final, int gear, float& speed) {
    const Workspace& workspace = program.workspace;
    for (const int row : RowsShown(program, gear)) {
      speed = SpeedOf(workspace, primary, final, gear, row);
      if (speed > kFastest || program.form2.Label9[gear].Caption == SpeedText(workspace, speed)) return true;
    }
    return false;
  }

  /// A gear that begins in its last row may still have the speed of row 1.
  static std::vector<int> RowsShown(const Program& program, int gear) {
    const Workspace& workspace = program.workspace;
    std::vector<int> rows = PairsNamed(workspace, gear, program.form2.Label12[gear].Caption);
    if (!rows.empty() && BeginsInItsLastRow(workspace, gear)) rows.push_back(1);
    return rows;
  }

  static std::string WrongSpeed(const Program& program, double primary, double final) {
    const Workspace& workspace = program.workspace;
    for (int gear = 1; gear <= kGears; ++gear) {
      float speed = 0;
      if (FindGear(program, primary, final, gear, speed)) continue;
      const std::string name = "Label9(" + std::to_string(gear) + ")";
      const std::string& pair = program.form2.Label12[gear].Caption;
      if (RowsShown(program, gear).empty()) return "no pair of gear " + std::to_string(gear) + " is " + pair;
      return Wrong(name + " with " + pair, program.form2.Label9[gear].Caption, SpeedText(workspace, speed));
    }
    return "the speeds of no parts";
  }

  static std::string JudgeGear(const Program& program, const Speeds& speeds, int gear) {
    const Workspace& workspace = program.workspace;
    const Form2& form2 = program.form2;
    const float speed = speeds[static_cast<std::size_t>(gear)];
    const float below = speeds[static_cast<std::size_t>(gear - 1)];
    if (speed > kFastest || below > kFastest) return "";
    const std::string place = "(" + std::to_string(gear) + ")";
    if (workspace.SpeedNow[gear] != speed) {
      return "SpeedNow" + place + " is " + std::to_string(workspace.SpeedNow[gear]) + ", not " +
             std::to_string(speed);
    }
    const auto drop = static_cast<float>(static_cast<double>(below) / speed * workspace.ShiftNe);
    if (form2.Label11[gear].Caption != DropText(drop)) {
      return Wrong("Label11" + place, form2.Label11[gear].Caption, DropText(drop));
    }
    if (gear >= 2) {
      const std::string& step = form2.Label40[gear - 1].Caption;
      const std::string expected = StepText(workspace, speed - below);
      if (step != expected) return Wrong("Label40(" + std::to_string(gear - 1) + ")", step, expected);
    }
    return JudgeAgainstBaseline(program, speed, gear);
  }

  static std::string JudgeAgainstBaseline(const Program& program, float speed, int gear) {
    const Workspace& workspace = program.workspace;
    const Form2& form2 = program.form2;
    const std::string place = "(" + std::to_string(gear) + ")";
    const float baseline = workspace.SpeedBaseline[gear];
    const double ratio = static_cast<double>(speed) / baseline * workspace.ReferenceNe / workspace.ShiftNe;
    const std::string deviation = DeviationText((1 - ratio) * workspace.CheckNe);
    if (form2.Label10[gear].Caption != deviation) {
      return Wrong("Label10" + place, form2.Label10[gear].Caption, deviation);
    }
    const std::string& difference = form2.Label_Dif[gear].Caption;
    const std::string expected = DifferenceText(workspace, speed - baseline);
    // Where the plan has just become the baseline itself, the text has no blanks before it.
    const bool justTaken = speed == baseline && difference == "+-0";
    if (difference != expected && !justTaken) return Wrong("Label_Dif" + place, difference, expected);
    return "";
  }

  // ---- The boxes of revolutions and tyre ----

  static std::string JudgeConditions(const Look& look) {
    const Workspace& workspace = look.program.workspace;
    const Form2& form2 = look.program.form2;
    std::string wrong = JudgeBox(look, form2.Text4, workspace.ShiftNe, true);
    if (wrong.empty()) wrong = JudgeBox(look, form2.Text2, workspace.CheckNe, true);
    if (wrong.empty()) wrong = JudgeBox(look, form2.Text3, workspace.TyreLength, false);
    return wrong;
  }

  /// A box that is being written into, or was emptied by a refusal, shows no value. What is written is
  /// rounded, half to even, where the value is whole.
  static std::string JudgeBox(const Look& look, const TextBox& box, float value, bool whole) {
    if (look.program.form2.focus == &box || box.Text.get().empty()) return "";
    double number = 0;
    const bool isNumber = ReadNumber(look.program.workspace, box.Text, number);
    const bool same = whole ? std::nearbyint(number) == value : static_cast<float>(number) == value;
    if (isNumber && same) return "";
    return Wrong(box.name, box.Text, std::to_string(value));
  }
};

}  // namespace

std::unique_ptr<Rule> SpeedsAreThoseOfTheParts() {
  return std::make_unique<SpeedRule>();
}

}  // namespace veldrin::monkey
