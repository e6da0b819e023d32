#include "tests/monkey/walk.h"

#include "runtime/fault.h"
#include "script/commands/script_commands.h"
#include "script/script_error.h"
#include "tests/monkey/covered.h"

#include <sstream>

namespace veldrin::monkey {

namespace {

const Command* FindCommand(const std::string& name) {
  for (const auto* commands : {&MachineCommands(), &ActionCommands(), &ProgramCommands()}) {
    for (const Command& command : *commands) {
      if (name == command.name) return &command;
    }
  }
  return nullptr;
}

class Walker {
 public:
  explicit Walker(const LineSource& source) : source_(source) {
    world_.machine.windows.modalLoop = [this](Window& window) { RunModal(window); };
  }

  Outcome Run() {
    while (Step()) {
    }
    return std::move(outcome_);
  }

 private:
  /// What a user does to a modal window happens inside of the routine that showed it.
  void RunModal(const Window& window) {
    while (window.Visible && !world_.HasEnded()) {
      if (!Step()) throw EndOfProgram{};
    }
    if (world_.HasEnded()) throw EndOfProgram{};
  }

  /// Looks at what the last line came to, and does the next one. False where the sequence stops.
  bool Step() {
    if (stopped_) return false;
    LookAround();
    std::optional<std::string> line;
    if (!outcome_.finding) line = source_(world_, before_);
    if (line) {
      outcome_.lines.push_back(*line);
      Do(*line);
    }
    stopped_ = stopped_ || !line;
    return !stopped_;
  }

  void LookAround() {
    if (!started_) return;
    Program& program = world_.Asked();
    Moment now = MomentOf(program);
    memory_.Learn(program, deed_, world_.blocked, before_, now);
    const Look look{world_, program, deed_, world_.blocked, before_, now, memory_};
    Note(look, outcome_.landmarks);
    for (const std::unique_ptr<Rule>& rule : oracle_) {
      const std::string text = rule->Judge(look);
      if (text.empty() || outcome_.finding) continue;
      outcome_.finding = Finding{rule->Name(), text};
    }
    before_ = std::move(now);
  }

  void Do(const std::string& line) {
    try {
      deed_ = Deed(line);
      const Command* const command = FindCommand(deed_.command);
      if (command == nullptr) throw ScriptError{"unknown command " + deed_.command};
      CheckNumberOfWords(*command, deed_.words.size() - 1);
      if (started_ && !world_.HasEnded() && IsAboutCovered(world_.Running(), deed_)) {
        throw ScriptError{deed_.line + ": out of sight"};
      }
      if (deed_.Is("start")) started_ = true;
      const std::vector<Word> words = deed_.words;  // lines done inside of this one have a deed of their own
      command->run({world_, files_, words});
      world_.notes.clear();
    } catch (const ScriptError& error) {
      Stop("the script is wrong: " + error.message);
    } catch (const RuntimeFault& fault) {
      Stop("the machine refuses the script: fault " + std::to_string(fault.number));
    }
  }

  void Stop(const std::string& why) {
    outcome_.wrong = true;
    stopped_ = true;
    if (!outcome_.finding) outcome_.finding = Finding{"script", why};
  }

  const LineSource& source_;
  std::ostringstream printed_;
  std::istringstream nothing_;
  ScriptSource files_{nothing_, "monkey", "."};
  ScriptHand hand_;
  ScriptWorld world_{hand_, printed_};
  Oracle oracle_ = MakeOracle();
  Outcome outcome_;
  Deed deed_;
  Moment before_;
  Memory memory_;
  bool started_ = false;
  bool stopped_ = false;
};

}  // namespace

Outcome Walk(const LineSource& source) {
  return Walker(source).Run();
}

LineSource Lines(std::vector<std::string> lines) {
  return [lines = std::move(lines), next = std::size_t{0}](
             ScriptWorld& /*world*/, const Moment& /*now*/) mutable -> std::optional<std::string> {
    if (next == lines.size()) return std::nullopt;
    return lines[next++];
  };
}

}  // namespace veldrin::monkey
