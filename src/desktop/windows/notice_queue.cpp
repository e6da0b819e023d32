#include "desktop/windows/notice_queue.h"

#include <algorithm>
#include <utility>

namespace veldrin {

namespace {

bool IsPassing(const Notice& notice) {
  return notice.severity == Severity::Information && notice.actions.empty();
}

}  // namespace

void NoticeQueue::Add(Notice notice) {
  if (!notice.topic.empty()) {
    const auto older = [&](const Notice& other) { return other.topic == notice.topic; };
    std::erase_if(standing_, older);
    if (passing_ && older(*passing_)) passing_.reset();
  }
  if (IsPassing(notice)) {
    passing_ = std::move(notice);
  } else {
    const auto same = [&](const Notice& other) { return other.text.english == notice.text.english; };
    const auto old = std::find_if(standing_.begin(), standing_.end(), same);
    if (old != standing_.end()) {
      *old = std::move(notice);  // its actions are those that serve now
    } else {
      standing_.push_back(std::move(notice));
    }
  }
  Change();
}

const Notice* NoticeQueue::Shown() const {
  if (passing_) return &*passing_;
  return standing_.empty() ? nullptr : &standing_.front();
}

void NoticeQueue::Drop() {
  if (passing_) {
    passing_.reset();
  } else if (!standing_.empty()) {
    standing_.pop_front();
  } else {
    return;
  }
  Change();
}

}  // namespace veldrin
