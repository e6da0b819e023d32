#include "machine/output/fault_text.h"
#include "tests/machine/output/answered_boxes.h"

#include <map>
#include <string>

namespace veldrin {
namespace {

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
}

TEST(FaultText, IsThatOfItsNumber) {
  const std::map<int, std::string> kTexts = {{5, "Invalid procedure call or argument"},
                                             {6, "Overflow"},
                                             {7, "Out of memory"},
                                             {9, "Subscript out of range"},
                                             {11, "Division by zero"},
                                             {13, "Type mismatch"},
                                             {51, "Internal error"},
                                             {52, "Bad file name or number"},
                                             {53, "File not found"},
                                             {55, "File already open"},
                                             {61, "Disk full"},
                                             {62, "Input past end of file"},
                                             {68, "Device unavailable"},
                                             {70, "Permission denied"},
                                             {71, "Disk not ready"},
                                             {75, "Path/File access error"},
                                             {76, "Path not found"},
                                             {340, "Control array element does not exist"},
                                             {380, "Invalid property value"},
                                             {1, "Application-defined or object-defined error"}};
  for (const auto& [number, text] : kTexts) EXPECT_EQ(FaultText(number), text) << number;
}

TEST_F(RealBoxesTest, WhatAnEventLeftIsThrownWhenTheBoxHasClosed) {
  struct Ended {};
  boxes.closed = [] { throw Ended{}; };
  WhenShown<QMessageBox>([&](QMessageBox& box) { box.accept(); });
  EXPECT_THROW(boxes.Message(BoxIcon::None, "", "text", BoxButtons::Ok), Ended);
}

}  // namespace
}  // namespace veldrin
