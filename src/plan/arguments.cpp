#include "plan/arguments.h"

#include "plan/check/list_remarks.h"
#include "platform/text_encoding.h"
#include "runtime/conversion.h"
#include "runtime/fault.h"
#include "runtime/text.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>
#include <string_view>

namespace veldrin {

namespace {

/// What is wrong with a command line, on its way out of this unit's depths.
struct BadArgument {
  std::string text;
};

[[noreturn]] void Refuse(const std::string& text) {
  throw BadArgument{text};
}

/// The number that `text` spells; refused, with the option's name, when it is none or out of range.
double Number(const std::string& option, const std::string& text, const Limits& limits) {
  double value = 0;
  if (Guarded([&] { value = ParseNumber(text); }) != 0)
    Refuse(option + ": " + Quoted(text) + " is no number");
  if (!limits.Holds(value)) {
    Refuse(option + ": " + text + " is out of range, " + std::to_string(limits.lowest) + " to " +
           std::to_string(limits.highest));
  }
  return value;
}

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

int WholeNumber(const std::string& option, const std::string& text, const Limits& limits) {
  const double value = Number(option, text, limits);
  if (value != std::floor(value)) Refuse(option + ": " + text + " is not a whole number");
  return static_cast<int>(value);
}

std::vector<std::string> SplitAtCommas(const std::string& text) {
  std::vector<std::string> parts;
  std::size_t begin = 0;
  while (true) {
    const std::size_t comma = text.find(',', begin);
    parts.push_back(text.substr(begin, comma - begin));
    if (comma == std::string::npos) return parts;
    begin = comma + 1;
  }
}

void ReadSpeeds(const std::string& text, PlanArguments& result) {
  const std::vector<std::string> parts = SplitAtCommas(text);
  if (parts.size() != kGears) {
    Refuse("--speed: six speeds are needed, found " + std::to_string(parts.size()));
  }
  for (int gear = 1; gear <= kGears; ++gear) {
    const std::string& part = parts[static_cast<std::size_t>(gear - 1)];
    double value = 0;
    if (Guarded([&] { value = ParseNumber(part); }) != 0)
      Refuse("--speed: " + Quoted(part) + " is no number");
    if (value != std::floor(value)) Refuse("--speed: " + part + " is not a whole number of km/h");
    if (value < kLowestRequest)
      Refuse("--speed: " + part + " is too low, " + std::to_string(kLowestRequest) + " is the least");
    if (Guarded([&] { result.speed[gear] = ToSingle(value); }) != 0)
      Refuse("--speed: " + part + " is too high");
  }
}

/// G=-A+B
void ReadManual(const std::string& text, PlanArguments& result) {
  const std::size_t equals = text.find("=-");
  const std::size_t plus = text.find('+', equals == std::string::npos ? 0 : equals);
  if (equals == std::string::npos || plus == std::string::npos) {
    Refuse("--manual: " + Quoted(text) + " is not of the form G=-A+B");
  }
  const int gear = WholeNumber("--manual", text.substr(0, equals), Limits{1, kGears});
  if (result.manual[gear]) Refuse("--manual: gear " + std::to_string(gear) + " is given twice");
  const int below = WholeNumber("--manual", text.substr(equals + 2, plus - equals - 2), kToleranceLimits);
  const int above = WholeNumber("--manual", text.substr(plus + 1), kToleranceLimits);
  result.manual[gear] = ManualBounds{static_cast<std::int16_t>(below), static_cast<std::int16_t>(above)};
}

void ReadFormat(const std::string& text, PlanArguments& result) {
  if (text == "table") {
    result.format = PlanFormat::Table;
  } else if (text == "csv") {
    result.format = PlanFormat::Csv;
  } else if (text == "json") {
    result.format = PlanFormat::Json;
  } else {
    Refuse("--format: " + Quoted(text) + " is none of table, csv and json");
  }
}

/// utf-8, or cpN with the number of a code page.
void ReadEncoding(const std::string& text, PlanArguments& result) {
  constexpr int kHighestPage = 65535;
  const std::string name = LowerCase(text);
  int page = 0;
  if (name == "utf-8" || name == "utf8") {
    page = kUtf8Page;
  } else if (name.starts_with("cp") && std::all_of(name.begin() + 2, name.end(), IsDigit)) {
    Guarded([&] { page = ParseInt32(name.substr(2)); });
  }
  if (page < 1 || page > kHighestPage) Refuse("--encoding: " + Quoted(text) + " is neither utf-8 nor cpN");
  result.page = page;
}

using Reader = std::function<void(const std::string& text, PlanArguments& result)>;

/// The options that take a value.
const std::map<std::string, Reader>& Readers() {
  static const std::map<std::string, Reader> readers = {
      {"--speed", ReadSpeeds},
      {"--manual", ReadManual},
      {"--format", ReadFormat},
      {"--encoding", ReadEncoding},
      {"--main",
       [](const std::string& text, PlanArguments& result) {
         result.mainGear = WholeNumber("--main", text, Limits{1, kGears});
       }},
      {"--min-plan",
       [](const std::string& text, PlanArguments& result) {
         result.minPlan = static_cast<std::int16_t>(WholeNumber("--min-plan", text, kMinPlanLimits));
       }},
      {"--shift-ne",
       [](const std::string& text, PlanArguments& result) {
         result.shiftNe = static_cast<std::int16_t>(WholeNumber("--shift-ne", text, kRevolutionLimits));
       }},
      {"--tyre",
       [](const std::string& text, PlanArguments& result) {
         result.tyreLength = static_cast<float>(Number("--tyre", text, kTyreLimits));
       }},
  };
  return readers;
}

constexpr std::string_view kCheckFile = "--check=";

/// Reads the words one by one and keeps which options were given.
class ArgumentReader {
 public:
  explicit ArgumentReader(const std::vector<std::string>& words) : words_(words) {}

