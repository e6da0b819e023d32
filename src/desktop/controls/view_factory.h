// The view for each kind of control.
#pragma once

#include "desktop/controls/control_view.h"

#include <memory>

namespace veldrin {

/// A new view, which has taken nothing over yet. One with a widget belongs to `parent`, the others to the
/// caller. Null for kinds of which there is nothing to see.
struct NewView {
  ControlView* view = nullptr;
  std::unique_ptr<ControlView> owned;
};
NewView MakeView(Control& control, Stage& stage, QWidget* parent);

}  // namespace veldrin
