// The plan dialog and the compare window show the speeds of the parts, or of the file, that they name.
#include "tests/monkey/figures.h"
#include "tests/monkey/oracle/oracle.h"

#include <cmath>
#include <sstream>

namespace veldrin::monkey {

namespace {

std::string Wrong(const Label& label, const std::string& expected) {
  if (label.Caption == expected) return "";
  return label.FullName() + " reads \"" + label.Caption.get() + "\", not \"" + expected + "\"";
}

/// The first that does not hold.
std::string FirstOf(std::initializer_list<std::string> judgements) {
  for (const std::string& judgement : judgements) {
    if (!judgement.empty()) return judgement;
  }
  return "";
}

// ---- Plan dialog ----

class PlanDialogRule : public Rule {
 public:
  const char* Name() const override { return "plan dialog"; }

  std::string Judge(const Look& look) override {
    const Program& program = look.program;
    if (look.now.ended || !program.form4) return "";
    const Workspace& workspace = program.workspace;
    const Form4& form4 = *program.form4;
    const std::vector<double> primaries = RatiosNamed(workspace, true, form4.Label1.Caption);
    const std::vector<double> finals = RatiosNamed(workspace, false, form4.Label2.Caption);
    if (primaries.empty() || finals.empty()) return "the plan is of no rows of the machine";
    // Where several parts bear one text, any of them will do.
    for (const double primary : primaries) {
      for (const double final : finals) {
        if (JudgeSpeeds(program, primary, final).empty()) return JudgePlace(program);
      }
    }
    return JudgeSpeeds(program, primaries[0], finals[0]);
  }

 private:
  static std::string JudgeSpeeds(const Program& program, double primary, double final) {
    const Workspace& workspace = program.workspace;
    const Form4& form4 = *program.form4;
    float below = 0;
    for (int gear = 1; gear <= kGears; ++gear) {
      const std::vector<int> rows = PairsNamed(workspace, gear, form4.Label12[gear].Caption);
      if (rows.empty()) return form4.Label12[gear].FullName() + " is no pair of its gear";
      const float speed = SpeedOf(workspace, primary, final, gear, rows[0]);
      std::string wrong = Wrong(form4.Label24[gear], SpeedText(workspace, speed));
      if (wrong.empty() && gear > 1) {
        wrong = Wrong(form4.Label39[gear - 1], StepText(workspace, speed - below));
      }
      if (!wrong.empty()) return wrong;
      below = speed;
    }
    return "";
  }

  /// A search finds no forbidden pair, and its plan is one of those it has found.
  static std::string JudgePlace(const Program& program) {
    const Workspace& workspace = program.workspace;
    const PlanDialogState& dialog = program.planDialog;
    if (workspace.M34Matrix(dialog.ShownRow[3], dialog.ShownRow[4]) == kEndMark) {
      return "the plan has a forbidden pair";
    }
    return Wrong(program.form4->Label6,
                 std::to_string(dialog.ShownPlan) + "/" + std::to_string(workspace.PlanCount));
  }
};

// ---- Compare ----

/// The lines of a plan file; empty for what is none.
std::vector<std::string> PlanLines(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream stream(text);
  for (std::string line; std::getline(stream, line);) {
    if (line.ends_with('\r')) line.pop_back();
    lines.push_back(line);
  }
  constexpr std::size_t kFewestLines = 15;
  if (lines.size() < kFewestLines || !lines[0].starts_with("FROM:")) lines.clear();
  return lines;
}

/// What the window takes from the main window when it opens, whatever is loaded behind it later.
struct OwnPlan {
  std::string primary;
  std::string final;
  std::string shiftNe;
  std::string remark;
  std::vector<std::string> speeds;
};

class CompareRule : public Rule {
 public:
  const char* Name() const override { return "compare"; }

  std::string Judge(const Look& look) override {
    if (look.now.ended || !look.program.form5) {
      files_.clear();
      return "";
    }
    const CompareState& compare = look.program.compare;
    Remember(look, compare.CompareCount);
    const auto shown = static_cast<std::size_t>(compare.CompareIndex);
    if (shown >= files_.size()) return "the plan shown is none of those held";
    return shown == 0 ? JudgeOwnPlan(*look.program.form5) : JudgeFile(look.program, files_[shown]);
  }

 private:
  /// The file that an action has appended, as it was then.
  void Remember(const Look& look, std::int16_t count) {
    while (files_.size() < static_cast<std::size_t>(count)) {
      const FileBox& box = look.program.form5->File1;
      const std::string path = box.Path.get() + "\\" + box.FileName.get();
      if (files_.empty()) own_ = OwnPlanOf(look.program);
      files_.push_back(files_.empty() ? "" : look.world.machine.files.Text(path).value_or(""));
    }
  }

  static OwnPlan OwnPlanOf(const Program& program) {
    const Workspace& workspace = program.workspace;
    OwnPlan plan{.primary = workspace.PrimaryTable[workspace.PrimaryIndex].Text,
                 .final = workspace.FinalTable[workspace.FinalIndex].Text,
                 .shiftNe = std::to_string(workspace.ShiftNe),
                 .remark = program.form2.Text6.Text,
                 .speeds = {}};
    for (int gear = 1; gear <= kGears; ++gear) {
      plan.speeds.push_back(SpeedText(workspace, workspace.SpeedNow[gear]));
    }
    return plan;
  }

  std::string JudgeOwnPlan(const Form5& form5) const {
    std::string wrong = FirstOf({Wrong(form5.Label6[0], own_.primary), Wrong(form5.Label8[0], own_.final),
                                 Wrong(form5.Label16, own_.shiftNe), Wrong(form5.Label1, own_.remark)});
    for (int gear = 1; gear <= kGears && wrong.empty(); ++gear) {
      wrong = Wrong(form5.Label9[gear], own_.speeds[static_cast<std::size_t>(gear) - 1]);
    }
    return wrong;
  }

  /// A damaged file leaves its fields partly filled; only a whole one is held against what is shown.
  static std::string JudgeFile(const Program& program, const std::string& text) {
    const std::vector<std::string> lines = PlanLines(text);
    if (lines.empty()) return "";
    const Workspace& workspace = program.workspace;
    const Form5& form5 = *program.form5;
    std::string wrong =
        FirstOf({Wrong(form5.Label6[0], lines[9] + "-" + lines[10]),
                 Wrong(form5.Label8[0], lines[11] + "-" + lines[12]), Wrong(form5.Label1, lines[14])});
    double below = 0;
    double revolutions = 0;
    ReadAnyNumber(workspace, lines[2], revolutions);
    for (int gear = 1; gear <= kGears && wrong.empty(); ++gear) {
      double speed = 0;
      if (!ReadAnyNumber(workspace, lines[static_cast<std::size_t>(gear) + 2], speed)) return "";
      if (gear == 1) below = speed;
      wrong = FirstOf(
          {Wrong(form5.Label9[gear], SpeedText(workspace, static_cast<float>(speed))),
           Wrong(form5.Label11[gear], std::to_string(std::lrint(revolutions * static_cast<float>(below) /
                                                                static_cast<float>(speed))))});
      below = speed;
    }
    return wrong;
  }

  /// Texts of the files' plans by slot; the first is the plan of the main window.
  std::vector<std::string> files_;
  OwnPlan own_;
};

}  // namespace

std::unique_ptr<Rule> PlanDialogShowsItsParts() {
  return std::make_unique<PlanDialogRule>();
}

std::unique_ptr<Rule> CompareShowsItsFiles() {
  return std::make_unique<CompareRule>();
}

}  // namespace veldrin::monkey
