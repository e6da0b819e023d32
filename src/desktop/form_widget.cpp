#include "desktop/form_widget.h"

#include "desktop/fonts.h"
#include "desktop/keyboard.h"
#include "desktop/menu_view.h"
#include "desktop/placement.h"
#include "desktop/view_factory.h"

#include <QCloseEvent>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QGuiApplication>
#include <QMimeData>
#include <QScreen>
#include <QShortcut>
#include <QWindow>

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace veldrin {

namespace {

constexpr float kMenuFontSize = 9;
constexpr int kSmallestPixels = 160;
/// What a window's real frame and the desktop's bars may take of the screen.
constexpr QSize kFrameRoom(16, 48);

Qt::WindowFlags FlagsFor(const Window& window) {
  return window.hasFrame ? Qt::Window : Qt::Window | Qt::FramelessWindowHint;
}

// Qt writes its own mark for changed documents where a title has the first of these.
const QString kMark = QStringLiteral("[*]");
const QString kMarkItself = QStringLiteral("[*][*]");

std::string DroppedPath(const QDropEvent& event) {
  const QList<QUrl> urls = event.mimeData()->urls();
  return urls.size() == 1 && urls[0].isLocalFile() ? urls[0].toLocalFile().toStdString() : "";
}

}  // namespace

FormWidget::FormWidget(Window& window, Stage& stage)
    : QWidget(nullptr, FlagsFor(window)),
      window_(&window),
      stage_(&stage),
      scroll_(new QScrollArea(this)),
      client_(new ClientArea(window, stage, nullptr)) {
  const Applying applying(stage);
  setObjectName(QString::fromStdString(window.name));
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setWidget(client_);
  client_->TakeAll();
  if (window.hasMenu) {
    menuBar_ = new QMenuBar(this);
    menuBar_->setNativeMenuBar(false);
    setAcceptDrops(true);
  }
  MakeMissingViews();
  Stack(window);
  TakeWindowSlot("Caption");
  Rescale();
  TakePosition();
  if (window.hasFrame) AddZoomKeys();
}

FormWidget::~FormWidget() = default;

void FormWidget::LetGo() {
  const Applying applying(*stage_);
  for (const auto& [control, view] : viewOf_) view->LetGo();
  client_->LetGo();
  window_ = nullptr;
  hide();
  owned_.clear();
}

void FormWidget::AddZoomKeys() {
  const auto add = [this](const QKeySequence& keys, auto change) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, change);
  };
  for (const auto key : {Qt::Key_Plus, Qt::Key_Equal}) {
    add(QKeySequence(Qt::CTRL | key), [this] { stage_->zoom.Enlarge(); });
  }
  add(QKeySequence(Qt::CTRL | Qt::Key_Minus), [this] { stage_->zoom.Reduce(); });
  add(QKeySequence(Qt::CTRL | Qt::Key_0), [this] { stage_->zoom.Set(1); });
}

// ---- the controls ----

ControlView* FormWidget::ViewOf(const Control& control) const {
  const auto found = viewOf_.find(&control);
  return found == viewOf_.end() ? nullptr : found->second;
}

void FormWidget::MakeMissingViews() {
  for (Control* control : window_->controls) {
    if (viewOf_.count(control) != 0) continue;
    ControlView* around = control->parent == window_ ? nullptr : ViewOf(*control->parent);
    QWidget* const parent = around != nullptr && around->Widget() != nullptr ? around->Widget() : client_;
    NewView made = MakeView(*control, *stage_, parent);
    if (made.view == nullptr) continue;
    viewOf_[control] = made.view;
    if (made.owned) owned_.push_back(std::move(made.owned));
    made.view->TakeAll();
  }
  known_ = window_->controls;
  told_ = known_.size();
  ArrangeMenus();
}

/// A control that is gone may be inside one of its own events: its widget is deleted when that is over.
void FormWidget::DropLostViews() {
  const std::unordered_set<const Control*> there(window_->controls.begin(), window_->controls.end());
  for (auto entry = viewOf_.begin(); entry != viewOf_.end();) {
    if (there.count(entry->first) != 0) {
      ++entry;
      continue;
    }
    ControlView* const view = entry->second;
    view->LetGo();
    if (QWidget* widget = view->Widget()) {
      widget->hide();
      widget->deleteLater();
    }
    entry = viewOf_.erase(entry);
  }
}

