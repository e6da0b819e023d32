// Entries of the menu.
#pragma once

#include "desktop/controls/control_view.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

#include <memory>

namespace veldrin {

class MenuView : public ControlView {
 public:
  MenuView(Menu& menu, Stage& stage);

  void Take(std::string_view slot) override;
  Shown WhatShows() const override;
  void TakeHint() override;

  QAction& Action() { return *action_; }
  /// The menu below the entry, made when it is first asked for.
  QMenu& Submenu();

 private:
  const Menu& Record() const { return static_cast<const Menu&>(*control_); }

  // The entry may go while its own signal runs.
  struct Later {
    void operator()(QObject* object) const { object->deleteLater(); }
  };
  std::unique_ptr<QAction, Later> action_;
  std::unique_ptr<QMenu, Later> submenu_;
};

/// A menu, or a menu bar, whose entries have hints: under the pointer, and by Shift+F1.
template <class Base>
class Hinted : public Base {
 public:
  using Base::Base;

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void ShowHint(const QPoint& place, const QAction* entry);
};

using HintedMenu = Hinted<QMenu>;
using HintedMenuBar = Hinted<QMenuBar>;

/// The caption of an entry for Qt: "&" marks a key in "(&X)" alone, elsewhere, as in a path, it is itself.
QString MenuText(const std::string& caption);

/// Puts the actions into a menu or bar in this order; what stands so already stays.
void ArrangeActions(QWidget& menu, const QList<QAction*>& actions);

}  // namespace veldrin
