#include "machine/output/real_boxes.h"
#include "tests/machine/output/printed_page.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace veldrin {
namespace {

TEST_F(RealPrinterTest, ThePageIsThePrintableAreaInTwips) {
  const QRectF inPoints = printer.Device().pageLayout().paintRect(QPageLayout::Point);
  Surface& page = printer.Page();
  EXPECT_NEAR(page.PhysicalWidth(), inPoints.width() * 20, 0.01);
  EXPECT_NEAR(page.PhysicalHeight(), inPoints.height() * 20, 0.01);
  // A4 is 11906 by 16838 twips.
  EXPECT_GT(page.PhysicalWidth(), 10500);
  EXPECT_LE(page.PhysicalWidth(), 11907);
  EXPECT_EQ(page.UserScale(), (Scale{0, 0, page.PhysicalWidth(), page.PhysicalHeight()}));
}

TEST_F(RealPrinterTest, ThePageFollowsThePaperThatIsChosen) {
  Surface& page = printer.Page();
  const double width = page.PhysicalWidth();
  printer.Device().setPageSize(QPageSize(QPageSize::A3));
  EXPECT_EQ(&printer.Page(), &page);
  EXPECT_GT(page.PhysicalWidth(), width * 1.3);
}

TEST_F(RealPrinterTest, ADocumentIsOnePage) {
  DrawReport(printer.Page());
  printer.EndDocument();
  EXPECT_TRUE(Bytes().startsWith("%PDF-"));
  EXPECT_EQ(Pages(), 1);
}

TEST_F(RealPrinterTest, TheNextPageBeginsEmptyWithoutAScale) {
  DrawReport(printer.Page());
  printer.EndDocument();
  Surface& page = printer.Page();
  EXPECT_TRUE(page.Drawing().empty());
  EXPECT_EQ(page.UserScale(), (Scale{0, 0, page.PhysicalWidth(), page.PhysicalHeight()}));
  EXPECT_EQ(page.drawWidth, 1);
}

TEST_F(RealPrinterTest, CopiesAreAtLeastOne) {
  printer.SetCopies(3);
  EXPECT_EQ(printer.Device().copyCount(), 3);
  printer.SetCopies(0);
  EXPECT_EQ(printer.Device().copyCount(), 1);
}

TEST_F(RealPrinterTest, WhatCannotBePrintedIsDroppedAndTold) {
  int failures = 0;
  printer.failed = [&] { ++failures; };
  printer.Device().setOutputFileName(folder.path() + "/none/page.pdf");
  DrawReport(printer.Page());
  printer.EndDocument();
  EXPECT_TRUE(printer.Page().Drawing().empty());
  EXPECT_TRUE(QDir(folder.path()).isEmpty());
  EXPECT_EQ(failures, 1);
  printer.Device().setOutputFileName("/dev/full");
  DrawReport(printer.Page());
  printer.EndDocument();
  EXPECT_EQ(failures, 2);
  printer.Device().setOutputFileName(pdf);
  DrawReport(printer.Page());
  printer.EndDocument();
  EXPECT_EQ(failures, 2);
  EXPECT_EQ(Pages(), 1);
}

TEST_F(RealPrinterTest, AHundredThousandTextsArePrinted) {
  Surface& page = printer.Page();
  page.font = {"Arial", 10, false, false};
  for (int i = 0; i < 100000; ++i) page.Print(4860, 4700.0 + i * 250.0, "x");
  printer.EndDocument();
  EXPECT_EQ(Pages(), 1);
}

TEST(RealPrinter, IsThereWithoutAnyPrinterAndOffersTheSystemsFonts) {
  const PlainMetrics metrics;
  const RealPrinter printer(metrics);
  EXPECT_TRUE(printer.Available());
  const std::vector<std::string> fonts = printer.Fonts();
  EXPECT_EQ(std::count(fonts.begin(), fonts.end(), "Arial"), 1);
  EXPECT_EQ(std::count(fonts.begin(), fonts.end(), "ＭＳ ゴシック"), 1);
}

}  // namespace
}  // namespace veldrin
