#include "machine/output/report_sheet.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

// Printable areas in twips, with 200 twips of margin all around.
constexpr QSizeF kA4(11506, 16438);
constexpr QSizeF kLetter(11840, 15440);
constexpr QSizeF kA3(16438, 23411);
constexpr QSizeF kA5(7991, 11506);

constexpr double kEndOfRemark = 11400;
constexpr double kText = 4860;

/// Where the chart's axis of revolutions ends: it takes a tenth and three tenths of its scale.
double EndOfChart(const Sheet& sheet) {
  return sheet.size.width() * 1.15 / 3;
}

TEST(ReportSheet, UprightPaperOfTheUsualSizesIsTheSheetItself) {
  for (const QSizeF& area : {kA4, kLetter, kA3}) {
    const Sheet sheet = SheetFor(area);
    EXPECT_EQ(sheet.size, area);
    EXPECT_EQ(sheet.factor, 1);
  }
}

TEST(ReportSheet, OtherPaperShowsAWholeReportThatFits) {
  for (const QSizeF& area : {kA4.transposed(), kLetter.transposed(), kA3.transposed(), kA5, kA5.transposed(),
                             QSizeF(5000, 5000), QSizeF(3000, 20000)}) {
    const Sheet sheet = SheetFor(area);
    EXPECT_GE(sheet.size.width() + 0.01, kEndOfRemark) << area.width();
    EXPECT_GT(sheet.size.height(), sheet.size.width()) << area.width();
    EXPECT_LE(sheet.size.width() * sheet.factor, area.width() + 0.01);
    EXPECT_LE(sheet.size.height() * sheet.factor, area.height() + 0.01);
    EXPECT_LT(EndOfChart(sheet), kText) << area.width();
  }
}

TEST(ReportSheet, ItFillsThePaperInOneDirection) {
  const Sheet landscape = SheetFor(kA4.transposed());
  EXPECT_NEAR(landscape.size.height() * landscape.factor, kA4.width(), 0.01);
  const Sheet small = SheetFor(kA5);
  EXPECT_NEAR(small.size.width() * small.factor, kA5.width(), 0.01);
}

}  // namespace
}  // namespace veldrin
