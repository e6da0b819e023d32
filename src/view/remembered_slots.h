// What a window's controls show at one moment, to be shown again later.
#pragma once

#include "view/window.h"

#include <map>
#include <string>
#include <variant>
#include <vector>

namespace veldrin {

/// Texts, values, states and colours of every control of a window; not places and sizes, which follow the
/// window, nor timers, nor a grid's shape and cells.
class RememberedSlots {
 public:
  explicit RememberedSlots(const Window& window);

  /// Gives the controls their values back without any event. A control that was not there then stays as it
  /// is, one that is gone is left out.
  void PutBack(const Window& window) const;

 private:
  using Value = std::variant<std::string, bool, int, Colour>;

  /// By names such as "Form2.Label9(3)", since elements of arrays come and go; in the order of the slots.
  std::map<std::string, std::vector<Value>> values_;
};

}  // namespace veldrin
