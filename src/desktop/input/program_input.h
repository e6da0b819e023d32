// The way of the user's doings into the program: each is one event of it. Nothing that an event throws passes
// through Qt, whose functions know no exceptions: it is kept here, and whoever called Qt asks for it.
#pragma once

#include "workspace/program.h"

#include <exception>
#include <functional>

namespace veldrin {

class ProgramInput {
 public:
  /// The program that events go to from now on; null for none.
  void Serve(Program* program) { program_ = program; }
  Program* Served() const { return program_; }

  /// Runs a gesture of view/user_input.h as one event. Returns whether the user could do it; an event that
  /// ended the program was done. Does nothing after the program's end. Throws nothing.
  bool Do(const std::function<bool()>& gesture);
  /// The same with what can always be done.
  void Run(const std::function<void()>& event);

  /// Whether what the desktop itself says is said in Japanese.
  bool InJapanese() const;

  /// Whether the gesture that came last, or the one around it, was done; false after Forget until the next.
  bool LastDone() const { return lastDone_; }
  void Forget() { lastDone_ = false; }

  /// Throws what an event threw and Qt kept from its caller, if anything.
  void RethrowCaught();

  /// After every event, also inside of others.
  std::function<void()> afterEvent;
  /// After the event that ended the program.
  std::function<void()> ended;

 private:
  Program* program_ = nullptr;
  bool lastDone_ = false;
  std::exception_ptr caught_;
};

}  // namespace veldrin
