#include "desktop/windows/placement.h"
#include "dialogs/dropped_file.h"
#include "program/assemble.h"
#include "program/event_boundary.h"
#include "tests/desktop/main_window.h"
#include "tests/desktop/sample_files.h"
#include "tests/desktop/test_window.h"
#include "window_script/shown_check.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QMimeData>
#include <QProcess>
#include <QProcessEnvironment>
#include <QScreen>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QUrl>

#include <optional>
#include <utility>

/// Asks the shortcuts of the active window for a key, as the keyboard does before any widget hears of it. Qt
/// has it for its own tests; the name is Qt's.
// NOLINTNEXTLINE(readability-identifier-naming)
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* object, ulong time, int key,
                                               Qt::KeyboardModifiers modifiers, const QString& text = {},
                                               bool repeats = false, ushort count = 1);

namespace veldrin {
namespace {

class FormWidgetTest : public WidgetsTest {
 protected:
  FormWidgetTest() { ServeEvents(); }

  static void ServeEvents() {
    for (int i = 0; i < 5; ++i) QCoreApplication::processEvents();
  }

  QScrollArea& Area() { return *Widget().findChild<QScrollArea*>(); }
  QMenuBar& Bar() { return *Widget().findChild<QMenuBar*>(); }
  /// The screen inside of a frame.
  QSize ScreenSize() { return Widget().screen()->availableSize() - (Widget().frameSize() - Widget().size()); }

  void Zoom(double factor) {
    stage.zoom.Set(factor);
    ServeEvents();
  }

  void Maximise() {
    Widget().showMaximized();
    ServeEvents();
  }

  void Restore() {
    Widget().showNormal();
    ServeEvents();
    Wait(50);
  }

  /// Whether all of a control can be seen in its window.
  bool IsSeen(const Control& control) {
    QWidget& widget = WidgetOf(control);
    const QRect view = Area().viewport()->rect();
    return view.contains(QRect(widget.mapTo(Area().viewport(), QPoint(0, 0)), widget.size()));
  }

  /// The program's size in pixels, as far as it is inside of the frame.
  QSize TwipsInPixels() { return ClientPixels(*form, stage.zoom); }

