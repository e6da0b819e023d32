#include "desktop/windows/form_widget.h"

#include "desktop/controls/menu_view.h"

#include <QGuiApplication>
#include <QTimer>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace veldrin {

namespace {

constexpr int kRevealMargin = 8;  // pixels that stay free around what was scrolled to

/// A window that keeps others from answering cannot be put away alone, and one whose size is fixed has
/// nothing to maximise.
Qt::WindowFlags FlagsFor(const Window& window, bool canResize) {
  const Qt::WindowFlags kind = window.isModal ? Qt::Dialog : Qt::Window;
  if (!window.hasFrame) return kind | Qt::FramelessWindowHint;
  const Qt::WindowFlags flags = kind | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                                Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint;
  const Qt::WindowFlags away = window.isModal ? Qt::WindowFlags() : Qt::WindowMinimizeButtonHint;
  return flags | away | (canResize ? Qt::WindowMaximizeButtonHint : Qt::WindowFlags());
}

// Qt writes its own mark for changed documents where a title has the first of these.
constexpr QLatin1String kMark("[*]");
constexpr QLatin1String kMarkItself("[*][*]");

}  // namespace

FormWidget::FormWidget(Window& window, Stage& stage, FormFinder formOf)
    : QWidget(nullptr, FlagsFor(window, window.Resize.Claims() > 0)),
      window_(&window),
      stage_(&stage),
      formOf_(std::move(formOf)),
      scroll_(new QScrollArea(this)),
      client_(new ClientArea(window, stage, nullptr)),
      ring_(new ReachRing(*client_, stage.zoom)),
      asDescribed_{window.Width, window.Height},
      memory_(asDescribed_, stage.zoom.Factor()) {
  const Applying applying(stage);
  setObjectName(QString::fromStdString(window.name));
  scroll_->setFrameShape(QFrame::NoFrame);
  scroll_->setFocusPolicy(Qt::NoFocus);
  scroll_->setWidget(client_);
  client_->TakeAll();
  if (window.hasMenu) {
    menuBar_ = new HintedMenuBar(this);
    menuBar_->setNativeMenuBar(false);
    setAcceptDrops(true);
    strip_ = new MessageStrip(stage, this, [this] { MakeRoomForStrip(); });
  }
  MakeMissingViews();
  Stack(window);
  TakeWindowSlot("Caption");
  TakeZoom();
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
  viewOf_.clear();
  known_.clear();
  owned_.clear();
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
    if (view->Widget() == nullptr) return;
    view->Widget()->raise();
    if (control.parent == window_ && !control.children.empty()) raised_ = view->Widget();
  } else {
    view->Take(slot);
  }
}

void FormWidget::TakeContent(Control& control) {
  if (&control == window_) {
    // A control that is gone must not be looked at again. New ones come by the hundred, each told: they wait
    // for the event's end.
    const std::size_t count = window_->controls.size();
    if (count < std::exchange(controlCount_, count)) FollowControls();
    TakeFocus();
  } else if (ControlView* view = ViewOf(control)) {
    view->TakeContent();
  }
}

void FormWidget::Settle() {
  if (window_ == nullptr) return;
  FollowControls();
  for (const Control* control : known_) {
    ControlView* const view = ViewOf(*control);
    if (view == nullptr) continue;
    view->Settle();
    view->TakeHint();
  }
  // Whoever has to answer has to see the question.
  if (raised_ != nullptr && raised_->isVisible()) Reveal(raised_);
  raised_.clear();
  ring_->StayInFront();
  if (strip_ != nullptr) strip_->Follow();
  client_->Follow();
  TakeFocus();
  DeleteUnusedViews();
  if (frameUntold_ && user::Reachable(*window_)) TellFrameSoon();
}

/// The program's focus is the one that counts.
void FormWidget::TakeFocus() {
  const Applying applying(*stage_);
  ControlView* const view = window_->focus == nullptr ? nullptr : ViewOf(*window_->focus);
  QWidget* const wanted = view == nullptr ? nullptr : view->Widget();
  if (wanted == focusWidget()) return;
  if (wanted != nullptr) {
    wanted->setFocus(Qt::OtherFocusReason);
    Reveal(wanted);
  } else if (focusWidget() != nullptr) {
    focusWidget()->clearFocus();
  }
}

// ---- what scrolls ----

void FormWidget::Reveal(QWidget* widget) {
  if (widget == nullptr || !isVisible() || !Scrolls() || scroll_->widget() != client_) return;
  // What a press moves away from under the pointer would not hear of its release.
  if (QGuiApplication::mouseButtons() != Qt::NoButton) return;
  scroll_->ensureWidgetVisible(widget, kRevealMargin, kRevealMargin);
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

std::string FormWidget::Title() const {
  return windowTitle().replace(kMarkItself, kMark).toStdString();
}

// ---- showing and hiding ----

void FormWidget::TakeVisible() {
  if (!window_->Visible) {
    hide();
    return;
  }
  TakeKind();
  Settle();
  KeepOnScreen();
  StandBeforeOwner();
  show();
  // Becoming the active window takes the selection away again.
  QTimer::singleShot(0, this, [this] {
    ControlView* const view =
        window_ == nullptr || window_->focus == nullptr ? nullptr : ViewOf(*window_->focus);
    if (view != nullptr) view->OfferText();
  });
  TakeState();
  Reveal(focusWidget());
}

void FormWidget::BecomeModal() {
  if (windowModality() == Qt::ApplicationModal) return;
  // Qt takes it over when a window is shown.
  const Applying applying(*stage_);
  hide();
  TakeVisible();
}

/// A hidden window becomes a modal one or ceases to be. Qt makes it anew for the desktop then, with the place
/// and size that it has.
void FormWidget::TakeKind() {
  setWindowModality(window_->isModal ? Qt::ApplicationModal : Qt::NonModal);
  const Qt::WindowFlags flags = FlagsFor(*window_, CanResize());
  if ((flags & Qt::WindowType_Mask) != windowType()) setWindowFlags(flags);
}

/// A modal window belongs to the one that it was called from: the desktop keeps it in front of that, and puts
/// both away and fetches them back together.
void FormWidget::StandBeforeOwner() {
  if (!window_->isModal && (windowHandle() == nullptr || windowHandle()->transientParent() == nullptr))
    return;
  QWindow* owner = nullptr;
  const Desk& desk = window_->desk;
  std::vector<Window*> others = desk.shown;
  if (desk.active != nullptr) others.insert(others.begin(), desk.active);
  const auto found = std::find_if(others.begin(), others.end(), [this](const Window* other) {
    const FormWidget* form = other == window_ ? nullptr : formOf_(*other);
    return form != nullptr && form->isVisible();
  });
  if (window_->isModal && found != others.end()) owner = formOf_(**found)->windowHandle();
  create();
  windowHandle()->setTransientParent(owner);
}

}  // namespace veldrin
