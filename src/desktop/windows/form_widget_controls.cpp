#include "desktop/controls/menu_view.h"
#include "desktop/controls/view_factory.h"
#include "desktop/windows/form_widget.h"

#include <QTimer>

#include <algorithm>
#include <unordered_set>
#include <utility>

namespace veldrin {

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
  controlCount_ = known_.size();
  ArrangeMenus();
}

/// A control that is gone may be inside one of its own events: its widget, or its view where it has none, is
/// deleted when that is over.
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

void FormWidget::DeleteUnusedViews() {
  const auto unused = [](const auto& view) { return view->Shows() == nullptr; };
  if (std::none_of(owned_.begin(), owned_.end(), unused)) return;
  // The handler of an entry that took itself away may be on its way back through Qt still.
  QTimer::singleShot(0, this, [this, unused] {
    const Program* const served = stage_->input.Served();
    if (served == nullptr || served->eventDepth == 0) std::erase_if(owned_, unused);
  });
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

}  // namespace veldrin
