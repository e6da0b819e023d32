// Colours of the gear pairs: red for a forbidden pair of 3rd and 4th gear, yellow for a step that does not
// rise.
#include "tests/monkey/oracle/oracle.h"

#include <algorithm>

namespace veldrin::monkey {

namespace {

constexpr int kThird = 3;
constexpr int kFourth = 4;

class ColourRule : public Rule {
 public:
  const char* Name() const override { return "colours"; }

  std::string Judge(const Look& look) override {
    const Program& program = look.program;
    if (look.now.ended || !program.form2.loaded || program.workspace.MachineKey.empty()) return "";
    if (look.now.chooserUp || !program.form2.Picture12.Visible) return "";
    const std::string wrong = JudgeRed(look);
    return wrong.empty() ? JudgeYellow(program) : wrong;
  }

 private:
  static bool IsRed(const Program& program, int gear) {
    return program.form2.Label12[gear].BackColor == kRed;
  }

  /// The pair is tested where it is picked by hand. A plan that was read, restored or made first is not
  /// tested, so a forbidden pair of these stays grey.
  static std::string JudgeRed(const Look& look) {
    const Workspace& workspace = look.program.workspace;
    for (int gear = 1; gear <= kGears; ++gear) {
      if (gear != kThird && gear != kFourth && IsRed(look.program, gear)) return Told(gear, "red");
    }
    if (IsRed(look.program, kThird) != IsRed(look.program, kFourth)) return "one of 3rd and 4th alone is red";
    const bool forbidden =
        workspace.M34Matrix(workspace.PlanIndex[kThird], workspace.PlanIndex[kFourth]) == kEndMark;
    if (IsRed(look.program, kThird) && !forbidden) return Told(kThird, "red, and the pair is allowed");
    if (!IsRed(look.program, kThird) && forbidden && WasPicked(look)) {
      return Told(kThird, "not red, and a forbidden pair was picked");
    }
    return "";
  }

  static bool WasPicked(const Look& look) {
    const bool byHand = look.deed.On("Form2", "Spin6") || look.deed.On("Form2", "Grid2");
    const bool changed = look.before.rows[kThird + 1] != look.now.rows[kThird + 1] ||
                         look.before.rows[kFourth + 1] != look.now.rows[kFourth + 1];
    return byHand && changed;
  }

  /// 1st gear has no way back from yellow, and 3rd and 4th are grey behind every plan that was read.
  static std::string JudgeYellow(const Program& program) {
    for (int gear = 1; gear <= kGears; ++gear) {
      const bool yellow = program.form2.Label12[gear].BackColor == kYellow;
      const bool falls = !RisesInto(program, gear) || !RisesInto(program, gear + 1);
      if (yellow && !falls && gear > 1) return Told(gear, "yellow between rising steps");
      if (!yellow && falls && gear != kThird && gear != kFourth)
        return Told(gear, "not yellow at a falling step");
    }
    return "";
  }

  static bool RisesInto(const Program& program, int gear) {
    if (gear < 2 || gear > kGears) return true;
    return program.workspace.SpeedNow[gear] > program.workspace.SpeedNow[gear - 1];
  }

  static std::string Told(int gear, const std::string& what) {
    return "Label12(" + std::to_string(gear) + ") is " + what;
  }
};

}  // namespace

std::unique_ptr<Rule> ColoursTellPairsAndSteps() {
  return std::make_unique<ColourRule>();
}

}  // namespace veldrin::monkey
