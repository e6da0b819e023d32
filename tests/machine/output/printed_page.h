// A page that is printed to a file.
#pragma once

#include "machine/output/real_printer.h"

#include <QFile>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <string>

namespace veldrin {

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

  QTemporaryDir folder;
  QString pdf = folder.path() + "/page.pdf";
  PlainMetrics metrics;
  RealPrinter printer{metrics};
};

}  // namespace veldrin
