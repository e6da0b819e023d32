#include "desktop/controls/list_widget.h"

#include "desktop/windows/desktop_windows.h"
#include "simulated/simulated_machine.h"
#include "tests/simulated/machine_with.h"
#include "workspace/program.h"

#include <QApplication>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace veldrin {
namespace {

struct ListForm : Window {
  explicit ListForm(Desk& theDesk)
      : Window(theDesk, "Form91", {300, 450, 6120, 5190}, {.caption = "Lists"}, true) {}

  FileBox File1{"File1", *this, {150, 150, 3000, 3000}, {.back = kWhite}};
  Button Command1{"Command1", *this, {3600, 150, 1200, 375}, {.caption = "O K"}};
};

class ListWidgetTest : public ::testing::Test {
 protected:
  ListWidgetTest() {
    for (const char* name : {"a.nx4", "b.nx4", "c.nx4"}) {
      simulated.files.AddFile(std::string("C:\\VELDRIN\\DAT\\") + name, "");
    }
    stage.input.Serve(program.get());
    form->LoadWindow();
    form->File1.Path = "C:\\VELDRIN\\DAT";
    form->File1.Click.Bind([this](int) { ++clicks; });
    form->Show();
    Widget().activateWindow();
    windows.Settle();
    QCoreApplication::processEvents();
  }

  ~ListWidgetTest() override {
    stage.input.Serve(nullptr);
    windows.Forget();
    windows.Settle();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  FormWidget& Widget() { return *windows.FormOf(*form); }
  FileListWidget& List() { return dynamic_cast<FileListWidget&>(*Widget().ViewOf(form->File1)->Widget()); }

  QPoint PointOf(int row) { return List().visualItemRect(List().item(row)).center(); }

  void Mouse(QEvent::Type type, const QPoint& point, Qt::MouseButton button) {
    QWidget& target = *List().viewport();
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
    QMouseEvent event(type, point, target.mapToGlobal(point), button, held, Qt::NoModifier);
    QApplication::sendEvent(&target, &event);
  }

  void ClickTwice(int row) {
    const QPoint point = PointOf(row);
    Mouse(QEvent::MouseButtonPress, point, Qt::LeftButton);
    Mouse(QEvent::MouseButtonRelease, point, Qt::LeftButton);
    Mouse(QEvent::MouseButtonDblClick, point, Qt::LeftButton);
    Mouse(QEvent::MouseButtonRelease, point, Qt::LeftButton);
  }

  SimulatedMachine simulated;
  Stage stage;
  DesktopWindows windows{stage};
  Machine machine = MachineWith(simulated, windows);
  std::unique_ptr<Program> program = std::make_unique<Program>(machine);
  std::shared_ptr<ListForm> form = std::make_shared<ListForm>(program->desk);
  int clicks = 0;
  std::vector<std::string> opened;
};

TEST_F(ListWidgetTest, AClickPicks) {
  Mouse(QEvent::MouseButtonPress, PointOf(1), Qt::LeftButton);
  Mouse(QEvent::MouseButtonRelease, PointOf(1), Qt::LeftButton);
  EXPECT_EQ(form->File1.FileName.get(), "b.nx4");
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(List().currentRow(), 1);
}

TEST_F(ListWidgetTest, AListThatComesIntoFocusPicksNothingByItself) {
  SetFocus(form->File1);
  windows.Settle();
  QFocusEvent event(QEvent::FocusIn, Qt::ActiveWindowFocusReason);
  QApplication::sendEvent(&List(), &event);
  EXPECT_EQ(form->File1.ListIndex.get(), -1);
  EXPECT_EQ(List().currentRow(), -1);
  EXPECT_EQ(clicks, 0);
}

TEST_F(ListWidgetTest, TheFirstKeyDownPicksTheFirstRow) {
  SetFocus(form->File1);
  windows.Settle();
  QFocusEvent came(QEvent::FocusIn, Qt::TabFocusReason);
  QApplication::sendEvent(&List(), &came);
  QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
  QApplication::sendEvent(&List(), &down);
  EXPECT_EQ(form->File1.FileName.get(), "a.nx4");
  EXPECT_EQ(List().currentRow(), 0);
}

TEST_F(ListWidgetTest, TheRightButtonLeavesTheBarOnWhatIsPicked) {
  form->File1.ListIndex = 0;
  windows.Settle();
  Mouse(QEvent::MouseButtonPress, PointOf(2), Qt::RightButton);
  Mouse(QEvent::MouseButtonRelease, PointOf(2), Qt::RightButton);
  EXPECT_EQ(form->File1.FileName.get(), "a.nx4");
  EXPECT_EQ(List().currentRow(), 0);
}

TEST_F(ListWidgetTest, AButtonThatGoesUpBesideTheListLeavesTheBarOnWhatIsPicked) {
  form->File1.ListIndex = 0;
  windows.Settle();
  Mouse(QEvent::MouseButtonPress, PointOf(2), Qt::LeftButton);
  Mouse(QEvent::MouseButtonRelease, QPoint(10, -400), Qt::LeftButton);
  EXPECT_EQ(form->File1.FileName.get(), "a.nx4");
  EXPECT_EQ(List().currentRow(), 0);
  EXPECT_EQ(List().selectedItems().size(), 1);
  EXPECT_EQ(List().row(List().selectedItems().front()), 0);
}

TEST_F(ListWidgetTest, ADoubleClickClicksOnceAndOpens) {
  form->File1.DblClick.Bind([this](int) { opened.push_back(form->File1.FileName); });
  ClickTwice(1);
  EXPECT_EQ(opened, std::vector<std::string>{"b.nx4"});
  EXPECT_EQ(clicks, 2);
  EXPECT_EQ(List().currentRow(), 1);
}

TEST_F(ListWidgetTest, AListThatItsDoubleClickReadsAgainPicksNothing) {
  form->File1.DblClick.Bind([this](int) { form->File1.Refresh(); });
  ClickTwice(2);
  EXPECT_EQ(form->File1.ListIndex.get(), -1);
  EXPECT_EQ(form->File1.FileName.get(), "");
  EXPECT_EQ(List().currentRow(), -1);
  EXPECT_EQ(clicks, 2);
}

}  // namespace
}  // namespace veldrin
