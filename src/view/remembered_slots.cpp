#include "view/remembered_slots.h"

#include <type_traits>

namespace veldrin {

namespace {

bool IsRemembered(const Control& control) {
  return control.kind != ControlKind::Timer && control.kind != ControlKind::Grid;
}

/// Calls `visit` with each of the control's slots but those of places and sizes.
template <class Visit>
void ForEachShown(const Control& control, Visit visit) {
  for (const AnySlot& slot : control.slots) {
    std::visit(
        [&](auto* one) {
          using Value = std::decay_t<decltype(one->get())>;
          if constexpr (!std::is_same_v<Value, float>) visit(*one);
        },
        slot);
  }
}

}  // namespace

RememberedSlots::RememberedSlots(const Window& window) {
  for (const Control* control : window.controls) {
    if (!IsRemembered(*control)) continue;
    std::vector<Value>& values = values_[control->FullName()];
    ForEachShown(*control, [&](const auto& slot) { values.emplace_back(slot.get()); });
  }
}

void RememberedSlots::PutBack(const Window& window) const {
  for (const Control* control : window.controls) {
    const auto found = values_.find(control->FullName());
    if (found == values_.end()) continue;
    auto value = found->second.begin();
    ForEachShown(*control, [&](auto& slot) {
      const auto& before = std::get<std::decay_t<decltype(slot.get())>>(*value++);
      if (!(slot.get() == before)) slot.Put(before);
    });
  }
}

}  // namespace veldrin
