#include "script/script_runner.h"

#include "runtime/fault.h"
#include "script/commands/script_commands.h"
#include "script/commands/script_expectations.h"
#include "script/script_error.h"
#include "script/script_suggest.h"
#include "simulated/printed_values.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <utility>

namespace veldrin {

namespace {

class Runner {
 public:
  Runner(ScriptSource& source, ScriptHand& hand, std::ostream& out, std::ostream& err)
      : source_(source), world_(hand, out), err_(err) {
    world_.machine.windows.modalLoop = [this](Window& window) { RunModal(window); };
  }

  ScriptVerdict Run() {
    try {
      while (RunNextLine()) {
      }
    } catch (const ScriptError& error) {
      Tell() << error.message << "\n";
      return ScriptVerdict::Wrong;
    }
    WarnOfAnswers();
    return failed_ ? ScriptVerdict::Failed : ScriptVerdict::Held;
  }

 private:
  /// The lines of a modal window. What ends the program, or the script, leaves the routine that showed it.
  void RunModal(const Window& window) {
    while (window.Visible && !world_.HasEnded()) {
      if (!RunNextLine()) throw EndOfProgram{};
    }
    if (world_.HasEnded()) throw EndOfProgram{};
  }

  /// False at the end of the script.
  bool RunNextLine() {
    const std::optional<std::string> line = source_.NextLine();
    if (!line) return false;
    const std::vector<Word> words = SplitWords(*line);
    const std::string place = source_.Place();
    const std::string phase = source_.Phase();
    try {
      Do(words, place, phase);
    } catch (const RuntimeFault& fault) {
      // No event was under way: the machine refused the script itself.
      throw ScriptError{"fault " + std::to_string(fault.number)};
    }
    TellNotes(place);
    return true;
  }

  void Do(const std::vector<Word>& words, const std::string& place, const std::string& phase) {
    const std::string& name = words[0].text;
    if (name == "show") {
      Show(world_, words);
    } else if (name == "expect" || name == "expect-not") {
      for (const Failure& failure : Expect(world_, words, name == "expect")) {
        Fail(place, failure.name, phase, "expected", failure.expected, "found", failure.found);
      }
    } else {
      const Command& command = FindCommand(name);
      CheckNumberOfWords(command, words.size() - 1);
      command.run({world_, source_, words});
      for (Mismatch& mismatch : world_.hand.Mismatches()) world_.mismatches.push_back(std::move(mismatch));
    }
    for (const Mismatch& mismatch : world_.mismatches) {
      Fail(place, mismatch.name, phase, "slot", Printed(Quoted(mismatch.slot)), "widget",
           Printed(Quoted(mismatch.shown)));
    }
    world_.mismatches.clear();
  }

  static const Command& FindCommand(const std::string& name) {
    std::vector<std::string> known{"show", "expect", "expect-not"};
    for (const auto* commands : {&MachineCommands(), &ActionCommands(), &ProgramCommands()}) {
      for (const Command& command : *commands) {
        if (name == command.name) return command;
        known.emplace_back(command.name);
      }
    }
    throw ScriptError{"unknown command " + name + Suggestion(name, known)};
  }

  /// The stream for messages, behind all that the script printed.
  std::ostream& Tell() { return Tell(source_.Place()); }
  std::ostream& Tell(const std::string& place) {
    world_.out.flush();
    return err_ << place << ": ";
  }

  void Fail(const std::string& place, const std::string& name, const std::string& phase,
            const char* firstHead, const std::string& first, const char* secondHead,
            const std::string& second) {
    failed_ = true;
    Tell(place) << name << "\n";
    if (!phase.empty()) err_ << "  in:       " << phase << "\n";
    err_ << "  " << Head(firstHead) << first << "\n  " << Head(secondHead) << second << "\n";
  }

  static std::string Head(std::string head) {
    head += ":";
    head.resize(10, ' ');
    return head;
  }

  void TellNotes(const std::string& place) {
    for (const std::string& note : world_.notes) Tell(place) << "warning: " << note << "\n";
    world_.notes.clear();
  }

  void WarnOfAnswers() {
    const SimulatedBoxes& boxes = world_.machine.boxes;
    const std::size_t left = boxes.boxAnswers.size() + boxes.colourAnswers.size() + boxes.printAnswers.size();
    if (left > 0) Tell(source_.Name()) << "warning: nobody asked for " << left << " of the answers\n";
  }

  ScriptSource& source_;
  ScriptWorld world_;
  std::ostream& err_;
  bool failed_ = false;
};

ScriptVerdict RunFile(const std::string& file, ScriptHand& hand) {
  if (file == "-") return RunScript(std::cin, file, ".", hand, std::cout, std::cerr);
  std::ifstream text(file, std::ios::binary);
  if (!text || std::filesystem::is_directory(file)) {
    std::cerr << file << ": cannot be read\n";
    return ScriptVerdict::Wrong;
  }
  const std::string folder = std::filesystem::path(file).parent_path().string();
  return RunScript(text, file, folder, hand, std::cout, std::cerr);
}

}  // namespace

ScriptVerdict RunScript(std::istream& text, const std::string& name, const std::string& folder,
                        ScriptHand& hand, std::ostream& out, std::ostream& err) {
  ScriptSource source(text, name, folder);
  const ScriptVerdict verdict = Runner(source, hand, out, err).Run();
  out.flush();
  return verdict;
}

ScriptVerdict RunScriptFiles(const std::vector<std::string>& files, ScriptHand& hand,
                             const std::string& program) {
  if (files.empty()) {
    std::cerr << "usage: " << program << " FILE...\n";
    return ScriptVerdict::Wrong;
  }
  ScriptVerdict worst = ScriptVerdict::Held;
  for (const std::string& file : files) worst = std::max(worst, RunFile(file, hand));
  return worst;
}

}  // namespace veldrin
