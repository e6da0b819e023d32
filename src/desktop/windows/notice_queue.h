// Which of the notices that were told is to be seen now.
//
// One that only informs passes by: it is seen at once, until a newer one comes or its time is over. One that
// warns, tells a failure or offers something stands until it is dealt with; several wait for their turn.
#pragma once

#include "platform/notices.h"

#include <cstddef>
#include <deque>
#include <functional>
#include <optional>

namespace veldrin {

class NoticeQueue {
 public:
  /// Called after every change.
  std::function<void()> changed;

  /// One that stands already is not told a second time.
  void Add(Notice notice);
  /// The one to be seen; null for none. It holds until the next change.
  const Notice* Shown() const;
  /// Whether what is seen goes by itself.
  bool Passes() const { return passing_.has_value(); }
  /// How many stand.
  std::size_t Standing() const { return standing_.size(); }
  /// What is seen has been dealt with, or its time is over.
  void Drop();

 private:
  void Change() const {
    if (changed) changed();
  }

  std::optional<Notice> passing_;
  std::deque<Notice> standing_;
};

}  // namespace veldrin
