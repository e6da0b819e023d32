// All windows are walked: every control that the pointer can rest on has a hint, in both languages.
#include "hints/hint.h"
#include "simulated/simulated_machine.h"
#include "view/hints/hint_table.h"
#include "view/hints/hints.h"

#include <gtest/gtest.h>

#include <map>
#include <vector>

namespace veldrin {
namespace {

constexpr std::size_t kWidest = 90;  // columns of a line
constexpr std::size_t kMostLines = 2;

/// How many columns of a text console a text takes; a Japanese sign takes two.
std::size_t Columns(const std::string& line) {
  std::size_t columns = 0;
  for (const char byte : line) {
    const auto code = static_cast<unsigned char>(byte);
    if ((code & 0xC0U) != 0x80U) columns += code < 0xE0 ? 1 : 2;
  }
  return columns;
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines(1);
  for (const char character : text) {
    if (character == '\n') {
      lines.emplace_back();
    } else {
      lines.back() += character;
    }
  }
  return lines;
}

struct AllWindows : testing::Test {
  SimulatedMachine simulated;
  Program program{simulated.machine};
  /// All but the canvas of the report, which nobody sees.
  std::vector<Window*> windows = {&program.form1,        &program.form2,        &program.form3,
                                  &program.form4.Load(), &program.form5.Load(), &program.form7.Load(),
                                  &program.form9.Load(), &program.form10.Load()};

  AllWindows() {
    // What the program adds by and by.
    program.form2.menu_files.Load(1);
    program.form2.menu_files.Load(12);
    program.form2.menu_reg.Load(2);
    program.form2.menu_files[1].Caption = "A";
    program.form2.menu_files[12].Caption = "B";
  }

