#include "plan/arguments/option_values.h"

#include "plan/check/list_remarks.h"
#include "platform/text_encoding.h"
#include "runtime/conversion.h"
#include "runtime/fault.h"
#include "runtime/text.h"

#include <algorithm>
#include <cmath>

namespace veldrin {

namespace {

bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

}  // namespace

void Refuse(const std::string& text) {
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

void ReadRank(const std::string& text, PlanArguments& result) {
  if (text == "miss") {
    result.rank = Rank::Miss;
  } else if (text == "sum") {
    result.rank = Rank::Sum;
  } else if (text == "steps") {
    result.rank = Rank::Steps;
  } else if (text == "change") {
    result.rank = Rank::Change;
  } else {
    Refuse("--rank: " + Quoted(text) + " is none of miss, sum, steps and change");
  }
}

void ReadFrom(const std::string& text, PlanArguments& result) {
  if (text.empty()) Refuse("--from: the plan's name is empty");
  result.fromPath = text;
}

void ReadFormat(const std::string& text, PlanArguments& result) {
  if (text == "table") {
    result.format = PlanFormat::Table;
  } else if (text == "csv") {
    result.format = PlanFormat::Csv;
  } else if (text == "json") {
    result.format = PlanFormat::Json;
  } else if (text == "svg") {
    result.format = PlanFormat::Svg;
  } else if (text == "html") {
    result.format = PlanFormat::Html;
  } else {
    Refuse("--format: " + Quoted(text) + " is none of table, csv, json, svg and html");
  }
}

void ReadLanguage(const std::string& text, PlanArguments& result) {
  if (text != "en" && text != "ja") Refuse("--language: " + Quoted(text) + " is neither en nor ja");
  result.japanese = text == "ja";
}

void ReadTyreFrom(const std::string& text, PlanArguments& result) {
  const std::string option = "--tyre-from";
  const std::size_t at = text.find('@');
  if (at == std::string::npos) {
    if (text.empty()) Refuse(option + ": a point V@NE:G or the name of a CSV file is needed");
    result.tyreFiles.push_back(text);
    return;
  }
  const std::size_t colon = text.find(':', at);
  if (colon == std::string::npos) {
    Refuse(option + ": " + Quoted(text) + " is not of the form V@NE:G, such as 61.5@9000:2");
  }
  TyrePoint point;
  point.where = option + ' ' + text;
  point.speed = Number(option, text.substr(0, at), kMeasuredSpeedLimits);
  point.ne = Number(option, text.substr(at + 1, colon - at - 1), kMeasuredNeLimits);
  point.gear = WholeNumber(option, text.substr(colon + 1), Limits{1, kGears});
  result.tyrePoints.push_back(point);
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

}  // namespace veldrin
