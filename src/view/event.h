// Events of controls and windows: fired by the user's input, by writes to slots, and by code, which calls
// them like functions (`form2.Command6.Click()`).
#pragma once

#include <functional>

namespace veldrin {

struct Control;

/// One event. Its argument is the mouse button, the key, or the reason, where it has one.
class Event {
 public:
  using Handler = std::function<void(int argument)>;

  Event(Control& control, const char* name);
  Event(const Event&) = delete;
  Event& operator=(const Event&) = delete;

  /// Fires the event: whoever shows the window is told, then the handler runs. Faults pass through.
  void operator()(int argument = 0);

  /// Gives the event its one handler.
  void Bind(Handler handler);

  const char* Name() const { return name_; }
  /// How many handlers were given; more than one is a mistake of the program.
  int Claims() const { return claims_; }

 private:
  Control* control_;
  const char* name_;
  Handler handler_;
  int claims_ = 0;
};

inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;

/// Keys by the platform's numbers.
enum Key : int {
  kKeyBackspace = 8,
  kKeyTab = 9,
  kKeyEnter = 13,
  kKeyLeft = 37,
  kKeyUp = 38,
  kKeyRight = 39,
  kKeyDown = 40,
  kKeyF1 = 112,
};

/// Mouse pointers by the platform's numbers.
inline constexpr int kPointerDefault = 0;
inline constexpr int kPointerNoDrop = 12;

}  // namespace veldrin
