#include "desktop/controls/list_widget.h"
#include "tests/desktop/test_window.h"

namespace veldrin {
namespace {

struct FolderForm : Window {
  explicit FolderForm(Desk& theDesk)
      : Window(theDesk, "Form91", {300, 450, 6120, 5190}, {.caption = "Folders"}, true) {}

  FolderBox Dir1{"Dir1", *this, {150, 150, 3000, 3000}, {.back = kWhite}};
  Button Command1{"Command1", *this, {3600, 150, 1200, 375}, {.caption = "O K"}};
};

class FolderListWidgetTest : public WidgetsTest {
 protected:
  FolderListWidgetTest() {
    for (const char* folder : {"A\\X1", "A\\X2", "A\\X3", "B", "C\\Y1", "C\\Y2", "C\\Y3"}) {
      simulated.files.AddFile(std::string("C:\\DEEP\\") + folder + "\\file", "");
    }
    folders->LoadWindow();
    folders->Dir1.Path = "C:\\DEEP";
    folders->Dir1.Click.Bind([this](int) { events.push_back("Click"); });
    folders->Dir1.Change.Bind([this](int) { events.push_back("Change"); });
    folders->Show();
    windows.Settle();
    QCoreApplication::processEvents();
  }

  ~FolderListWidgetTest() override { folders->UnloadWindow(); }

  FolderListWidget& List() {
    return dynamic_cast<FolderListWidget&>(*windows.FormOf(*folders)->ViewOf(folders->Dir1)->Widget());
  }

  void ClickAt(const std::string& path, bool twice = false) {
    QWidget& target = *List().viewport();
    const QPoint point = List().visualItemRect(List().item(List().RowOf(path, 0))).center();
    Mouse(target, QEvent::MouseButtonPress, point);
    Mouse(target, QEvent::MouseButtonRelease, point);
    if (!twice) return;
    Mouse(target, QEvent::MouseButtonDblClick, point);
    Mouse(target, QEvent::MouseButtonRelease, point);
  }

  std::string Path() const { return folders->Dir1.Path; }
  int Highlighted() const { return folders->Dir1.ListIndex; }

  std::shared_ptr<FolderForm> folders = std::make_shared<FolderForm>(program->desk);
};

TEST_F(FolderListWidgetTest, AClickHighlights) {
  ClickAt("C:\\DEEP\\B");
  EXPECT_EQ(Highlighted(), 1);
  EXPECT_EQ(Path(), "C:\\DEEP");
  EXPECT_EQ(events, Events{"Click"});
}

TEST_F(FolderListWidgetTest, ADoubleClickOpensAndHighlightsNothingInTheNewList) {
  for (const char* folder : {"C:\\DEEP\\A", "C:\\DEEP\\C"}) {
    folders->Dir1.Path = "C:\\DEEP";
    Settle();
    events.clear();
    ClickAt(folder, true);
    EXPECT_EQ(Path(), folder);
    EXPECT_EQ(Highlighted(), -1);
    EXPECT_EQ(List().currentRow(), List().OpenRow());
    EXPECT_EQ(events, (Events{"Click", "Change"}));
  }
}

TEST_F(FolderListWidgetTest, ADoubleClickGoesUpAgain) {
  folders->Dir1.Path = "C:\\DEEP\\A";
  Settle();
  events.clear();
  ClickAt("C:\\", true);
  EXPECT_EQ(Path(), "C:\\");
  EXPECT_EQ(Highlighted(), -1);
  EXPECT_EQ(List().currentRow(), List().OpenRow());
  EXPECT_EQ(events, Events{"Change"});
}

TEST_F(FolderListWidgetTest, ArrowsHighlightBehindADoubleClick) {
  ClickAt("C:\\DEEP\\C", true);
  QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
  QApplication::sendEvent(&List(), &down);
  EXPECT_EQ(Highlighted(), 0);
  EXPECT_EQ(Path(), "C:\\DEEP\\C");
}

}  // namespace
}  // namespace veldrin