  Events Differences() {
    Events names;
    for (const Mismatch& mismatch : DifferencesIn(Widget(), stage)) {
      names.push_back(mismatch.name + ": " + mismatch.slot + " / " + mismatch.shown);
    }
    return names;
  }
};

// ---- the zoom ----

TEST_F(FormWidgetTest, KeysZoom) {
  const auto press = [this](int key) {
    QWidget* const target = Widget().focusWidget() != nullptr ? Widget().focusWidget() : &Widget();
    qt_sendShortcutOverrideEvent(target, 0, key, Qt::ControlModifier);
    return stage.zoom.Factor();
  };
  EXPECT_EQ(press(Qt::Key_Plus), 1.25);
  EXPECT_EQ(press(Qt::Key_Equal), 1.5);
  EXPECT_EQ(press(Qt::Key_Minus), 1.25);
  EXPECT_EQ(press(Qt::Key_Plus), 1.5);
  EXPECT_EQ(press(Qt::Key_0), 1);
  EXPECT_EQ(press(Qt::Key_Minus), 0.75);
  EXPECT_EQ(Widget().Client().size(), QSize(300, 225));
}

TEST_F(FormWidgetTest, ZoomLeavesTheFrameWhereItIsAndTellsItsPlace) {
  Widget().move(100, 60);
  ServeEvents();
  for (const double factor : {1.25, 3.0, 0.5, 1.75, 1.0}) {
    Zoom(factor);
    EXPECT_EQ(Widget().pos(), QPoint(100, 60));
    EXPECT_FLOAT_EQ(form->Left.get(), static_cast<float>(1500 / factor));
    EXPECT_FLOAT_EQ(form->Top.get(), static_cast<float>(900 / factor));
  }
  EXPECT_EQ(form->Left.get(), 1500);
  EXPECT_EQ(form->Width.get(), 6120);
}

TEST_F(FormWidgetTest, MaximisedWindowKeepsItsPlaceThroughAZoom) {
  Widget().move(120, 60);
  ServeEvents();
  Maximise();
  Zoom(2);
  Restore();
  EXPECT_EQ(Widget().pos(), QPoint(120, 60));
  EXPECT_EQ(form->Left.get(), 900);
  EXPECT_EQ(form->Top.get(), 450);
}

// ---- maximised ----

TEST_F(FormWidgetTest, MaximisedWindowTellsItsSize) {
  Maximise();
  EXPECT_EQ(Widget().size(), ScreenSize());
  EXPECT_EQ(Widget().Client().size(), Area().viewport()->size());
  EXPECT_EQ(form->Width.get(), static_cast<float>(ScreenSize().width() * 15 + 120));
  EXPECT_EQ(Differences(), Events{});
}

TEST_F(FormWidgetTest, ZoomOfAMaximisedWindowFillsTheScreenAgain) {
  Maximise();
  for (const double factor : {1.25, 1.5, 0.5, 1.0}) {
    events.clear();
    Zoom(factor);
    EXPECT_EQ(Widget().size(), ScreenSize());
    EXPECT_EQ(Bar().width(), ScreenSize().width());
    EXPECT_EQ(Widget().Client().size(), ScreenSize() - QSize(0, Bar().height()));
    EXPECT_EQ(TwipsInPixels(), Widget().Client().size()) << factor;
    EXPECT_FALSE(Area().verticalScrollBar()->isVisible());
    EXPECT_FALSE(Area().horizontalScrollBar()->isVisible());
    EXPECT_EQ(events, Events{"Resize"});
    EXPECT_EQ(Differences(), Events{});
  }
}

TEST_F(FormWidgetTest, WindowThatWasZoomedMaximisedGetsItsNormalSizeBack) {
  const std::pair<float, float> normal = {form->Width, form->Height};
  Maximise();
  Zoom(1.25);
  Restore();
  EXPECT_EQ(form->Width.get(), normal.first);
  EXPECT_EQ(form->Height.get(), normal.second);
  EXPECT_EQ(Widget().Client().size(), QSize(500, 375));
  EXPECT_EQ(Widget().size(), Widget().Client().size() + QSize(0, Bar().height()));
  EXPECT_EQ(Differences(), Events{});
}

TEST_F(FormWidgetTest, WindowThatWasMaximisedKeepsTheSizeThatTheUserDrew) {
  Widget().resize(Widget().size() + QSize(61, 33));
  ServeEvents();
  const QSize drawn = Widget().size();
  Maximise();
  Restore();
  EXPECT_EQ(Widget().size(), drawn);
  EXPECT_EQ(TwipsInPixels(), QSize(461, 333));
  Maximise();
  Zoom(0.5);
  Restore();
  EXPECT_EQ(TwipsInPixels(), QSize(231, 167));
  EXPECT_EQ(form->Width.get(), 461 * 15 + 120);
}

TEST_F(FormWidgetTest, WindowLargerThanTheScreenKeepsTheSizeThatTheUserDrew) {
  Widget().resize(Widget().size() + QSize(61, 33));
  ServeEvents();
  Zoom(3);
  Maximise();
  Zoom(1);
  Restore();
  EXPECT_EQ(TwipsInPixels(), QSize(461, 333));
  EXPECT_EQ(Widget().Client().size(), QSize(461, 333));
}

TEST_F(FormWidgetTest, HandlerMayWishForAnotherSize) {
  form->Resize.Bind([this](int) {
    if (form->Width > 7000) form->SetSize(7000, form->Height);
  });
  Widget().resize(Widget().size() + QSize(200, 0));
  ServeEvents();
  EXPECT_EQ(form->Width.get(), 7000);
  EXPECT_EQ(Widget().width(), qRound(6880 / 15.0));
  EXPECT_EQ(Differences(), Events{});
}

TEST_F(FormWidgetTest, MaximisedWindowWithoutRoomScrolls) {
  Maximise();
  Zoom(3);
  EXPECT_EQ(Widget().size(), ScreenSize());
  EXPECT_EQ(Widget().Client().size(), QSize(1200, 900));
  EXPECT_EQ(form->Width.get(), 6120);
  EXPECT_TRUE(Area().verticalScrollBar()->isVisible());
  EXPECT_TRUE(Area().horizontalScrollBar()->isVisible());
  Zoom(1);
  EXPECT_FALSE(Area().verticalScrollBar()->isVisible());
  EXPECT_EQ(Widget().Client().size(), ScreenSize() - QSize(0, Bar().height()));
  EXPECT_EQ(Differences(), Events{});
}

TEST_F(FormWidgetTest, OneMissingSideMakesOneBar) {
  form->SetSize(6120, 12690);
  ServeEvents();
  Maximise();
  EXPECT_TRUE(Area().verticalScrollBar()->isVisible());
  EXPECT_FALSE(Area().horizontalScrollBar()->isVisible());
  EXPECT_EQ(Widget().Client().size(), QSize(ScreenSize().width() - Area().verticalScrollBar()->width(), 800));
}

TEST_F(FormWidgetTest, WindowTellsItsSizeWhenNothingModalStandsInFrontAnyMore) {
  TestForm modal(program->desk);
  Maximise();
  const float before = form->Width;
  QTimer::singleShot(0, qApp, [&] {
    Zoom(1.25);
    EXPECT_EQ(form->Width.get(), before);
    stage.input.Do([&] {
      modal.Hide();
      return true;
    });
  });
  stage.input.Do([&] {
    modal.ShowModal();
    return true;
  });
  ServeEvents();
  EXPECT_EQ(TwipsInPixels(), ScreenSize() - QSize(0, Bar().height()));
  modal.UnloadWindow();
}

TEST_F(FormWidgetTest, MinimisedWindowTakesAZoomWhenItComesBack) {
  Widget().showMinimized();
  ServeEvents();
  Zoom(1.5);
  Restore();
  EXPECT_EQ(Widget().Client().size(), QSize(600, 450));
  EXPECT_EQ(Widget().size(), Widget().Client().size() + QSize(0, Bar().height()));
  EXPECT_EQ(form->Width.get(), 6120);
  EXPECT_EQ(Differences(), Events{});
}

// ---- larger than the screen ----

TEST_F(FormWidgetTest, FocusIsScrolledTo) {
  Zoom(3);
  stage.input.Do([&] { return user::Focus(form->Command1); });
  EXPECT_TRUE(IsSeen(form->Command1));
  stage.input.Do([&] { return user::Focus(form->Combo2); });
  EXPECT_TRUE(IsSeen(form->Combo2));
  EXPECT_FALSE(IsSeen(form->Command1));
  stage.input.Do([&] { return user::Focus(form->Command1); });
  EXPECT_TRUE(IsSeen(form->Command1));
}

TEST_F(FormWidgetTest, ZoomKeepsTheFocusInSight) {
  stage.input.Do([&] { return user::Focus(form->Combo2); });
  Zoom(3);
  EXPECT_TRUE(IsSeen(form->Combo2));
}

TEST_F(FormWidgetTest, WindowThatOpensTooLargeShowsItsFocus) {
  Zoom(3);
  TestForm other(program->desk);
  other.LoadWindow();
  other.MoveFocus(&other.Combo2);
  other.Show();
  ServeEvents();
  FormWidget& widget = *windows.FormOf(other);
  QWidget& combo = *widget.ViewOf(other.Combo2)->Widget();
  const QScrollArea& area = *widget.findChild<QScrollArea*>();
  EXPECT_TRUE(area.viewport()->rect().contains(combo.mapTo(area.viewport(), combo.rect().center())));
  other.UnloadWindow();
}

TEST_F(FormWidgetTest, PanelThatComesToTheFrontIsScrolledTo) {
  Zoom(3);
  ASSERT_FALSE(IsSeen(form->Picture1));
  stage.input.Do([&] {
    form->Picture1.BringToFront();
    return true;
  });
  EXPECT_TRUE(IsSeen(form->Picture1));
}

TEST_F(FormWidgetTest, HiddenPanelThatComesToTheFrontIsNot) {
  Zoom(3);
  form->Picture1.Visible = false;
  stage.input.Do([&] {
    form->Picture1.BringToFront();
    return true;
  });
  EXPECT_EQ(Area().verticalScrollBar()->value(), 0);
}

TEST_F(FormWidgetTest, WheelScrollsWhereNoControlHasAUseForIt) {
  Zoom(3);
  const QScrollBar& down = *Area().verticalScrollBar();
  for (QWidget* widget :
       {&WidgetOf(form->Label1), &WidgetOf(form->Command1), &WidgetOf(form->Text1), &WidgetOf(form->Picture1),
        &WidgetOf(form->Option1[1]), &TargetOf(form->Text3), static_cast<QWidget*>(&Widget().Client())}) {
    const int before = down.value();
    Wheel(*widget, -1);
    EXPECT_GT(down.value(), before) << widget->objectName().toStdString();
    Wheel(*widget, 1);
    EXPECT_EQ(down.value(), before);
    Wheel(*widget, 1);  // at the end
    EXPECT_EQ(down.value(), before);
  }
  form->Command1.Enabled = false;
  Wheel(WidgetOf(form->Command1), -1);
  EXPECT_GT(down.value(), 0);
}

TEST_F(FormWidgetTest, ControlsKeepTheWheelThatTheyUse) {
  Zoom(3);
  Wheel(WidgetOf(form->Spin1), -1);
  EXPECT_EQ(events, Events{"Spin1.SpinDown"});
  EXPECT_EQ(Area().verticalScrollBar()->value(), 0);
}

TEST_F(FormWidgetTest, WheelWithShiftScrollsAcross) {
  Zoom(3);
  QWidget& client = Widget().Client();
  QWheelEvent event(QPointF(5, 5), client.mapToGlobal(QPointF(5, 5)), {}, QPoint(0, -120), Qt::NoButton,
                    Qt::ShiftModifier, Qt::NoScrollPhase, false);
  QApplication::sendEvent(&client, &event);
  EXPECT_GT(Area().horizontalScrollBar()->value(), 0);
  EXPECT_EQ(Area().verticalScrollBar()->value(), 0);
}

TEST_F(FormWidgetTest, WheelDoesNothingWhereThereIsRoom) {
  Wheel(WidgetOf(form->Label1), -1);
  EXPECT_EQ(Area().verticalScrollBar()->value(), 0);
  EXPECT_EQ(WidgetOf(form->Label1).mapTo(Area().viewport(), QPoint(0, 0)), QPoint(10, 10));
}

TEST_F(FormWidgetTest, WindowLargerThanTheScreenCanBeMaximisedAndRestored) {
  Zoom(3);
  const QSize before = Widget().size();
  Maximise();
  EXPECT_EQ(Widget().size(), ScreenSize());
  EXPECT_EQ(Widget().Client().size(), QSize(1200, 900));
  Restore();
  EXPECT_EQ(Widget().size(), before);
  Maximise();
  Zoom(1);
  Restore();
  EXPECT_EQ(Widget().Client().size(), QSize(400, 300));
  EXPECT_EQ(Widget().size(), QSize(400, 300 + Bar().height()));
  EXPECT_EQ(form->Width.get(), 6120);
  EXPECT_EQ(Differences(), Events{});
}

// ---- on the screen ----

TEST_F(FormWidgetTest, TitleBarIsInReachWhenAWindowIsShown) {
  form->Hide();
  form->Left = 90000;
  form->Top = -9000;
  form->Show();
  ServeEvents();
  const QRect screen = Widget().screen()->availableGeometry();
  EXPECT_TRUE(screen.contains(Widget().geometry()));
}

/// What holds on every screen; run again below where the primary one begins elsewhere.
class OriginTest : public FormWidgetTest {
 protected:
  static QRect Primary() { return QGuiApplication::primaryScreen()->geometry(); }
  QPoint CornerInTwips() const { return {qRound(form->Left.get()), qRound(form->Top.get())}; }
};

TEST_F(OriginTest, PlacesAreCountedFromWhereThePrimaryScreenBegins) {
  form->Left = 1500;
  form->Top = 900;
  ServeEvents();
  EXPECT_EQ(Widget().pos(), Primary().topLeft() + QPoint(100, 60));
  form->Left = (Primary().width() * 15.0F - form->Width) / 2;
  form->Top = (Primary().height() * 15.0F - form->Height) / 2;
  ServeEvents();
  EXPECT_LE((Widget().geometry().center() - Primary().center()).manhattanLength(), 60);
}

TEST_F(OriginTest, PlaceThatIsToldIsThePlaceThatWasMovedTo) {
  Widget().move(Primary().topLeft() + QPoint(120, 45));
  ServeEvents();
  EXPECT_EQ(CornerInTwips(), QPoint(1800, 675));
  for (const double factor : {1.5, 0.5, 1.0}) {
    Zoom(factor);
    EXPECT_EQ(Widget().pos(), Primary().topLeft() + QPoint(120, 45));
    EXPECT_EQ(CornerInTwips(), QPoint(qRound(1800 / factor), qRound(675 / factor)));
  }
  const float left = form->Left;
  form->Left = 0;
  form->Left = left;
  ServeEvents();
  EXPECT_EQ(Widget().pos(), Primary().topLeft() + QPoint(120, 45));
}

TEST_F(OriginTest, WindowIsShownWhereTheProgramPutIt) {
  form->Hide();
  form->Left = 1500;
  form->Top = 1500;
  form->Show();
  ServeEvents();
  EXPECT_EQ(Widget().pos(), Primary().topLeft() + QPoint(100, 100));
  windows.SetEllipticRegion(*form, 10, 20, 110, 80);
  EXPECT_EQ(Widget().geometry(), QRect(Primary().topLeft() + QPoint(110, 120), QSize(100, 60)));
}

TEST(OriginOfScreens, PrimaryScreenMayBeginAnywhere) {
  const QString platform = qEnvironmentVariable("QT_QPA_PLATFORM");
  if (platform != "offscreen") GTEST_SKIP() << "screens are made up by the platform without any";
  const QTemporaryDir folder;
  const QString name = folder.filePath("screens.json");
  QFile screens(name);
  ASSERT_TRUE(screens.open(QIODevice::WriteOnly));
  screens.write(R"({"synchronousWindowSystemEvents": false, "windowFrameMargins": false, "screens": [
      {"name": "first", "x": 1920, "y": 300, "width": 1600, "height": 1200,
       "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1},
      {"name": "second", "x": 0, "y": 0, "width": 1920, "height": 1080,
       "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
  screens.close();
  QProcess again;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert("QT_QPA_PLATFORM", "offscreen:configfile=" + name);
  again.setProcessEnvironment(environment);
  again.setProcessChannelMode(QProcess::MergedChannels);
  again.start(QCoreApplication::applicationFilePath(), {"--gtest_filter=OriginTest.*"});
  ASSERT_TRUE(again.waitForFinished());
  EXPECT_EQ(again.exitCode(), 0) << again.readAll().toStdString();
}

TEST(CornerInReach, LeavesAFrameThatCanBeTaken) {
  const QList<QRect> screens = {{0, 0, 1000, 700}, {1000, 100, 800, 600}};
  for (const QPoint corner : {QPoint(0, 0), QPoint(-300, 5), QPoint(920, 668), QPoint(1700, 100)}) {
    EXPECT_EQ(CornerInReach({corner, QSize(400, 300)}, 32, screens), corner);
  }
  EXPECT_EQ(CornerInReach({5000, 5000, 400, 300}, 32, {}), QPoint(5000, 5000));
}

TEST(CornerInReach, BringsOthersOntoTheNearestScreen) {
  const QList<QRect> screens = {{0, 0, 1000, 700}, {1000, 100, 800, 600}};
  const auto corner = [&](int x, int y) { return CornerInReach({x, y, 400, 300}, 32, screens); };
  EXPECT_EQ(corner(-350, 5), QPoint(0, 5));
  EXPECT_EQ(corner(200, -10), QPoint(200, 0));
  EXPECT_EQ(corner(200, 690), QPoint(200, 400));
  EXPECT_EQ(corner(1900, 50), QPoint(1400, 100));
  EXPECT_EQ(corner(9000, 9000), QPoint(1400, 400));
  // One that is larger than the screen shows its left top.
  EXPECT_EQ(CornerInReach({-2000, -50, 1500, 900}, 32, screens), QPoint(0, 0));
}

// ---- files that are dropped on the main window ----

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
  EXPECT_EQ(opened, Paths{"/tmp/a.nx4"});
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
  program->form2.Picture20.Visible = true;
  EXPECT_FALSE(Enter(Widget().Client(), *file));
  EXPECT_FALSE(Enter(Remark(), *file));
  EXPECT_FALSE(Drop(*file));
  program->form2.Picture20.Visible = false;
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
  program->form2.Picture20.Visible = true;
  QCoreApplication::processEvents();
  EXPECT_EQ(opened, Paths{});
}

}  // namespace
}  // namespace veldrin
