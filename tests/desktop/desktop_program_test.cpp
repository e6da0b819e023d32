#include "tests/desktop/ended_program.h"

#include <QFontInfo>

#include <optional>
#include <string>

namespace veldrin {
namespace {

TEST_F(DesktopProgramTest, RunsFromTheSplashToTheEndOfTheMainWindow) {
  const int status = Run("", [&] {
    EXPECT_EQ(Main().workspace.MachineName, "NX4");
    EXPECT_EQ(TempFiles(), QStringList("VELD000.TMP"));
    FormWidget* const widget = Desktop().windows.FormOf(Main().form2);
    ASSERT_NE(widget, nullptr);
    EXPECT_TRUE(widget->isVisible());
    widget->close();
  });
  EXPECT_EQ(status, 0);
  EXPECT_TRUE(Main().ended);
  EXPECT_EQ(TempFiles(), QStringList());
}

TEST_F(DesktopProgramTest, AFaultEndsItWithAStatusOfItsOwn) {
  When([] { return OpenBox() != nullptr; },
       [] {
         EXPECT_TRUE(OpenBox()->text().startsWith("Run-time error '11'"));
         OpenBox()->accept();
       });
  const int status = Run("", [&] { Desktop().stage.input.Do([]() -> bool { throw RuntimeFault{11}; }); });
  EXPECT_EQ(status, 1);
  EXPECT_EQ(Main().endFault, 11);
}

TEST_F(DesktopProgramTest, EndedBehindAnOpenBoxItGoesOnWithNothing) {
  ExpectEndBehindAnOpenBox([this] { Desktop().EndAtOnce(); });
}

TEST_F(DesktopProgramTest, WhatItHadStillToDoGoesWithIt) {
  When([] { return true; }, [] { QCoreApplication::exit(); });
  Finish("");
  TearDown();
  SetUp();
  // Its timers would be due in the next one's time.
  QTimer::singleShot(200, qApp, [] { QCoreApplication::exit(); });
  QApplication::exec();
  EXPECT_FALSE(Main().ended);
}

TEST_F(DesktopProgramTest, AProcessWhoseDisplayIsGoneLeavesNothingBehind) {
  Run(PlanFile(), [&] {
    SetChanged(dirty::kYes);
    MoveTo(1500, 900);
    Desktop().LeaveTidy();
    ExpectStoredAndTidy();
    Desktop().LeaveTidy();
    QCoreApplication::exit();
  });
}

TEST_F(DesktopProgramTest, TheSessionMayEndWhereNothingIsLost) {
  bool mayEnd = false;
  const int status = Run(PlanFile(), [&] {
    SetChanged(dirty::kNo);
    MoveTo(1500, 900);
    mayEnd = Desktop().EndSession(true);
    EXPECT_TRUE(Desktop().EndSession(true));
  });
  EXPECT_TRUE(mayEnd);
  EXPECT_EQ(status, 0);
  ExpectStoredAndTidy();
}

TEST_F(DesktopProgramTest, TheSessionWaitsForTheAnswerWhereChangesWouldBeLost) {
  Run(PlanFile(), [&] {
    SetChanged(dirty::kYes);
    When([] { return OpenBox() != nullptr; },
         [] {
           EXPECT_TRUE(OpenBox()->text().startsWith("Now Stopped Windows Shutdown"));
           OpenBox()->accept();
         });
    EXPECT_FALSE(Desktop().EndSession(true));
    EXPECT_FALSE(Main().ended);
    EXPECT_TRUE(Main().form2.Picture20.Visible);
    Desktop().stage.input.Do([this] { return user::Click(Main().form2.Command9); });
  });
  EXPECT_TRUE(Main().ended);
  EXPECT_EQ(TempFiles(), QStringList());
}

TEST_F(DesktopProgramTest, ASessionThatAsksNobodyEndsAtOnce) {
  Run(PlanFile(), [&] {
    SetChanged(dirty::kYes);
    MoveTo(1500, 900);
    EXPECT_TRUE(Desktop().EndSession(false));
  });
  ExpectStoredAndTidy();
}

TEST_F(DesktopProgramTest, ALeftoverOfACrashKeepsNothingFromBeingStored) {
  Run(PlanFile(), [&] {
    SetChanged(dirty::kNo);
    MoveTo(1500, 900);
    Put("temp/VELD007.TMP", "left");
    Desktop().windows.FormOf(Main().form2)->close();
  });
  ExpectStoredAndTidy();
}

TEST_F(DesktopProgramTest, TheWorkingFileOfAnotherCopyStaysAndKeepsTheHistoryBack) {
  Run(PlanFile(), [&] {
    SetChanged(dirty::kNo);
    Put("temp/VELD007.TMP", "another's");
    const RealInstances other;
    Desktop().windows.FormOf(Main().form2)->close();
  });
  EXPECT_TRUE(Main().ended);
  EXPECT_EQ(TempFiles(), QStringList("VELD007.TMP"));
  EXPECT_EQ(Setting(kHistory, "1"), std::nullopt);
}

TEST_F(DesktopProgramTest, BoxesAndDialogsFollowTheZoom) {
  const double zoom = Desktop().stage.zoom.Factor();
  const double size = QFontInfo(QApplication::font()).pixelSize();
  const auto widthOfBox = [this] {
    int width = 0;
    When([] { return OpenBox() != nullptr; },
         [&] {
           width = OpenBox()->width();
           OpenBox()->accept();
         });
    Desktop().machine.boxes.Message(BoxIcon::None, "", std::string(24, 'x'), BoxButtons::Ok);
    return width;
  };
  const int width = widthOfBox();
  Desktop().stage.zoom.Set(2 * zoom);
  EXPECT_NEAR(QFontInfo(QApplication::font()).pixelSize(), 2 * size, 1);
  EXPECT_GT(widthOfBox(), 1.7 * width);
  Desktop().stage.zoom.Set(zoom);
  EXPECT_NEAR(QFontInfo(QApplication::font()).pixelSize(), size, 1);
}

}  // namespace
}  // namespace veldrin
