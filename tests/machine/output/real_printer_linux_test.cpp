// Where texts stand on the paper, as a tool of Linux reads it.
#include "tests/machine/output/printed_page.h"

#include <QProcess>
#include <QStandardPaths>

namespace veldrin {
namespace {

class PrintedTextTest : public RealPrinterTest {
 protected:
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
};

TEST_F(PrintedTextTest, TextsStandAtTheirPlacesOnThePaper) {
  DrawReport(printer.Page());
  printer.EndDocument();
  const QPointF corner = PlaceOf("Machine");
  const QRectF area = printer.Device().pageLayout().paintRect(QPageLayout::Point);
  EXPECT_NEAR(corner.x(), area.left() + 4860 / 20.0, 1.5);
  EXPECT_NEAR(corner.y(), area.top() + 500 / 20.0, 2.5);
  EXPECT_TRUE(Words().contains("すずか")) << Words().toStdString();
}

TEST_F(PrintedTextTest, ALandscapePageShowsTheReportScaledToFit) {
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

}  // namespace
}  // namespace veldrin
