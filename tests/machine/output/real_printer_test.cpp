#include "machine/output/real_printer.h"

#include "machine/output/real_boxes.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>

namespace veldrin {
namespace {

/// Sizes that hang on no font: 10 twips a point and character, lines of 24.
struct PlainMetrics : TextMetrics {
  TextSize Measure(const Font& font, const std::string& text) const override {
    return {font.size * 10.0 * static_cast<double>(text.size()), font.size * 24.0};
  }
};

class RealPrinterTest : public ::testing::Test {
 protected:
  void SetUp() override {
    printer.Device().setOutputFormat(QPrinter::PdfFormat);
    printer.Device().setOutputFileName(pdf);
    printer.Device().setPageSize(QPageSize(QPageSize::A4));
  }

  static void DrawReport(Surface& page) {
    page.font = {"Arial", 12, false, false};
    page.Print(4860, 500, "Machine");
    page.font.name = "ＭＳ ゴシック";
    page.Print(4860, 4700, "すずか ﾃｽﾄ");
    page.SetScale({-0.15 * 1500, 370, 4500, -3 * 340});
    page.drawWidth = 2;
    page.Line(0, 0, 1500, 0, kBlack);
    page.Line(0, 0, 1500, 340, kRed);
  }

  QByteArray Bytes() const {
    QFile file(pdf);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  }

  /// Pages as the document itself counts them.
  int Pages() const {
    static const QRegularExpression kCount("/Type /Pages.*?/Count (\\d+)",
                                           QRegularExpression::DotMatchesEverythingOption);
    return kCount.match(QString::fromLatin1(Bytes())).captured(1).toInt();
  }

  /// The words of the document, each with its box in points.
  QString Words() const {
    const QString tool = QStandardPaths::findExecutable("pdftotext");
    if (tool.isEmpty()) ADD_FAILURE() << "pdftotext is missing";
    QProcess process;
    process.start(tool, {"-bbox", pdf, "-"});
    EXPECT_TRUE(process.waitForFinished());
    return QString::fromUtf8(process.readAllStandardOutput());
  }

  /// The left top corner of a word on the paper.
  QPointF PlaceOf(const QString& word) const {
    const QRegularExpression boxed("xMin=\"([\\d.]+)\" yMin=\"([\\d.]+)\"[^>]*>" + word + "<");
    const QRegularExpressionMatch match = boxed.match(Words());
    EXPECT_TRUE(match.hasMatch()) << Words().toStdString();
    return {match.captured(1).toDouble(), match.captured(2).toDouble()};
  }

  QTemporaryDir folder;
  QString pdf = folder.path() + "/page.pdf";
  PlainMetrics metrics;
  RealPrinter printer{metrics};
};

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

TEST_F(RealPrinterTest, TextsStandAtTheirPlacesOnThePaper) {
  DrawReport(printer.Page());
  printer.EndDocument();
  const QPointF corner = PlaceOf("Machine");
  const QRectF area = printer.Device().pageLayout().paintRect(QPageLayout::Point);
  EXPECT_NEAR(corner.x(), area.left() + 4860 / 20.0, 1.5);
  EXPECT_NEAR(corner.y(), area.top() + 500 / 20.0, 2.5);
  EXPECT_TRUE(Words().contains("すずか")) << Words().toStdString();
}

TEST_F(RealPrinterTest, ALandscapePageShowsTheReportScaledToFit) {
  printer.Device().setPageOrientation(QPageLayout::Landscape);
  DrawReport(printer.Page());
  const QRectF area = printer.Device().pageLayout().paintRect(QPageLayout::Point);
  const double factor = area.height() * 20 / printer.Page().PhysicalHeight();
  EXPECT_LT(factor, 1);
  printer.EndDocument();
  const QPointF corner = PlaceOf("Machine");
  EXPECT_NEAR(corner.x(), area.left() + factor * 4860 / 20, 1.5);
  EXPECT_NEAR(corner.y(), area.top() + factor * 500 / 20, 2.5);
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