void FormWidget::FollowControls() {
  if (window_->controls == known_) return;
  const Applying applying(*stage_);
  DropLostViews();
  MakeMissingViews();
}

void FormWidget::ArrangeMenus() {
  if (menuBar_ == nullptr) return;
  const auto actionsOf = [this](const Control& parent) {
    QList<QAction*> actions;
    for (const Control* child : parent.children) {
      auto* view = child->kind == ControlKind::Menu ? dynamic_cast<MenuView*>(ViewOf(*child)) : nullptr;
      if (view != nullptr) actions.append(&view->Action());
    }
    return actions;
  };
  ArrangeActions(*menuBar_, actionsOf(*window_));
  for (Control* control : window_->controls) {
    if (control->kind != ControlKind::Menu || control->children.empty()) continue;
    ArrangeActions(static_cast<MenuView*>(ViewOf(*control))->Submenu(), actionsOf(*control));
  }
}

/// Brings the widgets inside of a control into its stacking order.
void FormWidget::Stack(const Control& parent) {
  for (auto child = parent.children.rbegin(); child != parent.children.rend(); ++child) {
    ControlView* const view = ViewOf(**child);
    if (view == nullptr || view->Widget() == nullptr) continue;
    view->Widget()->raise();
    Stack(**child);
  }
}

void FormWidget::Take(Control& control, std::string_view slot) {
  const Applying applying(*stage_);
  if (&control == window_) {
    TakeWindowSlot(slot);
    return;
  }
  ControlView* const view = ViewOf(control);
  if (view == nullptr) return;
  if (slot == "ZOrder") {
    if (view->Widget() != nullptr) view->Widget()->raise();
  } else {
    view->Take(slot);
  }
}

void FormWidget::TakeContent(Control& control) {
  if (&control == window_) {
    // A control that is gone must not be looked at again. New ones come by the hundred, each told: they wait
    // for the event's end.
    const std::size_t count = window_->controls.size();
    if (count < std::exchange(told_, count)) FollowControls();
    TakeFocus();
  } else if (ControlView* view = ViewOf(control)) {
    view->TakeContent();
  }
}

void FormWidget::Settle() {
  if (window_ == nullptr) return;
  FollowControls();
  for (const Control* control : known_) {
    if (ControlView* view = ViewOf(*control)) view->Settle();
  }
  TakeFocus();
}

/// The program's focus is the one that counts.
void FormWidget::TakeFocus() {
  const Applying applying(*stage_);
  ControlView* const view = window_->focus == nullptr ? nullptr : ViewOf(*window_->focus);
  QWidget* const wanted = view == nullptr ? nullptr : view->Widget();
  if (wanted == focusWidget()) return;
  if (wanted != nullptr) {
    wanted->setFocus(Qt::OtherFocusReason);
  } else if (focusWidget() != nullptr) {
    focusWidget()->clearFocus();
  }
}

// ---- the window itself ----

void FormWidget::TakeWindowSlot(std::string_view slot) {
  const Applying applying(*stage_);
  if (slot == "Caption") {
    setWindowTitle(QString::fromStdString(window_->Caption.get()).replace(kMark, kMarkItself));
  } else if (slot == "Width" || slot == "Height") {
    TakeSize();
  } else if (slot == "Left" || slot == "Top") {
    TakePosition();
  } else if (slot == "WindowState") {
    TakeState();
  } else if (slot == "Visible") {
    TakeVisible();
  } else if (slot == "ZOrder") {
    raise();
    activateWindow();
  } else {
    client_->Take(slot);
  }
}

