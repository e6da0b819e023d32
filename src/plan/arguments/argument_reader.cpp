#include "plan/arguments/arguments.h"
#include "plan/arguments/option_table.h"
#include "plan/arguments/option_values.h"
#include "plan/check/list_remarks.h"

#include <algorithm>
#include <string_view>

namespace veldrin {

namespace {

/// Reads the words one by one and keeps which options were given.
class ArgumentReader {
 public:
  explicit ArgumentReader(const std::vector<std::string>& words) : words_(words) {}

  PlanArguments Read() {
    while (at_ < words_.size() && !IsToldApart()) ReadWord(words_[at_++]);
    if (IsToldApart()) return result_;
    TakePaths();
    CheckTogether();
    return result_;
  }

 private:
  /// --help and --version stand for themselves, whatever else is there.
  bool IsToldApart() const {
    return result_.action == PlanAction::Help || result_.action == PlanAction::Version;
  }

  void ReadWord(const std::string& word) {
    if (onlyPaths_ || !word.starts_with("-")) {
      paths_.push_back(word);
    } else if (word == "--") {
      onlyPaths_ = true;
    } else if (word == "--help" || word == "-h") {
      result_.action = PlanAction::Help;
    } else if (word == "--version") {
      result_.action = PlanAction::Version;
    } else {
      ReadOption(word);
    }
  }

  /// "--option", "--option value" or "--option=value".
  void ReadOption(const std::string& word) {
    const std::size_t equals = word.find('=');
    const std::string name = word.substr(0, equals);
    const bool hasValue = equals != std::string::npos;
    if (name == "--help" || name == "--version") Refuse(name + " takes no value");
    for (const ActionOption& action : ActionOptions()) {
      if (name != action.name) continue;
      TakeAction(action);
      if (hasValue) paths_.push_back(word.substr(equals + 1));
      return;
    }
    for (const Option& option : Options()) {
      if (name != option.name) continue;
      const bool isGiven = std::find(given_.begin(), given_.end(), &option) != given_.end();
      if (isGiven && !option.repeats) Refuse(name + " is given twice");
      given_.push_back(&option);
      if (option.value == nullptr) {
        if (hasValue) Refuse(name + " takes no value");
        option.read("", result_);
        return;
      }
      if (!hasValue && at_ >= words_.size()) Refuse(name + " needs a value");
      option.read(hasValue ? word.substr(equals + 1) : words_[at_++], result_);
      return;
    }
    Refuse("unknown option " + Quoted(name) + "; --help tells all");
  }

  void TakeAction(const ActionOption& action) {
    if (action_ != nullptr && action_->action != action.action) {
      Refuse(std::string(action_->name) + " and " + action.name + " do not go together");
    }
    action_ = &action;
    result_.action = action.action;
  }

  void TakePaths() {
    for (const std::string& path : paths_) {
      if (path.empty()) Refuse("the list's name is empty");
    }
    switch (result_.action) {
      case PlanAction::Show:
        TakePlanPaths();
        break;
      case PlanAction::Compare:
        if (paths_.size() < 2) Refuse("--compare needs two plans or more");
        result_.planPaths = paths_;
        break;
      case PlanAction::FromCsv:
        if (paths_.size() != 2) Refuse("--from-csv needs the table of parts and the list to be written");
        result_.csvPath = paths_[0];
        result_.listPath = paths_[1];
        break;
      default:
        if (paths_.empty()) Refuse("no list is named; --help tells more");
        if (paths_.size() > 1) Refuse("a second list, " + Quoted(paths_[1]));
        result_.listPath = paths_[0];
    }
  }

  void TakePlanPaths() {
    if (paths_.empty()) Refuse("--show needs a plan");
    if (paths_.size() > 2) Refuse("--show takes one plan and its list; --compare takes more plans");
    result_.planPaths = {paths_[0]};
    if (paths_.size() == 2) result_.listPath = paths_[1];
  }

  bool IsGiven(std::string_view option) const {
    return std::any_of(given_.begin(), given_.end(),
                       [&](const Option* given) { return option == given->name; });
  }

  void RefuseTogether(const char* one, const char* other) const {
    if (IsGiven(one) && IsGiven(other)) Refuse(std::string(one) + " and " + other + " do not go together");
  }

  void RefuseWithout(const char* option, const char* needed) const {
    if (IsGiven(option) && !IsGiven(needed)) Refuse(std::string(option) + " goes with " + needed);
  }

  void CheckTogether() const {
    CheckAction();
    if (result_.action != PlanAction::Search) return;
    if (!IsGiven("--speed")) Refuse("--speed is missing; --help tells more");
    RefuseTogether("--min-plan", "--best");
    RefuseWithout("--rank", "--best");
    RefuseWithout("--within", "--best");
    if (result_.rank == Rank::Change && !IsGiven("--from")) Refuse("--rank change goes with --from");
    if (!result_.best) {
      RefuseTogether("--main", "--manual");
      RefuseTogether("--min-plan", "--manual");
    }
    if (result_.why && result_.format != PlanFormat::Table && result_.format != PlanFormat::Json) {
      Refuse("--why has no columns; type --format table or --format json with it");
    }
  }

  /// What is given goes together with what is to be done.
  void CheckAction() const {
    for (const Option* option : given_) {
      if ((option->actions & Bit(result_.action)) != 0) continue;
      if (action_ != nullptr) {
        Refuse(std::string(action_->name) + " and " + option->name + " do not go together");
      }
      for (const ActionOption& action : ActionOptions()) {
        if ((option->actions & Bit(action.action)) != 0) {
          Refuse(std::string(option->name) + " goes with " + action.name);
        }
      }
    }
  }

  const std::vector<std::string>& words_;
  std::size_t at_ = 0;
  bool onlyPaths_ = false;
  const ActionOption* action_ = nullptr;
  std::vector<const Option*> given_;
  std::vector<std::string> paths_;
  PlanArguments result_;
};

}  // namespace

bool PlanArguments::HasManual() const {
  for (int gear = 1; gear <= kGears; ++gear) {
    if (manual[gear]) return true;
  }
  return false;
}

std::optional<PlanArguments> ReadArguments(const std::vector<std::string>& arguments, std::string& mistake) {
  try {
    return ArgumentReader(arguments).Read();
  } catch (const BadArgument& bad) {
    mistake = bad.text;
    return {};
  }
}

}  // namespace veldrin
