#include "desktop/input/help_key.h"

#include "desktop/input/keys.h"
#include "desktop/input/reach.h"
#include "guide/sections.h"

namespace veldrin {

bool ServeHelp(const Stage& stage, const Window& window, const QWidget& inside, const QKeyEvent& event) {
  if (event.key() != Qt::Key_F1 || !IsUnmodified(event) || !stage.helpAsked) return false;
  const Control* const reached = ReachedIn(inside);
  const std::string_view section = ReachesStrip(inside)
                                       ? kMessagesSection
                                       : SectionOf(window, reached != nullptr ? reached : window.focus);
  if (section.empty()) return false;
  if (!event.isAutoRepeat()) stage.helpAsked(section);
  return true;
}

}  // namespace veldrin