void FormWidget::Rescale() {
  const Applying applying(*stage_);
  if (menuBar_ != nullptr) {
    const QFont font =
        FontFor({"Arial", kMenuFontSize, false, false}, kPixelsPerInch * stage_->zoom.Factor());
    menuBar_->setFont(font);
    for (Control* control : known_) {
      if (control->kind == ControlKind::Menu && !control->children.empty()) {
        static_cast<MenuView*>(ViewOf(*control))->Submenu().setFont(font);
      }
    }
  }
  for (const Control* control : known_) {
    // Children of panels follow their panel.
    ControlView* const view = control->parent == window_ ? ViewOf(*control) : nullptr;
    if (view != nullptr) view->Rescale();
  }
  TakeSize();
  client_->update();
}

std::string FormWidget::Title() const {
  return windowTitle().replace(kMarkItself, kMark).toStdString();
}

QPixmap FormWidget::Picture() {
  if (!clipped_) return grab();
  const int menu = MenuHeight();
  const QSize whole = client_->size() + QSize(0, menu);
  QPixmap picture(whole * devicePixelRatioF());
  picture.setDevicePixelRatio(devicePixelRatioF());
  if (menuBar_ != nullptr) {
    menuBar_->setGeometry(0, 0, whole.width(), menu);
    menuBar_->render(&picture);
    PlaceInside();
  }
  client_->render(&picture, QPoint(0, menu));
  return picture;
}

int FormWidget::MenuHeight() const {
  return menuBar_ == nullptr ? 0 : menuBar_->sizeHint().height();
}

void FormWidget::TakeSize() {
  const QSize inside = ClientPixels(*window_, stage_->zoom);
  if (!ellipse_.isNull()) {
    TakePosition();
    return;
  }
  client_->resize(inside);
  if (isMaximized() || isMinimized()) return;
  const QSize whole = inside + QSize(0, MenuHeight());
  const QScreen* shownOn = screen();
  const QSize room = shownOn == nullptr ? whole : shownOn->availableGeometry().size() - kFrameRoom;
  clipped_ = window_->hasFrame && (whole.width() > room.width() || whole.height() > room.height());
  const QSize size = clipped_ ? whole.boundedTo(room) : whole;
  if (clipped_) {
    setMinimumSize(kSmallestPixels, kSmallestPixels);
    setMaximumSize(whole);
  } else if (CanResize()) {
    setMinimumSize(kSmallestPixels, kSmallestPixels);
    setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
  } else {
    setMinimumSize(size);
    setMaximumSize(size);
  }
  const auto bars = clipped_ ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff;
  scroll_->setHorizontalScrollBarPolicy(bars);
  scroll_->setVerticalScrollBarPolicy(bars);
  resize(size);
  PlaceInside();
}

/// Menu on top, the area inside below it.
void FormWidget::PlaceInside() {
  if (!ellipse_.isNull()) return;
  const int menu = MenuHeight();
  if (menuBar_ != nullptr) menuBar_->setGeometry(0, 0, width(), menu);
  scroll_->setGeometry(0, menu, width(), std::max(0, height() - menu));
}

void FormWidget::TakePosition() {
  const QPoint corner(qRound(stage_->zoom.Pixels(window_->Left)), qRound(stage_->zoom.Pixels(window_->Top)));
  if (ellipse_.isNull()) {
    move(corner);
    return;
  }
  // Only the box of the ellipse is a window on the screen; the rest would be cut away.
  const double factor = stage_->zoom.Factor();
  const QRect box(ellipse_.topLeft() * factor, ellipse_.size() * factor);
  setMinimumSize(box.size());
  setMaximumSize(box.size());
  setGeometry(QRect(corner + box.topLeft(), box.size()));
  scroll_->setGeometry(rect());
  scroll_->takeWidget();
  client_->setParent(this);
  client_->setGeometry(QRect(-box.topLeft(), ClientPixels(*window_, stage_->zoom)));
  client_->show();
  setMask(QRegion(rect(), QRegion::Ellipse));
}

void FormWidget::CutToEllipse(const QRect& box) {
  const Applying applying(*stage_);
  ellipse_ = box;
  TakePosition();
}

