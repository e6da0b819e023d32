// What the desktop adds to the road from the start to the first plan.
#include "tests/desktop/running_program.h"

#include <QFile>

namespace veldrin {
namespace {

class DesktopProgramStartTest : public RunningProgramTest {
 protected:
  void Click(Control& control) {
    Desktop().stage.input.Do([&] { return user::Click(control); });
  }
  void Resize(float width, float height) {
    Desktop().stage.input.Do([&] { return user::Resize(Main().form2, width, height); });
  }
};

TEST_F(DesktopProgramStartTest, ASizeFromBeforeTheFirstPlanIsLaidOutWithIt) {
  Run("", [&] {
    Form2& form2 = Main().form2;
    Resize(13000, 9000);
    EXPECT_EQ(form2.Picture19.Width.get(), 4455) << "there is no plan";
    Click(form2.Command2);
    EXPECT_EQ(Main().workspace.ModeWord, "CHANGE");
    EXPECT_EQ(form2.Picture19.Width.get(), 13000 - 5115);
    EXPECT_EQ(form2.Picture19.Height.get(), 9000 - 540);
    EXPECT_EQ(form2.Text6.Height.get(), 9000 - 5725);
    Desktop().EndAtOnce();
  });
}

TEST_F(DesktopProgramStartTest, AWindowThatNobodyResizedStaysAsItIsDescribed) {
  Run("", [&] {
    Click(Main().form2.Command2);
    EXPECT_EQ(Main().workspace.ModeWord, "CHANGE");
    EXPECT_EQ(Main().form2.Picture19.Width.get(), 4455);
    Desktop().EndAtOnce();
  });
}

TEST_F(DesktopProgramStartTest, WithoutAnyListTheUserIsToldWhereTheyAreLookedFor) {
  QFile::remove(In("program/LIST/nx4.rat"));
  When([] { return OpenBox() != nullptr; },
       [this] {
         EXPECT_TRUE(OpenBox()->text().startsWith("No machine list (*.RAT) was found."));
         EXPECT_TRUE(OpenBox()->text().contains("share/veldrin/LIST."));
         EXPECT_TRUE(OpenBox()->text().endsWith(QString::fromStdString(Main().workspace.ListPath)));
         EXPECT_TRUE(Main().form3.Visible);
         OpenBox()->accept();
         When([] { return OpenBox() == nullptr; }, [this] { Desktop().EndAtOnce(); });
       });
  Finish("");
  EXPECT_TRUE(Main().ended);
}

TEST_F(DesktopProgramStartTest, AListUnderAnotherNameIsThereToBeChosen) {
  ASSERT_TRUE(QFile::rename(In("program/LIST/nx4.rat"), In("program/LIST/OTHER.RAT")));
  When([this] { return Main().form3.Visible.get(); },
       [this] {
         EXPECT_EQ(Main().form3.File1.entries, std::vector<std::string>{"OTHER.RAT"});
         QTimer::singleShot(50, qApp, [this] {
           EXPECT_EQ(OpenBox(), nullptr);
           Desktop().EndAtOnce();
         });
       });
  Finish("");
}

}  // namespace
}  // namespace veldrin
