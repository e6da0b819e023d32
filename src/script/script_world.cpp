#include "script/script_world.h"

#include "program/assemble.h"
#include "program/event_boundary.h"
#include "script/script_error.h"

#include <utility>

namespace veldrin {

void ScriptWorld::LetGo() {
  if (!program_) return;
  machine.windows.Forget();
  if (started_) hand.ProgramGone(*program_);
  program_.reset();
}

void ScriptWorld::MakeProgram() {
  LetGo();
  // What the windows' records write while they are made is no doing of the program.
  std::ostream* const trace = std::exchange(machine.windows.trace, nullptr);
  program_ = AssembleProgram(hand.MachineOf(machine));
  machine.windows.trace = trace;
}

void ScriptWorld::Start(const std::string& commandLine) {
  if (started_ && !program_->ended)
    throw ScriptError{"the program runs already; kill it or let it end first"};
  MakeProgram();
  started_ = true;
  blocked = false;
  hand.ProgramMade(*program_);
  StartProgram(*program_, commandLine);
}

void ScriptWorld::Kill() {
  if (!started_ || program_->ended) return;
  program_->ended = true;
  machine.windows.Forget();
}

void ScriptWorld::Advance(std::int64_t milliseconds) {
  machine.clock.Advance(milliseconds,
                        [this](TimerControl& timer) { RunEvent(*program_, [&] { timer.Timer(); }); });
}

Program& ScriptWorld::Running() {
  if (!started_) throw ScriptError{"the program has not been started"};
  if (program_->ended) throw ScriptError{"the program has ended; only questions can follow, or start"};
  return *program_;
}

Program& ScriptWorld::Asked() {
  if (!program_) MakeProgram();
  return *program_;
}

void ScriptWorld::Act(const std::function<bool(Program& program)>& action) {
  Program& program = Running();
  const std::int64_t number = ++actions_;
  blocked = false;
  const bool done = action(program);
  if (number == actions_) blocked = !done;
}

}  // namespace veldrin
