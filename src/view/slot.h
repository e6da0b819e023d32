// Slots: the values of a control that read like values and are written like them.
//
// A write goes in this order: the control may hold the value within its bounds (a list its ListIndex, a
// folder box its Path); the slot takes it; the control keeps up what it has besides its slots (a panel the
// size of its surface); whoever shows the window is told, and so sees the control as it is from now on; and,
// only when the value differs from before, the control reacts, which is where other slots follow and change
// events are fired. All of it happens inside the assignment, so an event's handler runs before the next
// statement of the writer.
#pragma once

#include "platform/colour.h"

#include <string>
#include <string_view>
#include <utility>
#include <variant>

namespace veldrin {

struct Control;

/// Tells the one who shows the control's window that a slot was written.
void TellWritten(Control& control, const char* slot, bool changed);

/// One value of a control.
template <class T>
class Slot {
 public:
  using Hold = T (*)(Control&, const T&);
  using React = void (*)(Control&);
  using KeepUp = void (*)(Control&);

  Slot(Control& control, const char* name, T atDesign, React react = nullptr, Hold hold = nullptr,
       KeepUp keepUp = nullptr)
      : control_(&control),
        name_(name),
        value_(std::move(atDesign)),
        react_(react),
        hold_(hold),
        keepUp_(keepUp) {}
  Slot(const Slot&) = delete;

  Slot& operator=(const T& value) {
    const T held = hold_ ? hold_(*control_, value) : value;
    const bool changed = Put(held);
    if (changed && react_) react_(*control_);
    return *this;
  }
  Slot& operator=(const Slot& other) { return *this = other.value_; }

  const T& get() const { return value_; }
  operator const T&() const { return value_; }
  std::string_view Name() const { return name_; }

  /// Takes a value and tells it, without a reaction: for the control's own bookkeeping.
  bool Put(const T& value) {
    const bool changed = !(value == value_);
    if (changed) value_ = value;
    if (changed && keepUp_) keepUp_(*control_);
    TellWritten(*control_, name_.data(), changed);
    return changed;
  }

  /// Takes a value as the window's description gives it. Tells nobody.
  void Design(const T& value) { value_ = value; }

 private:
  Control* control_;
  std::string_view name_;  // of a literal, so it ends with a zero
  T value_;
  React react_;
  Hold hold_;
  KeepUp keepUp_;
};

inline bool operator==(const Slot<std::string>& slot, std::string_view text) {
  return slot.get() == text;
}

inline std::string operator+(const Slot<std::string>& slot, std::string_view text) {
  return slot.get() + std::string(text);
}

inline std::string operator+(std::string_view text, const Slot<std::string>& slot) {
  return std::string(text) + slot.get();
}

/// Any slot, for those who walk a control's slots.
using AnySlot = std::variant<Slot<std::string>*, Slot<bool>*, Slot<int>*, Slot<float>*, Slot<Colour>*>;

}  // namespace veldrin
