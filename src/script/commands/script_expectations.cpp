#include "script/commands/script_expectations.h"

#include "runtime/conversion.h"
#include "runtime/fault.h"
#include "script/commands/script_queries.h"
#include "script/script_error.h"
#include "script/script_values.h"
#include "simulated/printed_values.h"

#include <algorithm>
#include <cmath>
#include <functional>

namespace veldrin {

namespace {

std::string Told(const std::string& text) {
  return Printed(Quoted(text));
}

/// The lines of a text, whatever ends them.
std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines{""};
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' && i + 1 < text.size() && text[i + 1] == '\n') continue;
    if (text[i] == '\n' || text[i] == '\r') {
      lines.emplace_back();
    } else {
      lines.back() += text[i];
    }
  }
  return lines;
}

bool Contains(const std::vector<std::string>& lines, const std::string& line) {
  return std::find(lines.begin(), lines.end(), line) != lines.end();
}

/// How an answer is held against the word that is expected of it.
struct Comparison {
  std::string manner;  // as a failure tells it
  std::function<bool(const Asked& asked, const std::string& expected)> holds;
};

Comparison AsText() {
  return {"", [](const Asked& asked, const std::string& expected) {
            const bool anyFault = asked.name == "ended" && expected == "fault";
            return anyFault ? asked.answer.text.rfind("fault ", 0) == 0 : asked.answer.text == expected;
          }};
}

Comparison AsLine() {
  return {"a line ", [](const Asked& asked, const std::string& expected) {
            return Contains(asked.answer.lines, expected) || Contains(LinesOf(asked.answer.text), expected);
          }};
}

Comparison AsNumber(const std::string& toleranceWord) {
  const double tolerance = Number(toleranceWord);
  return {"within " + toleranceWord + " of ", [tolerance](const Asked& asked, const std::string& expected) {
            const double wanted = Number(expected);
            double found = 0;
            if (Guarded([&] { found = ParseNumber(asked.answer.text); }) != 0) return false;
            // A hair more, so that a difference of just the tolerance does not hang on the last bit.
            return std::fabs(found - wanted) <= tolerance * (1 + 1e-9);
          }};
}

}  // namespace

void Show(ScriptWorld& world, const std::vector<Word>& words) {
  std::size_t at = 1;
  const std::vector<Asked> all = Ask(world, words, at);
  if (at != words.size()) throw ScriptError{"too many words behind " + words[at - 1].source};
  for (const Asked& asked : all) {
    world.out << asked.name << " = " << Printed(asked.answer.text) << "\n";
    if (asked.name == "log") world.machine.log.lines.clear();
  }
}

std::vector<Failure> Expect(ScriptWorld& world, const std::vector<Word>& words, bool wanted) {
  std::size_t at = 1;
  const std::vector<Asked> all = Ask(world, words, at);
  const std::size_t left = words.size() - at;
  const auto marked = [&](const char* mark, std::size_t extra) {
    return left == all.size() + extra && words[at].plain && words[at].text == mark;
  };
  Comparison comparison = AsText();
  if (marked("~", 2)) {
    comparison = AsNumber(words.back().text);
    ++at;
  } else if (marked("has", 1)) {
    comparison = AsLine();
    ++at;
  } else if (left != all.size()) {
    throw ScriptError{words[0].text + " needs " +
                      (all.size() == 1 ? "one value" : std::to_string(all.size()) + " values") + " behind " +
                      words[1].source + ", found " + std::to_string(left) + " words"};
  }
  std::vector<Failure> failures;
  for (const Asked& asked : all) {
    const std::string& expected = words[at++].text;
    if (comparison.holds(asked, expected) == wanted) continue;
    failures.push_back(
        {asked.name, (wanted ? "" : "not ") + comparison.manner + Told(expected), Told(asked.answer.text)});
  }
  return failures;
}

}  // namespace veldrin
