#include "machine/output/real_boxes.h"

#include "machine/output/fault_text.h"

#include <QApplication>
#include <QColorDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>
#include <gtest/gtest.h>

namespace veldrin {
namespace {

struct NoMetrics : TextMetrics {
  TextSize Measure(const Font& /*font*/, const std::string& /*text*/) const override { return {0, 0}; }
};

/// Calls `answer` with the dialog that comes up; it has to close it.
template <class Dialog>
void WhenShown(const std::function<void(Dialog&)>& answer) {
  QTimer::singleShot(0, qApp, [answer] {
    auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) {
      WhenShown(answer);
    } else {
      answer(*dialog);
    }
  });
}

class RealBoxesTest : public ::testing::Test {
 protected:
  NoMetrics metrics;
  RealPrinter printer{metrics};
  RealBoxes boxes{printer};
};

TEST_F(RealBoxesTest, AMessageShowsItsTextsAsTheyStand) {
  QString text;
  QString title;
  WhenShown<QMessageBox>([&](QMessageBox& box) {
    text = box.text();
    title = box.windowTitle();
    EXPECT_EQ(box.textFormat(), Qt::PlainText);
    EXPECT_EQ(box.icon(), QMessageBox::Question);
    EXPECT_EQ(box.standardButtons(), QMessageBox::Ok | QMessageBox::Cancel);
    box.button(QMessageBox::Cancel)->click();
  });
  EXPECT_EQ(boxes.Message(BoxIcon::Question, "Title", "<b>.nx4\r\n上書き", BoxButtons::OkCancel),
            BoxAnswer::Cancel);
  EXPECT_EQ(text, "<b>.nx4\n上書き");
  EXPECT_EQ(title, "Title");
}

TEST_F(RealBoxesTest, StandsInFrontOfAWindowThatIsNotActive) {
  QWidget window;
  window.setAttribute(Qt::WA_ShowWithoutActivating);
  window.show();
  QApplication::setActiveWindow(nullptr);
  ASSERT_EQ(QApplication::activeWindow(), nullptr);
  const QWidget* owner = nullptr;
  WhenShown<QMessageBox>([&](QMessageBox& box) {
    owner = box.parentWidget();
    box.accept();
  });
  boxes.Message(BoxIcon::None, "", "text", BoxButtons::Ok);
  EXPECT_EQ(owner, &window);
}

TEST_F(RealBoxesTest, TheEmptyTitleIsTheProgramsOwn) {
  QString title;
  WhenShown<QMessageBox>([&](QMessageBox& box) {
    title = box.windowTitle();
    box.button(QMessageBox::Ok)->click();
  });
  EXPECT_EQ(boxes.Message(BoxIcon::Information, "", "text", BoxButtons::OkCancel), BoxAnswer::Ok);
  EXPECT_EQ(title, "Veldrin");
}

TEST_F(RealBoxesTest, ABoxWithoutChoiceIsAlwaysOk) {
  WhenShown<QMessageBox>([&](QMessageBox& box) { box.reject(); });
  EXPECT_EQ(boxes.Message(BoxIcon::None, "", "text", BoxButtons::Ok), BoxAnswer::Ok);
}

TEST_F(RealBoxesTest, AFaultTellsItsNumberAndItsWords) {
  QString text;
  WhenShown<QMessageBox>([&](QMessageBox& box) {
    text = box.text();
    box.accept();
  });
  boxes.Fault(11);
  EXPECT_EQ(text, "Run-time error '11':\n\nDivision by zero");
  EXPECT_EQ(FaultText(7), "Out of memory");
  EXPECT_EQ(FaultText(51), "Internal error");
  EXPECT_EQ(FaultText(76), "Path not found");
  EXPECT_EQ(FaultText(1), "Application-defined or object-defined error");
}

TEST_F(RealBoxesTest, WhatAnEventLeftIsThrownWhenTheBoxHasClosed) {
  struct Ended {};
  boxes.closed = [] { throw Ended{}; };
  WhenShown<QMessageBox>([&](QMessageBox& box) { box.accept(); });
  EXPECT_THROW(boxes.Message(BoxIcon::None, "", "text", BoxButtons::Ok), Ended);
}

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
