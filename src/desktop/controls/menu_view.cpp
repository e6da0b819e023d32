#include "desktop/controls/menu_view.h"

#include "machine/painting/text_ends.h"

#include <QHelpEvent>
#include <QToolTip>

namespace veldrin {

namespace {

constexpr char kSeparatorCaption[] = "-";

}  // namespace

MenuView::MenuView(Menu& menu, Stage& stage) : ControlView(menu, stage), action_(new QAction) {
  if (!menu.shortcut.empty()) action_->setShortcut(QKeySequence(QString::fromStdString(menu.shortcut)));
  QObject::connect(action_.get(), &QAction::triggered, action_.get(), [this] {
    if (control_ != nullptr) Do([control = control_] { return user::Click(*control); });
  });
}

QMenu& MenuView::Submenu() {
  if (!submenu_) {
    submenu_.reset(new HintedMenu);
    action_->setMenu(submenu_.get());
  }
  return *submenu_;
}

void MenuView::Take(std::string_view slot) {
  if (slot == "Caption") {
    action_->setText(MenuText(Record().Caption));
    action_->setSeparator(Record().Caption == kSeparatorCaption);
  } else if (slot == "Visible") {
    action_->setVisible(Record().Visible);
  } else if (slot == "Enabled") {
    action_->setEnabled(Record().Enabled);
  }
}

void MenuView::TakeHint() {
  const QString hint = HintText();
  if (action_->statusTip() == hint) return;
  // Qt takes the caption for a tip where there is none.
  action_->setToolTip(hint);
  action_->setStatusTip(hint);
}

template <class Base>
bool Hinted<Base>::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return Base::event(event);
  const auto& help = static_cast<const QHelpEvent&>(*event);
  ShowHint(help.globalPos(), this->actionAt(help.pos()));
  return true;
}

template <class Base>
void Hinted<Base>::keyPressEvent(QKeyEvent* event) {
  QAction* const entry = this->activeAction();
  if (event->key() != Qt::Key_F1 || event->modifiers() != Qt::ShiftModifier || entry == nullptr) {
    return Base::keyPressEvent(event);
  }
  ShowHint(this->mapToGlobal(this->actionGeometry(entry).bottomLeft()), entry);
}

template <class Base>
void Hinted<Base>::ShowHint(const QPoint& place, const QAction* entry) {
  QToolTip::showText(place, entry == nullptr ? QString() : entry->statusTip(), this);
}

template class Hinted<QMenu>;
template class Hinted<QMenuBar>;

Shown MenuView::WhatShows() const {
  Shown shown;
  shown.text = ToSlotText(action_->text());
  shown.visible = action_->isVisible();
  if (action_->isVisible()) shown.enabled = action_->isEnabled();  // Qt counts hidden ones as off
  return shown;
}

QString MenuText(const std::string& caption) {
  if (caption == kSeparatorCaption) return {};  // a text would stand in the line
  const QString plain = QString::fromStdString(caption);
  QString text;
  for (int i = 0; i < plain.size(); ++i) {
    const bool mark = i > 0 && plain[i - 1] == '(' && i + 2 < plain.size() && plain[i + 2] == ')';
    if (plain[i] == '&' && !mark) text += '&';
    text += plain[i];
  }
  return text;
}

void ArrangeActions(QWidget& menu, const QList<QAction*>& actions) {
  if (menu.actions() == actions) return;
  for (QAction* action : menu.actions()) menu.removeAction(action);
  menu.addActions(actions);
}

}  // namespace veldrin
