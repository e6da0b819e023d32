// What the lines of a plan file may be: remarks, texts that the machine does not have, decimals of other
// systems.
#include "tests/workspace/plan_program.h"
#include "workspace/files/plan_file.h"

#include <string>

namespace veldrin {
namespace {

TEST_F(PlanFile, AnEmptyLineFifteenIsAnEmptyRemark) {
  Lines lines = PlanLines();
  lines[14] = "";
  Open(lines);
  EXPECT_EQ(workspace.ResultWord, "OK");
  EXPECT_EQ(form2.Text6.Text.get(), "");
  EXPECT_EQ(WorkFileText(), Joined(lines));
}

TEST_F(PlanFile, ARemarkKeepsItsLineBreaks) {
  for (const char* remark :
       {"", "one", "one\r\ntwo", "one\r\n", "\r\n", "\r\n\r\nthree\r\n\r\n", " blanks, \"quotes\" "}) {
    Open(PlanLines());
    form2.Text6.Text = remark;
    const std::string saved = Save();
    form2.Text6.Text = "other";
    Open(saved);
    EXPECT_EQ(form2.Text6.Text.get(), remark);
    EXPECT_EQ(Save(), saved);
  }
}

TEST_F(PlanFile, AHugeRemarkIsReadAndWritten) {
  std::string remark = "first";
  for (int line = 2; line <= 200000; ++line) remark += "\r\nline " + std::to_string(line);
  Lines lines = PlanLines();
  lines[14] = remark;
  Open(lines);
  EXPECT_EQ(form2.Text6.Text.get(), remark);
  EXPECT_EQ(WorkFileText(), Joined(lines));
}

TEST_F(PlanFile, TextsThatTheMachineDoesNotHaveLeaveTheRow) {
  struct Case {
    int line;
    const char* text;
  };
  for (const Case& c :
       {Case{9, "21"}, Case{10, "41"}, Case{11, "17"}, Case{12, "39"}, Case{13, "1.C-2-3-4-5-6"}}) {
    Open(PlanLines());
    Lines lines = PlanLines();
    lines[static_cast<std::size_t>(c.line)] = c.text;
    Open(lines);
    EXPECT_EQ(workspace.ResultWord, "OK") << c.text;
    EXPECT_EQ(workspace.PrimaryIndex, 2);
    EXPECT_EQ(workspace.FinalIndex, 2);
    EXPECT_EQ(workspace.PlanIndex[1], 1);
    EXPECT_EQ(workspace.PlanIndex[6], 1);
  }
}

TEST_F(PlanFile, PlanLinesWithTooFewOrTooManyPieces) {
  struct Case {
    const char* line;
    int rows[kGears];
  };
  const Case cases[] = {
      {"1.B-2B-3B-4B-5B-6B", {2, 2, 2, 2, 2, 2}},
      {"1.B-2B", {2, 2, 1, 1, 1, 1}},
      {"", {1, 1, 1, 1, 1, 1}},
      {"-----", {1, 1, 1, 1, 1, 1}},
      {"1.B-2B-3B-4B-5B-6B-1.A-2A", {2, 2, 2, 2, 2, 2}},
      {"-1.B-2B-3B-4B-5B-6B", {1, 1, 1, 1, 1, 1}},
      {"--3B---6B", {1, 1, 2, 1, 1, 2}},
      {"1.b-2B -3B", {1, 1, 2, 1, 1, 1}},
      {"99-99-99-99-99-99", {1, 1, 1, 1, 1, 1}},
  };
  for (const Case& c : cases) {
    Open(PlanLines());
    Lines lines = PlanLines();
    lines[13] = c.line;
    Open(lines);
    for (int gear = 1; gear <= kGears; ++gear) {
      EXPECT_EQ(workspace.PlanIndex[gear], c.rows[gear - 1]) << c.line << " gear " << gear;
    }
  }
}

TEST_F(PlanFile, OfEqualTextsTheFirstRowIsTaken) {
  workspace.GearTable(1, 1) = "1.B";
  Lines lines = PlanLines();
  lines[13] = "1.B-2A-3A-4A-5A-6A";
  Open(lines);
  EXPECT_EQ(workspace.PlanIndex[1], 1);
}

TEST_F(PlanFile, AListOfMoreRowsThanTheTablesHoldRefusesAnUnknownPair) {
  workspace.GearRows = 11;
  Open(PlanLines());
  EXPECT_EQ(workspace.ResultWord, "OK");
  Lines lines = PlanLines();
  lines[13] = "1.A-2A-3A-4A-5A-nowhere";
  Open(lines);
  EXPECT_EQ(workspace.ResultWord, "NG");
}

TEST_F(PlanFile, CommaDecimalsReadOnAPeriodSystem) {
  Lines lines = PlanLines();
  lines[1] = "2,0";
  lines[3] = "60,004";
  Open(lines);
  EXPECT_EQ(workspace.ResultWord, "OK");
  EXPECT_EQ(workspace.SpeedBaseline[1], 60.004F);
  EXPECT_EQ(form2.Label2[1].Caption.get(), " 60.0");
}

TEST_F(PlanFile, PeriodDecimalsReadOnACommaSystem) {
  workspace.DecimalSep = ",";
  Lines lines = PlanLines();
  lines[1] = "2.0";
  lines[3] = "60.004";
  Open(lines);
  EXPECT_EQ(workspace.ResultWord, "OK");
  EXPECT_EQ(workspace.SpeedBaseline[1], 60.004F);
  EXPECT_EQ(form2.Label2[1].Caption.get(), " 60,0");
}

TEST_F(PlanFile, APeriodInAGearTextIsNoDecimalSeparator) {
  workspace.DecimalSep = ",";
  Lines lines = PlanLines();
  lines[13] = "1.B-2A-3A-4A-5A-6A";
  Open(lines);
  EXPECT_EQ(workspace.PlanIndex[1], 2);
  EXPECT_EQ(form2.Label12[1].Caption.get(), "1.B");
}

}  // namespace
}  // namespace veldrin
