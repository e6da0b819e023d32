// The numbers in the hints' texts, in both languages, against the limits that the program holds to.
#include "simulated/simulated_machine.h"
#include "tests/told_numbers.h"
#include "view/hints/hint_table.h"
#include "workspace/notice_words.h"
#include "workspace/program.h"

#include <gtest/gtest.h>

#include <set>

namespace veldrin {
namespace {

/// Limits stand in the first line; the second tells of keys and clicks.
std::string FirstLine(const std::string& text) {
  return text.substr(0, text.find('\n'));
}

struct HintsTellLimits : testing::Test {
  struct Told {
    const Control& control;
    Numbers numbers;
  };

  SimulatedMachine simulated;
  Program program{simulated.machine};
  Form2& form2 = program.form2;
  Form7& form7 = program.form7.Load();
  const std::vector<const HintRows*> tables = {
      &HintsOfForm1(), &HintsOfForm2(), &GearHintsOfForm2(), &MenuHintsOfForm2(), &HintsOfForm3(),
      &HintsOfForm4(), &HintsOfForm5(), &HintsOfForm7(),     &HintsOfForm9(),     &HintsOfForm10()};

  std::vector<Told> AllTold() {
    std::vector<Told> all = {{form2.Text2, EndsOf(kConditions[kCheckNeCondition].limits)},
                             {form2.Text3, EndsOf(kConditions[kTyreCondition].limits)},
                             {form2.Text4, EndsOf(kConditions[kShiftNeCondition].limits)},
                             {form2.Text1[1], {kLowestRequest}},
                             {form2.Spin1[1], EndsOf(kToleranceLimits)},
                             {form2.Spin3[1], EndsOf(kToleranceLimits)}};
    int box = 0;
    for (const Condition& condition : kConditions)
      all.push_back({form7.Text1[box++], EndsOf(condition.limits)});
    const ComboBox& history = form7.Combo1[3];
    all.push_back({history, {std::stof(history.entries.front()), std::stof(history.entries.back())}});
    return all;
  }

  /// The control's row as it is written, with {gear} in it.
  const HintRow& RowOf(const Control& control) const {
    const HintRows& rows = &control.window == &form7 ? HintsOfForm7() : GearHintsOfForm2();
    for (const HintRow& row : rows) {
      if (row.element(control.window, control.index) == &control) return row;
    }
    ADD_FAILURE() << control.FullName() << " has no hint";
    return rows.front();
  }
};

TEST_F(HintsTellLimits, InBothLanguages) {
  for (const Told& told : AllTold()) {
    const HintRow& row = RowOf(told.control);
    EXPECT_EQ(NumbersIn(FirstLine(row.english)), told.numbers) << row.english;
    EXPECT_EQ(NumbersIn(FirstLine(row.japanese)), told.numbers) << row.japanese;
  }
}

TEST_F(HintsTellLimits, NoRangeIsLeftOut) {
  static const std::regex kRange("[0-9.]+ to [0-9.]+|[0-9.]+～[0-9.]+");
  std::set<const HintRow*> compared;
  for (const Told& told : AllTold()) compared.insert(&RowOf(told.control));
  for (const HintRows* rows : tables) {
    for (const HintRow& row : *rows) {
      const bool hasRange = std::regex_search(row.english, kRange) || std::regex_search(row.japanese, kRange);
      EXPECT_TRUE(!hasRange || compared.count(&row) == 1) << row.english << " / " << row.japanese;
    }
  }
}

}  // namespace
}  // namespace veldrin
