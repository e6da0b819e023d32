// What stands on the report's page, and where.
#include "mainwin/report_page.h"

#include "tests/mainwin/kept_report.h"

#include <string>
#include <utility>

namespace veldrin {
namespace {

TEST_F(Report, SizesOfMainCellsFollowTheSizeOfThePicture) {
  program.form2.Picture9.Visible = true;
  for (int gear = 1; gear <= kGears; ++gear) program.form2.Label32[gear].Caption = "part of 10";
  // (size + 4) * 12 over 10, in whole points.
  const float expected[] = {4, 6, 7, 8, 9, 10};
  for (int size = 0; size < 6; ++size) {
    RenderPicture(program, size, PictureOutput::Clipboard);
    EXPECT_EQ(SizeOf("part of 10"), expected[size]) << size;
    EXPECT_EQ(SizeOf("COUNT"), size + 7) << size;
  }
}

TEST_F(Report, RemarkWrapsBehindTheCharacterThatEndsAt11201) {
  metrics.width = 6340;
  EXPECT_EQ(RemarkPlaces("xxx"), (Places{{4860, 4700}, {11200, 4700}, {4860, 4950}}));
  metrics.width = 6341;
  EXPECT_EQ(RemarkPlaces("xx"), (Places{{4860, 4700}, {4860, 4950}}));
}

TEST_F(Report, RemarkRoundsItsPlacesHalfToEven) {
  metrics.width = 1.5;
  // 4861.5 goes up to 4862, 4863.5 to 4864.
  EXPECT_EQ(RemarkPlaces("xxx"), (Places{{4860, 4700}, {4862, 4700}, {4864, 4700}}));
  metrics.width = 0.5;
  // 4860.5 goes down.
  EXPECT_EQ(RemarkPlaces("xx"), (Places{{4860, 4700}, {4860, 4700}}));
  // 11200.5 goes down as well and stays below the end.
  metrics.width = 6340.5;
  EXPECT_EQ(RemarkPlaces("xx"), (Places{{4860, 4700}, {11200, 4700}}));
}

TEST_F(Report, RemarkOfManyLinesKeepsCounting) {
  std::string remark;
  for (int line = 1; line <= 40000; ++line) remark += "\r\n";
  EXPECT_EQ(RemarkPlaces(remark + "x"), (Places{{4860, 10004700}}));
}

TEST_F(Report, DrawingLeavesTheWorkspaceAndTheWindowAlone) {
  workspace.CallerWord = "as it was";
  workspace.PrintFontBold = true;
  program.form2.Text6.Text = "wet";
  RenderPicture(program, 2, PictureOutput::Clipboard);
  PrintReport(program);
  EXPECT_EQ(workspace.CallerWord, "as it was");
  EXPECT_EQ(program.form2.Text6.Text.get(), "wet");
  EXPECT_EQ(program.form2.Text6.FontBold, false);
}

TEST_F(Report, RemarkOfAHundredThousandCharactersIsDrawnToTheLast) {
  const std::string remark(100000, 'x');
  // 6341 / 100 characters of 100 twips, so 64 a line: 1562 full lines, and 32 characters in the last.
  const Places places = RemarkPlaces(remark);
  ASSERT_EQ(places.size(), 100000U);
  EXPECT_EQ(places[63], (std::pair<double, double>{11160, 4700}));
  EXPECT_EQ(places[64], (std::pair<double, double>{4860, 4950}));
  EXPECT_EQ(places[99999], (std::pair<double, double>{4860 + 31 * 100, 4700 + 1562 * 250}));
}

}  // namespace
}  // namespace veldrin
