// The oracle: what must hold after every action of a user, whatever they did before. Each matter is one rule
// with a memory of its own; oracle_MATTER.cpp tells it.
//
// A rule works its expectation out from what the program is to do, not from the program's own computation.
// Where the program is to behave oddly, the rule says so and why.
#pragma once

#include "script/script_world.h"
#include "tests/monkey/memory.h"
#include "tests/monkey/moment.h"
#include "tests/monkey/script_text.h"

#include <memory>
#include <string>
#include <vector>

namespace veldrin::monkey {

/// One look behind an action.
struct Look {
  ScriptWorld& world;
  /// The program that runs, or has just ended.
  Program& program;
  /// What was done, and whether it could be done.
  const Deed& deed;
  bool blocked;
  const Moment& before;
  const Moment& now;
  const Memory& memory;
};

/// Whether OK has just written a plan in the chooser's Save role, and so left the role.
bool WasSaved(const Look& look);

/// What does not hold.
struct Finding {
  /// The rule's name.
  std::string rule;
  std::string text;
};

class Rule {
 public:
  virtual ~Rule() = default;
  virtual const char* Name() const = 0;
  /// Gives what does not hold; empty for nothing.
  virtual std::string Judge(const Look& look) = 0;
};

using Oracle = std::vector<std::unique_ptr<Rule>>;

std::unique_ptr<Rule> SpeedsAreThoseOfTheParts();
std::unique_ptr<Rule> ColoursTellPairsAndSteps();
std::unique_ptr<Rule> PlanDialogShowsItsParts();
std::unique_ptr<Rule> CompareShowsItsFiles();
std::unique_ptr<Rule> ChartShowsTheMode();
std::unique_ptr<Rule> ControlsAnswer();
std::unique_ptr<Rule> QuestionsCanBeAnswered();
std::unique_ptr<Rule> WordsComeToRest();
std::unique_ptr<Rule> TitleTellsOfChanges();
std::unique_ptr<Rule> SavedPlansOpenAgain();
std::unique_ptr<Rule> HistoryBelongsToItsMachine();
std::unique_ptr<Rule> EndsAreStated();

/// All rules, fresh for one sequence.
Oracle MakeOracle();

}  // namespace veldrin::monkey