  PlanArguments Read() {
    while (at_ < words_.size() && !IsToldApart()) ReadWord(words_[at_++]);
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
      TakeList(word);
    } else if (word == "--") {
      onlyPaths_ = true;
    } else if (word == "--help" || word == "-h") {
      result_.action = PlanAction::Help;
    } else if (word == "--version") {
      result_.action = PlanAction::Version;
    } else if (word == "--check") {
      result_.action = PlanAction::Check;
    } else if (word == "--why") {
      if (result_.why) Refuse("--why is given twice");
      result_.why = true;
      given_.push_back(word);
    } else if (word.starts_with(kCheckFile)) {
      result_.action = PlanAction::Check;
      TakeList(word.substr(kCheckFile.size()));
    } else {
      ReadOption(word);
    }
  }

  void TakeList(const std::string& path) {
    if (!result_.listPath.empty()) Refuse("a second list, " + Quoted(path));
    if (path.empty()) Refuse("the list's name is empty");
    result_.listPath = path;
  }

  /// "--option value" or "--option=value".
  void ReadOption(const std::string& word) {
    const std::size_t equals = word.find('=');
    const std::string option = word.substr(0, equals);
    if (option == "--help" || option == "--version" || option == "--why") Refuse(option + " takes no value");
    const auto found = Readers().find(option);
    if (found == Readers().end()) Refuse("unknown option " + Quoted(option) + "; --help tells all");
    const bool isGiven = std::find(given_.begin(), given_.end(), option) != given_.end();
    if (isGiven && option != "--manual") Refuse(option + " is given twice");
    given_.push_back(option);
    if (equals != std::string::npos) {
      found->second(word.substr(equals + 1), result_);
    } else if (at_ < words_.size()) {
      found->second(words_[at_++], result_);
    } else {
      Refuse(option + " needs a value");
    }
  }

  bool IsGiven(const char* option) const {
    return std::find(given_.begin(), given_.end(), option) != given_.end();
  }

  void CheckTogether() const {
    if (IsToldApart()) return;
    if (result_.listPath.empty()) Refuse("no list is named; --help tells more");
    if (result_.action == PlanAction::Check) {
      for (const std::string& option : given_) {
        if (option != "--encoding") Refuse("--check and " + option + " do not go together");
      }
      return;
    }
    if (result_.why && result_.format == PlanFormat::Csv) {
      Refuse("--why has no columns; type --format table or --format json with it");
    }
    if (!IsGiven("--speed")) Refuse("--speed is missing; --help tells more");
    for (const char* option : {"--main", "--min-plan"}) {
      if (result_.HasManual() && IsGiven(option)) {
        Refuse(std::string(option) + " and --manual do not go together");
      }
    }
  }

  const std::vector<std::string>& words_;
  std::size_t at_ = 0;
  bool onlyPaths_ = false;
  std::vector<std::string> given_;
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
