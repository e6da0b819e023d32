// The line below the main window in which the program tells what its windows have no place for. It is there
// only while there is something to tell, and never takes the focus; F6 reaches its buttons behind the last
// control of the window.
#pragma once

#include "desktop/windows/stage.h"

#include <QFrame>
#include <QLabel>
#include <QPushButton>
#include <QTimer>

#include <functional>
#include <vector>

namespace veldrin {

class MessageStrip : public QFrame {
 public:
  /// Shows what the stage's notices hold. `resized` is called when the strip comes, goes or changes its
  /// height.
  MessageStrip(Stage& stage, QWidget* parent, std::function<void()> resized);
  ~MessageStrip() override;

  /// Nothing is shown before the window around it is ready for it.
  void Allow();
  /// Pixels that it takes of the window now, 0 while it has nothing to tell.
  int Room() const { return room_; }
  /// The zoom or the language may have changed.
  void Follow();

  /// Reaches the first button, the next or the one before; false where there is none, and none is reached
  /// then.
  bool ReachFirst();
  bool ReachLast();
  bool ReachNeighbour(bool forward);
  /// The button that is reached, null for none.
  QPushButton* Reached() const;
  void PressReached();
  void LetGo();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void Show();
  void MakeButtons();
  QPushButton* AddButton(const QString& text, std::function<void()> act);
  void Press(const std::function<void()>& act);
  void Reach(int place);
  void Arrange();
  int TextLeft() const;
  int TextWidth(int whole) const;
  int Lines() const;

  Stage* stage_;
  std::function<void()> resized_;
  QLabel* icon_;
  QLabel* text_;
  std::vector<QPushButton*> buttons_;
  QString whole_;  // the text, also where it has no room
  int reached_ = -1;
  bool allowed_ = false;
  int room_ = 0;
  double zoom_ = 0;
  bool japanese_ = false;
  QTimer passing_;
};

}  // namespace veldrin
