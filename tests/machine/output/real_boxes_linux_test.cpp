// Dialogs for colours and printers. On Windows they are the system's own, which no widget of Qt's stands for:
// there the roads of the real program answer them.
#include "tests/machine/output/answered_boxes.h"

#include <QColorDialog>
#include <QPrintDialog>
#include <QRadioButton>
#include <QSpinBox>

namespace veldrin {
namespace {

TEST_F(RealBoxesTest, TheColourDialogOpensOnTheColourAndGivesTheChosenOne) {
  WhenShown<QColorDialog>([&](QColorDialog& dialog) {
    EXPECT_EQ(dialog.currentColor(), QColor(1, 2, 3));
    dialog.setCurrentColor(QColor(30, 20, 10));
    dialog.accept();
  });
  EXPECT_EQ(boxes.ChooseColour(Rgb(1, 2, 3)), Rgb(30, 20, 10));
  WhenShown<QColorDialog>([&](QColorDialog& dialog) {
    dialog.setCurrentColor(QColor(30, 20, 10));
    dialog.reject();
  });
  EXPECT_EQ(boxes.ChooseColour(Rgb(1, 2, 3)), Rgb(1, 2, 3));
}

TEST_F(RealBoxesTest, ThePrinterDialogTellsCancelAndCopies) {
  WhenShown<QPrintDialog>([&](QPrintDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(boxes.ChoosePrinter().error, 32755);
  printer.Device().setOutputFormat(QPrinter::PdfFormat);
  printer.SetCopies(2);
  WhenShown<QPrintDialog>([&](QPrintDialog& dialog) { dialog.done(QDialog::Accepted); });
  const PrintChoice choice = boxes.ChoosePrinter();
  EXPECT_EQ(choice.error, 0);
  EXPECT_EQ(choice.copies, 2);
}

TEST_F(RealBoxesTest, ThePrinterDialogOffersNeitherPagesNorASelection) {
  printer.Device().setOutputFormat(QPrinter::PdfFormat);
  WhenShown<QPrintDialog>([&](QPrintDialog& dialog) {
    for (QPushButton* button : dialog.findChildren<QPushButton*>()) {
      if (button->isCheckable() || button->text().contains("Options")) button->click();
    }
    QCoreApplication::processEvents();
    const auto copies = dialog.findChildren<QSpinBox*>("copies");
    ASSERT_EQ(copies.size(), 1);
    EXPECT_TRUE(copies.front()->isVisible()) << "the page of options is not open";
    int choices = 0;
    for (const QRadioButton* choice : dialog.findChildren<QRadioButton*>()) {
      choices += choice->isVisible() ? 1 : 0;
    }
    EXPECT_EQ(choices, 0);
    dialog.reject();
  });
  boxes.ChoosePrinter();
}

}  // namespace
}  // namespace veldrin