  template <class Look>
  void Walk(Look look) {
    for (const Window* window : windows) {
      for (const Control* control : window->controls) {
        if (CanBePointedAt(*control)) look(*control);
      }
    }
  }
};

class AllHints : public AllWindows, public testing::WithParamInterface<bool> {
 protected:
  std::string TextOf(const Control& control) const { return TableHint(control, GetParam()); }
};

INSTANTIATE_TEST_SUITE_P(Languages, AllHints, testing::Values(false, true),
                         [](const auto& run) { return run.param ? "Japanese" : "English"; });

TEST_P(AllHints, NoneIsMissing) {
  int count = 0;
  Walk([&](const Control& control) {
    EXPECT_NE(TextOf(control), "") << control.FullName();
    ++count;
  });
  EXPECT_GT(count, 500) << "the walk itself is broken";
}

TEST_P(AllHints, NoneStandsTwiceInAWindow) {
  std::map<std::string, std::string> seen;
  Walk([&](const Control& control) {
    const auto [first, isNew] =
        seen.emplace(control.window.name + ": " + TextOf(control), control.IndexedName());
    EXPECT_TRUE(isNew) << first->first << " for " << first->second << " and " << control.IndexedName();
  });
}

TEST_P(AllHints, LinesAreShortAndFew) {
  Walk([&](const Control& control) {
    const std::vector<std::string> lines = LinesOf(TextOf(control));
    EXPECT_LE(lines.size(), kMostLines) << control.FullName();
    for (const std::string& line : lines) {
      EXPECT_LE(Columns(line), kWidest) << control.FullName() << ": " << line;
      EXPECT_NE(line, "") << control.FullName();
    }
  });
}

TEST_P(AllHints, NoPlaceholderIsLeft) {
  Walk([&](const Control& control) {
    EXPECT_EQ(TextOf(control).find_first_of("{}"), std::string::npos)
        << control.FullName() << ": " << TextOf(control);
  });
}

TEST_P(AllHints, LanguageIsItsOwn) {
  Walk([&](const Control& control) {
    const std::string text = TextOf(control);
    const bool plain =
        std::all_of(text.begin(), text.end(), [](char one) { return static_cast<signed char>(one) > 0; });
    EXPECT_EQ(plain, !GetParam()) << control.FullName() << ": " << text;
  });
}

TEST_F(AllWindows, EveryRowIsSomebodys) {
  const std::pair<const Window*, const HintRows*> kTables[] = {
      {&program.form1, &HintsOfForm1()},     {&program.form2, &HintsOfForm2()},
      {&program.form2, &GearHintsOfForm2()}, {&program.form2, &MenuHintsOfForm2()},
      {&program.form3, &HintsOfForm3()},     {&*program.form4, &HintsOfForm4()},
      {&*program.form5, &HintsOfForm5()},    {&*program.form7, &HintsOfForm7()},
      {&*program.form9, &HintsOfForm9()},    {&*program.form10, &HintsOfForm10()}};
  for (const auto& [window, rows] : kTables) {
    std::map<const Control*, int> claimed;
    for (const HintRow& row : *rows) {
      int owners = 0;
      for (const Control* control : window->controls) {
        if (row.element(*window, control->index) == control && claimed[control]++ == 0) ++owners;
      }
      EXPECT_GT(owners, 0) << window->name << ": " << row.english;
    }
  }
}

TEST_F(AllWindows, WhatNoPointerMeetsHasNone) {
  for (const Control* control : std::vector<const Control*>{
           &program.form2.Timer1, &program.form2.Line1, &program.form2.menu_dummy0,
           &program.form2.menu_files[0], &program.form2.CommonDialog1, &program.form2}) {
    EXPECT_EQ(Hint(program, *control), "") << control->FullName();
  }
}

TEST(GearInHints, HasItsEnding) {
  const char* const kEnglish[] = {"1st", "2nd", "3rd", "4th", "5th", "6th"};
  for (int gear = 1; gear <= 6; ++gear) EXPECT_EQ(GearInHints(gear, false), kEnglish[gear - 1]);
  EXPECT_EQ(GearInHints(6, true), "6 速");
}

TEST(HintWithValue, ValueStandsBehindTheFirstLineAndBeforeTheReason) {
  SimulatedMachine simulated;
  Program program(simulated.machine);
  program.workspace.Language = "ENGLISH";
  program.form2.Label9[3].Caption = " 98.4";
  const auto spoken = [&](const Control& control) {
    return HintWithValue(program, control, ValueOf(control));
  };
  EXPECT_EQ(spoken(program.form2.Label9[3]), "Speed of the 3rd gear at the shift revolutions, km/h: 98.4");
  program.form2.Spin1[2].Enabled = false;
  EXPECT_EQ(HintWithValue(program, program.form2.Spin1[2], "4"),
            "Tolerance of the 2nd gear downward, 1 to 21 km/h: down widens, up narrows: 4\n"
            "This gear is on AUTO: the button in its row makes it MANUAL");
  program.workspace.Language = "JP";
  EXPECT_EQ(spoken(program.form2.Label9[3]), "シフト回転数での 3 速の速度（km/h）：98.4");
}

TEST(HintWithValue, ValueReadsOnWhereTheFirstLineEndsInTheMiddleOfASentence) {
  SimulatedMachine simulated;
  Program program(simulated.machine);
  program.workspace.Language = "ENGLISH";
  const Control& pair = program.form2.Label12[2];
  EXPECT_EQ(HintWithValue(program, pair, "17.26"),
            "Gear pair of the 2nd gear; a click lists all: 17.26\n"
            "yellow: the speed does not rise to the next gear");
  program.workspace.Language = "JP";
  EXPECT_EQ(HintWithValue(program, pair, "17.26"),
            "2 速のギヤ。クリックで一覧：17.26\n黄：隣のギヤへ速度が上がりません");
}

TEST(HintWithValue, HeadingsAreNotSaidTwice) {
  SimulatedMachine simulated;
  Program program(simulated.machine);
  program.workspace.Language = "ENGLISH";
  EXPECT_EQ(HintWithValue(program, program.form2.Label12[0], "PLAN"),
            "PLAN: the gear pair chosen for each gear");
  // A number that a hint begins with by chance is still told.
  EXPECT_EQ(HintWithValue(program, program.form2.Label11[1], "1"),
            "1st gear: the shift revolutions themselves, rev/min: 1");
}

}  // namespace
}  // namespace veldrin