void FormWidget::TakeState() {
  if (!isVisible()) return;
  const auto state = static_cast<enum WindowState>(window_->WindowState.get());
  Qt::WindowStates states = windowState() & ~(Qt::WindowMinimized | Qt::WindowMaximized);
  if (state == WindowState::Minimised) states |= Qt::WindowMinimized;
  if (state == WindowState::Maximised) states |= Qt::WindowMaximized;
  setWindowState(states);
}

void FormWidget::TakeVisible() {
  if (!window_->Visible) {
    hide();
    return;
  }
  setWindowModality(window_->isModal ? Qt::ApplicationModal : Qt::NonModal);
  Settle();
  show();
  TakeState();
}

void FormWidget::BecomeModal() {
  if (windowModality() == Qt::ApplicationModal) return;
  // Qt takes it over when a window is shown.
  const Applying applying(*stage_);
  hide();
  TakeVisible();
}

// ---- what the desktop does with the window ----

void FormWidget::closeEvent(QCloseEvent* event) {
  event->ignore();
  if (window_ != nullptr) {
    stage_->input.Do([window = window_] { return user::Close(*window, CloseReason::User); });
  }
}

void FormWidget::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (window_ == nullptr || stage_->applying > 0) return;
  Window& window = *window_;
  if (event->type() == QEvent::ActivationChange && isActiveWindow() && window.desk.active != &window) {
    stage_->input.Do([&] { return user::Activate(window); });
  } else if (event->type() == QEvent::WindowStateChange) {
    const auto state = isMinimized()   ? WindowState::Minimised
                       : isMaximized() ? WindowState::Maximised
                                       : WindowState::Normal;
    if (window.WindowState == static_cast<int>(state)) return;
    stage_->input.Do([&] { return user::SetState(window, static_cast<int>(state)); });
  }
}

void FormWidget::moveEvent(QMoveEvent* event) {
  QWidget::moveEvent(event);
  if (window_ == nullptr || stage_->applying > 0 || !isVisible() || !ellipse_.isNull()) return;
  if (isMaximized() || isMinimized()) return;
  const Zoom& zoom = stage_->zoom;
  const QPoint known(qRound(zoom.Pixels(window_->Left)), qRound(zoom.Pixels(window_->Top)));
  if (pos() == known) return;
  stage_->input.Do([&, window = window_] {
    return user::Move(*window, static_cast<float>(zoom.Twips(x())), static_cast<float>(zoom.Twips(y())));
  });
}

void FormWidget::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  PlaceInside();
  const bool byDesktop = window_ != nullptr && stage_->applying == 0 && isVisible() && !isMinimized();
  if (!byDesktop || clipped_ || !CanResize() || !ellipse_.isNull()) return;
  const Zoom& zoom = stage_->zoom;
  const QSize before = ClientPixels(*window_, zoom);
  const QSize now(width(), height() - MenuHeight());
  if (now == before) return;
  // A side that was not drawn at keeps its length to the twip.
  const auto length = [&](int pixels, int same, float twips, float inner) {
    return pixels == same ? twips : static_cast<float>(zoom.Twips(pixels)) + (twips - inner);
  };
  Window& window = *window_;
  const float newWidth = length(now.width(), before.width(), window.Width, window.InnerWidth());
  const float newHeight = length(now.height(), before.height(), window.Height, window.InnerHeight());
  stage_->input.Do([&] { return user::Resize(window, newWidth, newHeight); });
}

void FormWidget::keyPressEvent(QKeyEvent* event) {
  const bool served =
      window_ != nullptr && (ServeTab(*stage_, *window_, *event) || ServeEscape(*stage_, *window_, *event));
  if (!served) QWidget::keyPressEvent(event);
}

void FormWidget::dragEnterEvent(QDragEnterEvent* event) {
  const bool serves = window_ != nullptr && stage_->fileDropped && user::Reachable(*window_);
  if (serves && !DroppedPath(*event).empty()) event->acceptProposedAction();
}

void FormWidget::dropEvent(QDropEvent* event) {
  const std::string path = DroppedPath(*event);
  if (path.empty() || !stage_->fileDropped) return;
  event->acceptProposedAction();
  stage_->fileDropped(path);
}

}  // namespace veldrin
