// Files that are dropped on the main window.
#include "dialogs/dropped_file.h"
#include "program/event_boundary.h"
#include "tests/desktop/main_window.h"
#include "workspace/decision_panel/decision_panel.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QTemporaryDir>
#include <QUrl>

#include <memory>
#include <string>
#include <vector>

namespace veldrin {
namespace {

class DropTest : public MainWindowTest {
 protected:
  DropTest() {
    stage.fileDropped = [this](const std::string& path) { opened.push_back(path); };
  }

  /// A drag that was not dropped leaves: Qt keeps the widget below it until then, and would hand it the next
  /// drop.
  ~DropTest() override {
    QDragLeaveEvent leave;
    QApplication::sendEvent(&Widget(), &leave);
  }

  QWidget& Remark() { return *dynamic_cast<QAbstractScrollArea&>(WidgetOf(program->form2.Text6)).viewport(); }

  static QMimeData* Files(const QList<QUrl>& urls) {
    auto* data = new QMimeData;
    data->setUrls(urls);
    return data;
  }

  /// Drags something over a widget. Whether anybody would take it.
  static bool Enter(QWidget& widget, const QMimeData& data) {
    QDragEnterEvent event(widget.rect().center(), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                          Qt::NoModifier);
    event.ignore();
    QApplication::sendEvent(&widget, &event);
    return event.isAccepted();
  }

  bool Drop(const QMimeData& data) {
    QDropEvent event(Widget().rect().center(), Qt::CopyAction | Qt::MoveAction, &data, Qt::LeftButton,
                     Qt::NoModifier);
    event.ignore();
    QApplication::sendEvent(&Widget(), &event);
    // Whoever drags a file must not be told that it may go.
    if (event.isAccepted() && event.dropAction() != Qt::CopyAction) ADD_FAILURE() << event.dropAction();
    return event.isAccepted();
  }

  std::unique_ptr<QMimeData> file{Files({QUrl::fromLocalFile("/tmp/a.nx4")})};
  std::unique_ptr<QMimeData> files{
      Files({QUrl::fromLocalFile("/tmp/a.nx4"), QUrl::fromLocalFile("/tmp/b.nx4")})};
  std::vector<std::string> opened;
};

using Paths = std::vector<std::string>;

TEST_F(DropTest, FileIsOpenedBehindTheDrop) {
  ASSERT_TRUE(Enter(Widget().Client(), *file));
  ASSERT_TRUE(Drop(*file));
  EXPECT_EQ(opened, Paths{});
  QCoreApplication::processEvents();
  EXPECT_EQ(opened, Paths{QDir::toNativeSeparators("/tmp/a.nx4").toStdString()});
}

TEST_F(DropTest, SeveralFilesAndOtherThingsAreNotTaken) {
  QMimeData text;
  text.setText("/tmp/a.nx4");
  const std::unique_ptr<QMimeData> link(Files({QUrl("https://example.org/a.nx4")}));
  for (const QMimeData* data : {files.get(), &text, link.get()}) {
    EXPECT_FALSE(Enter(Widget().Client(), *data));
    EXPECT_FALSE(Drop(*data));
  }
  QCoreApplication::processEvents();
  EXPECT_EQ(opened, Paths{});
}

TEST_F(DropTest, FilesOverTextBoxesAreTheWindows) {
  for (QWidget* box : {&Remark(), &WidgetOf(program->form2.Text2), &WidgetOf(program->form2.Text4)}) {
    ASSERT_TRUE(box->isVisible());
    EXPECT_TRUE(Enter(*box, *file));
    EXPECT_FALSE(Enter(*box, *files));
  }
  EXPECT_EQ(program->form2.Text6.Text.get(), "remark");
}

TEST_F(DropTest, TextBoxesTakeText) {
  QMimeData text;
  text.setText("text");
  EXPECT_TRUE(Enter(Remark(), text));
  EXPECT_TRUE(Enter(WidgetOf(program->form2.Text2), text));
}

TEST_F(DropTest, NothingIsTakenWhileAQuestionStands) {
  AskQuestion(*program, Question::QuitWithChanges);
  EXPECT_FALSE(Enter(Widget().Client(), *file));
  EXPECT_FALSE(Enter(Remark(), *file));
  EXPECT_FALSE(Drop(*file));
  DropQuestion(*program);
  EXPECT_TRUE(Enter(Widget().Client(), *file));
}

TEST_F(DropTest, NothingIsTakenWhileTheMenuOfFilesIsOff) {
  program->form2.menu_file.Enabled = false;
  EXPECT_FALSE(Enter(Widget().Client(), *file));
  EXPECT_FALSE(Drop(*file));
}

TEST_F(DropTest, NothingIsTakenInsideOfAnEvent) {
  stage.input.Do([&] {
    EXPECT_FALSE(Enter(Widget().Client(), *file));
    EXPECT_FALSE(Drop(*file));
    return true;
  });
}

TEST_F(DropTest, WhatWasDroppedBeforeAQuestionCameIsNotOpened) {
  ASSERT_TRUE(Enter(Widget().Client(), *file));
  ASSERT_TRUE(Drop(*file));
  AskQuestion(*program, Question::QuitWithChanges);
  QCoreApplication::processEvents();
  EXPECT_EQ(opened, Paths{});
}

}  // namespace
}  // namespace veldrin
