// What a script works with: the simulated machine, the program that runs on it, and what the last action and
// the last operation came to.
#pragma once

#include "script/script_catalogue.h"
#include "script/script_hand.h"
#include "simulated/simulated_machine.h"
#include "workspace/program.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

namespace veldrin {

class ScriptWorld {
 public:
  /// `out` takes what the script prints.
  ScriptWorld(ScriptHand& theHand, std::ostream& theOut) : hand(theHand), out(theOut) {}
  ScriptWorld(const ScriptWorld&) = delete;
  ScriptWorld& operator=(const ScriptWorld&) = delete;
  ~ScriptWorld() { LetGo(); }

  ScriptHand& hand;
  std::ostream& out;
  SimulatedMachine machine;
  ScriptCatalogue catalogue;
  /// Whether the last action could not be done.
  bool blocked = false;
  /// What the last operation gave.
  std::string result = "(none)";
  /// What looks like a mistake of the script and need not be one, since the runner last looked.
  std::vector<std::string> notes;
  /// Found by the questions since the runner last looked.
  std::vector<Mismatch> mismatches;

  /// Starts a fresh program on the machine as it is. Throws ScriptError while one runs.
  void Start(const std::string& commandLine);
  /// The program is gone at once: no event, no unload. Its record stays for questions. Where none runs,
  /// nothing happens.
  void Kill();
  /// Lets the machine's clock run, with or without a program.
  void Advance(std::int64_t milliseconds);

  /// The program for an action. Throws ScriptError where none runs.
  Program& Running();
  /// The program for a question: the one that runs or ran last; before the first start, one that was put
  /// together and not started.
  Program& Asked();
  bool HasEnded() const { return program_ && program_->ended; }

  /// Does an action and keeps whether it was blocked. One that runs lines of the script inside of it leaves
  /// that to the last of them.
  void Act(const std::function<bool(Program& program)>& action);

 private:
  void MakeProgram();
  void LetGo();

  std::unique_ptr<Program> program_;
  bool started_ = false;
  std::int64_t actions_ = 0;
};

}  // namespace veldrin
