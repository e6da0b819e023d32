// Which section of the user's guide tells of what: by window, panel and control. The guide's headings bear
// these names in every language (docs/guide/), and tests/guide holds the two against each other.
#pragma once

#include "view/window.h"

#include <string_view>
#include <vector>

namespace veldrin {

struct GuideSection {
  /// The window's name, and that of a control in it with all that is inside; empty for the rest of the
  /// window.
  std::string_view window;
  std::string_view control;
  std::string_view name;
};

/// That of the line below the main window in which the program tells what its windows have no place for.
inline constexpr std::string_view kMessagesSection = "messages";

/// All of the windows and their controls, the rest of a window behind its controls.
const std::vector<GuideSection>& GuideSections();

/// The section of a control: that of the innermost panel around it which has one, else that of its window. A
/// null control asks for the window. Empty where the guide has nothing to tell, as of a window that nobody
/// sees. Raises nothing.
std::string_view SectionOf(const Window& window, const Control* control);

}  // namespace veldrin
