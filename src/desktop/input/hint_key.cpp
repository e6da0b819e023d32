#include "desktop/input/hint_key.h"

#include "desktop/accessible/hint_words.h"
#include "desktop/input/reach.h"
#include "desktop/windows/form_widget.h"

#include <QToolTip>

namespace veldrin {

bool ServeHint(const Stage& stage, const Window& window, const QWidget& inside, const QKeyEvent& event) {
  if (event.key() != Qt::Key_F1 || event.modifiers() != Qt::ShiftModifier || ReachesStrip(inside))
    return false;
  const auto* form = dynamic_cast<const FormWidget*>(inside.window());
  const Control* const reached = ReachedIn(inside);
  const Control* const control = reached != nullptr ? reached : window.focus;
  ControlView* const view = form == nullptr || control == nullptr ? nullptr : form->ViewOf(*control);
  if (view == nullptr || view->Widget() == nullptr) return false;
  QWidget& widget = *view->Widget();
  const QString hint = HintOf(stage.input.Served(), *control);
  if (hint.isEmpty()) return false;
  QToolTip::showText(widget.mapToGlobal(widget.rect().bottomLeft()), hint, &widget);
  return true;
}

}  // namespace veldrin
