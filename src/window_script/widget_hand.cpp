#include "window_script/widget_hand.h"

#include "desktop/controls/combo_widget.h"
#include "desktop/controls/grid_widget.h"
#include "desktop/controls/list_widget.h"
#include "desktop/controls/menu_view.h"
#include "desktop/controls/scroll_bar_widget.h"
#include "desktop/controls/spin_widget.h"
#include "desktop/controls/text_box_widget.h"
#include "desktop/input/keys.h"
#include "machine/output/real_pictures.h"
#include "machine/painting/text_ends.h"
#include "runtime/text.h"
#include "simulated/simulated_machine.h"
#include "window_script/shown_check.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <utility>

namespace veldrin {

namespace {

void SendMouse(QWidget& widget, QEvent::Type type, const QPoint& point, Qt::MouseButton button) {
  const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : button;
  QMouseEvent event(type, point, widget.mapToGlobal(point), button, held, Qt::NoModifier);
  QApplication::sendEvent(&widget, &event);
}

/// What the pointer hits of a widget.
QWidget& TargetOf(ControlView& view) {
  auto* area = qobject_cast<QAbstractScrollArea*>(view.Widget());
  return area != nullptr ? *area->viewport() : *view.Widget();
}

/// Lists, whose own clicks pick something, and what has no event of the mouse.
bool IsPickedFrom(const Control& control) {
  switch (control.kind) {
    case ControlKind::ScrollBar:
    case ControlKind::SpinButton:
    case ControlKind::Grid:
    case ControlKind::ComboBox:
    case ControlKind::DriveBox:
    case ControlKind::FolderBox:
    case ControlKind::FileBox:
      return true;
    default:
      return false;
  }
}

/// Brings text as an input method does, in the place of all the text or behind it.
void BringText(QWidget& widget, const QString& text, bool behind) {
  if (auto* line = qobject_cast<QLineEdit*>(&widget)) {
    behind ? line->end(false) : line->selectAll();
  } else if (auto* area = qobject_cast<QPlainTextEdit*>(&widget)) {
    behind ? area->moveCursor(QTextCursor::End) : area->selectAll();
  }
  QInputMethodEvent event;
  event.setCommitString(text);
  QApplication::sendEvent(&widget, &event);
}

}  // namespace

WidgetHand::WidgetHand(double zoom) {
  stage_.servesTimers = false;
  stage_.buildsAtOnce = true;
  stage_.zoom.Set(zoom);
}

Machine& WidgetHand::MachineOf(SimulatedMachine& simulated) {
  scriptWindows_.emplace(simulated.windows, windows_);
  Machine& all = simulated.machine;
  machine_.emplace(Machine{all.files, all.registry, all.profile, all.environment, all.instances, all.screen,
                           *scriptWindows_, all.boxes, all.notices, all.metrics, all.printer, all.pictures,
                           all.shell, all.sound, all.figures});
  return *machine_;
}

void WidgetHand::ProgramMade(Program& program) {
  stage_.input.Serve(&program);
  told_.clear();
}

void WidgetHand::ProgramGone(Program& /*program*/) {
  stage_.input.Serve(nullptr);
  // What nobody took a picture of is painted at least once.
  QCoreApplication::processEvents();
  windows_.Forget();
  windows_.Settle();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  QCoreApplication::processEvents();
}

ControlView* WidgetHand::ViewOf(const Control& control) const {
  FormWidget* const form = windows_.FormOf(control.window);
  if (form == nullptr) return nullptr;
  return &control == &control.window ? &form->Client() : form->ViewOf(control);
}

bool WidgetHand::ClickAt(QWidget& widget, const QPoint& point, int button, bool twice) {
  const Qt::MouseButton qtButton = button == kRightButton ? Qt::RightButton : Qt::LeftButton;
  const auto send = [&](QEvent::Type down) {
    return Through([&] {
      SendMouse(widget, down, point, qtButton);
      SendMouse(widget, QEvent::MouseButtonRelease, point, qtButton);
    });
  };
  const bool done = send(QEvent::MouseButtonPress);
  if (done && twice) send(QEvent::MouseButtonDblClick);
  return done;
}

bool WidgetHand::Click(Program& program, Control& control, int button) {
  ControlView* const view = ViewOf(control);
  if (view == nullptr || IsPickedFrom(control)) return ScriptHand::Click(program, control, button);
  if (control.kind == ControlKind::Menu) {
    // An action that is off does nothing when it is triggered; one in a menu that is off does.
    if (button != kLeftButton) return ScriptHand::Click(program, control, button);
    return Through([&] { static_cast<MenuView*>(view)->Action().trigger(); });
  }
  QWidget& target = TargetOf(*view);
  return ClickAt(target, target.rect().center(), button);
}

bool WidgetHand::DoubleClick(Program& program, Control& control) {
  ControlView* const view = ViewOf(control);
  const bool clicks = view != nullptr && view->Widget() != nullptr && !IsPickedFrom(control);
  if (!clicks || control.FindEvent("DblClick") == nullptr) return ScriptHand::DoubleClick(program, control);
  QWidget& target = TargetOf(*view);
  return ClickAt(target, target.rect().center(), kLeftButton, true);
}

bool WidgetHand::DoubleClickEntry(Program& program, FileBox& box, const std::string& entry) {
  auto* list = dynamic_cast<FileListWidget*>(ViewOf(box));
  const auto found =
      list == nullptr ? QList<QListWidgetItem*>() : list->findItems(ToWidgetText(entry), Qt::MatchExactly);
  if (found.empty()) return ScriptHand::DoubleClickEntry(program, box, entry);
  list->scrollToItem(found.first());
  return ClickAt(*list->viewport(), list->visualItemRect(found.first()).center(), kLeftButton, true);
}

bool WidgetHand::PressKey(Program& program, Control& control, int key) {
  ControlView* const view = ViewOf(control);
  const int qtKey = QtKey(key);
  if (view == nullptr || qtKey == 0 || key == kKeyTab) return ScriptHand::PressKey(program, control, key);
  return Through([&] {
    stage_.keysAlone = true;
    QKeyEvent event(QEvent::KeyPress, qtKey, Qt::NoModifier);
    QApplication::sendEvent(view->Widget(), &event);
    stage_.keysAlone = false;
  });
}

QWidget* WidgetHand::BoxFor(const Control& control, const std::string& text) const {
  ControlView* const view = ViewOf(control);
  if (view == nullptr || text.empty() || !user::Reachable(control)) return nullptr;
  if (auto* area = dynamic_cast<TextAreaWidget*>(view)) return area;
  if (text.find_first_of("\r\n") != std::string::npos) return nullptr;
  auto* combo = dynamic_cast<ComboWidget*>(view);
  return combo != nullptr ? combo->lineEdit() : view->Widget();
}

bool WidgetHand::EnterText(Program& program, Control& control, const std::string& text) {
  QWidget* const box = BoxFor(control, text);
  if (box == nullptr) return ScriptHand::EnterText(program, control, text);
  return Through([&] { BringText(*box, ToWidgetText(text), false); });
}

bool WidgetHand::TypeText(Program& program, Control& control, const std::string& text) {
  QWidget* const box = BoxFor(control, text);
  if (box == nullptr) return ScriptHand::TypeText(program, control, text);
  bool done = false;
  for (const std::string& character : Characters(ToWidgetText(text).toStdString())) {
    if (done && (program.ended || !user::Reachable(control))) break;
    done = Through([&] { BringText(*box, QString::fromStdString(character), true); });
  }
  return done;
}

bool WidgetHand::SelectEntry(Program& program, Control& control, const std::string& entry) {
  ControlView* const view = ViewOf(control);
  const QString text = ToWidgetText(entry);
  if (auto* combo = dynamic_cast<ComboWidget*>(view); combo != nullptr && combo->isEnabled()) {
    const int place = combo->findText(text, Qt::MatchFixedString | Qt::MatchCaseSensitive);
    if (place >= 0 && user::Reachable(control)) {
      return Through([&] {
        combo->setCurrentIndex(place);
        Q_EMIT combo->activated(place);
      });
    }
  }
  if (auto* list = dynamic_cast<FileListWidget*>(view)) {
    const auto found = list->findItems(text, Qt::MatchExactly | Qt::MatchCaseSensitive);
    if (!found.empty()) {
      list->scrollToItem(found.first());
      return ClickAt(*list->viewport(), list->visualItemRect(found.first()).center(), kLeftButton);
    }
  }
  return ScriptHand::SelectEntry(program, control, entry);
}

bool WidgetHand::OpenFolder(Program& program, FolderBox& box, const std::string& path) {
  auto* list = dynamic_cast<FolderListWidget*>(ViewOf(box));
  const int row = list == nullptr ? -1 : list->RowOf(path, 0);
  if (row < 0) return ScriptHand::OpenFolder(program, box, path);
  list->scrollToItem(list->item(row));
  return Through([&] {
    const QPoint point = list->visualItemRect(list->item(row)).center();
    SendMouse(*list->viewport(), QEvent::MouseButtonDblClick, point, Qt::LeftButton);
    SendMouse(*list->viewport(), QEvent::MouseButtonRelease, point, Qt::LeftButton);
  });
}

bool WidgetHand::HighlightFolder(Program& program, FolderBox& box, const std::string& folder) {
  auto* list = dynamic_cast<FolderListWidget*>(ViewOf(box));
  const int row = list == nullptr ? -1 : list->RowOf(folder, list->OpenRow());
  if (row < 0) return ScriptHand::HighlightFolder(program, box, folder);
  list->scrollToItem(list->item(row));
  return ClickAt(*list->viewport(), list->visualItemRect(list->item(row)).center(), kLeftButton);
}

bool WidgetHand::PickCell(Program& program, Grid& grid, int row, int column) {
  auto* table = dynamic_cast<GridWidget*>(ViewOf(grid));
  QTableWidgetItem* const cell = table == nullptr ? nullptr : table->item(row, column);
  if (cell == nullptr) return ScriptHand::PickCell(program, grid, row, column);
  table->scrollToItem(cell);
  return ClickAt(*table->viewport(), table->visualItemRect(cell).center(), kLeftButton);
}

bool WidgetHand::Spin(Program& program, SpinButton& spin, bool up) {
  auto* widget = dynamic_cast<SpinWidget*>(ViewOf(spin));
  if (widget == nullptr) return ScriptHand::Spin(program, spin, up);
  return ClickAt(*widget, widget->ArrowRect(up).center(), kLeftButton);
}

bool WidgetHand::ScrollTo(Program& program, ScrollBar& bar, int value) {
  auto* widget = dynamic_cast<ScrollBarWidget*>(ViewOf(bar));
  // A bar that stands there already signals nothing.
  const bool moves = widget != nullptr && user::Reachable(bar) && value >= widget->minimum() &&
                     value <= widget->maximum() && value != widget->value();
  if (!moves) return ScriptHand::ScrollTo(program, bar, value);
  return Through([&] { widget->setValue(value); });
}

bool WidgetHand::Screenshot(Program& /*program*/, Window& window, const std::string& file) {
  FormWidget* const form = windows_.FormOf(window);
  if (form == nullptr || !form->isVisible()) return false;
  windows_.Settle();
  QCoreApplication::processEvents();
  stage_.input.RethrowCaught();
  return form->Picture().save(QString::fromStdString(file), "PNG");
}

bool WidgetHand::Screenshot(const SimulatedBitmap& bitmap, const std::string& file) {
  const QSizeF surface(bitmap.surfaceWidth, bitmap.surfaceHeight);
  return PictureOf(bitmap.drawing, surface, bitmap.width, bitmap.height)
      .save(QString::fromStdString(file), "PNG");
}

std::vector<Mismatch> WidgetHand::Mismatches() {
  const Program* program = stage_.input.Served();
  if (program == nullptr || program->ended) return {};
  windows_.Settle();
  std::vector<Mismatch> fresh;
  std::set<std::string> standing;
  for (const auto& form : windows_.Forms()) {
    for (Mismatch& mismatch : DifferencesIn(*form, stage_)) {
      const std::string line = mismatch.name + "\n" + mismatch.slot + "\n" + mismatch.shown;
      standing.insert(line);
      if (told_.count(line) == 0) fresh.push_back(std::move(mismatch));
    }
  }
  told_ = std::move(standing);
  return fresh;
}

}  // namespace veldrin
