#include "desktop/input/program_input.h"

#include "program/event_boundary.h"
#include "workspace/language.h"

#include <utility>

namespace veldrin {

bool ProgramInput::Do(const std::function<bool()>& gesture) {
  if (program_ == nullptr || program_->ended) return false;
  bool done = true;
  try {
    RunEvent(*program_, [&] { done = gesture(); });
  } catch (...) {
    caught_ = std::current_exception();
  }
  lastDone_ = done;
  if (afterEvent) afterEvent();
  if (program_->ended && ended) ended();
  return done;
}

void ProgramInput::Run(const std::function<void()>& event) {
  Do([&] {
    event();
    return true;
  });
}

bool ProgramInput::InJapanese() const {
  return program_ != nullptr && SpeaksJapanese(program_->workspace);
}

void ProgramInput::RethrowCaught() {
  if (caught_) std::rethrow_exception(std::exchange(caught_, nullptr));
}

}  // namespace veldrin
