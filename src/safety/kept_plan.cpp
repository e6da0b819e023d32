#include "safety/kept_plan.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <map>

namespace veldrin {

namespace {

constexpr std::string_view kHeading = "veldrin kept plan ";
constexpr int kVersion = 1;
constexpr std::string_view kCheck = "check=";

std::string Escaped(std::string_view text) {
  std::string escaped;
  for (const char c : text) {
    if (c == '\r') {
      escaped += "\\r";
    } else if (c == '\n') {
      escaped += "\\n";
    } else {
      if (c == '\\') escaped += '\\';
      escaped += c;
    }
  }
  return escaped;
}

std::string Unescaped(std::string_view text) {
  std::string plain;
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (text[at] != '\\' || at + 1 == text.size()) {
      plain += text[at];
      continue;
    }
    const char c = text[++at];
    plain += c == 'r' ? '\r' : c == 'n' ? '\n' : c;
  }
  return plain;
}

/// FNV-1a, 64 bits: it is to tell accidents, not intent.
std::string SumOf(std::string_view text) {
  std::uint64_t sum = 0xcbf29ce484222325U;
  for (const char c : text) {
    sum ^= static_cast<unsigned char>(c);
    sum *= 0x100000001b3U;
  }
  std::array<char, 16> digits{};
  const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), sum, 16);
  return {digits.data(), end.ptr};
}

/// Puts values into a text, one a line.
class Teller {
 public:
  explicit Teller(std::string& text) : text_(&text) {}

  void operator()(const std::string& name, const std::string& value) {
    text_->append(name).append("=").append(Escaped(value)).append("\n");
  }
  void operator()(const std::string& name, bool value) { (*this)(name, std::string(value ? "1" : "0")); }
  void operator()(const std::string& name, std::int16_t value) { (*this)(name, std::to_string(value)); }
  void operator()(const std::string& name, float value) {
    std::array<char, 32> digits{};
    const auto end = std::to_chars(digits.data(), digits.data() + digits.size(), value);
    (*this)(name, std::string(digits.data(), end.ptr));
  }

 private:
  std::string* text_;
};

/// Takes values from the lines of a text, each of which has to be there and be what it should.
class Taker {
 public:
  explicit Taker(const std::map<std::string, std::string, std::less<>>& lines) : lines_(&lines) {}

  bool Fine() const { return fine_; }
  bool Has(const std::string& name) const { return lines_->count(name) != 0; }

  void operator()(const std::string& name, std::string& value) {
    const auto found = lines_->find(name);
    if (found == lines_->end()) {
      fine_ = false;
    } else {
      value = Unescaped(found->second);
    }
  }
  void operator()(const std::string& name, bool& value) {
    std::string text;
    (*this)(name, text);
    value = text == "1";
    fine_ = fine_ && (text == "0" || text == "1");
  }
  void operator()(const std::string& name, std::int16_t& value) { Number(name, value); }
  void operator()(const std::string& name, float& value) {
    Number(name, value);
    fine_ = fine_ && std::isfinite(value);
  }

 private:
  template <class Value>
  void Number(const std::string& name, Value& value) {
    std::string text;
    (*this)(name, text);
    const auto end = std::from_chars(text.data(), text.data() + text.size(), value);
    fine_ = fine_ && end.ec == std::errc() && end.ptr == text.data() + text.size() && !text.empty();
  }

  const std::map<std::string, std::string, std::less<>>* lines_;
  bool fine_ = true;
};

std::string OfGear(const char* name, std::size_t place) {
  return std::string(name) + "." + std::to_string(place + 1);
}

template <class Carry, class Row>
void CarryRow(Carry& carry, const std::string& name, Row& row) {
  carry(name + ".row", row.row);
  carry(name + ".text", row.text);
}

/// Every value of the requests by its name, told or taken.
template <class Carry, class Requests>
void CarryRequests(Carry& carry, Requests& requests) {
  carry("request.by-revolutions", requests.byRevolutions);
  carry("request.main-gear", requests.mainGear);
  for (std::size_t place = 0; place < kGears; ++place) {
    carry(OfGear("request.text", place), requests.texts[place]);
    carry(OfGear("request.speed", place), requests.speeds[place]);
    carry(OfGear("request.manual", place), requests.manual[place]);
    carry(OfGear("request.minus", place), requests.minus[place]);
    carry(OfGear("request.plus", place), requests.plus[place]);
    carry(OfGear("request.base-ne", place), requests.baseNe[place]);
    carry(OfGear("request.ne", place), requests.requestNe[place]);
  }
}

/// The same of all but the requests.
template <class Carry, class Kept>
void CarryKept(Carry& carry, Kept& kept) {
  carry("saved", kept.when);
  carry("plan", kept.planFile);
  carry("left", kept.place.left);
  carry("top", kept.place.top);
  carry("width", kept.place.width);
  carry("height", kept.place.height);
  carry("state", kept.place.state);
  auto& plan = kept.plan;
  carry("machine", plan.machine);
  carry("key", plan.key);
  carry("list", plan.list);
  carry("file", plan.file);
  carry("title", plan.title);
  CarryRow(carry, "primary", plan.primary);
  CarryRow(carry, "final", plan.final);
  for (std::size_t place = 0; place < kGears; ++place) {
    CarryRow(carry, OfGear("pair", place), plan.pairs[place]);
    carry(OfGear("baseline", place), plan.baseline[place]);
  }
  carry("baseline-shown", plan.baselineShown);
  carry("tyre", plan.tyreLength);
  carry("shift-ne", plan.shiftNe);
  carry("check-ne", plan.checkNe);
  carry("reference-ne", plan.referenceNe);
  carry("max-speed", plan.maxSpeed);
  carry("max-ne", plan.maxNe);
  carry("remark", plan.remark);
}

std::map<std::string, std::string, std::less<>> LinesOf(std::string_view text) {
  std::map<std::string, std::string, std::less<>> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    const std::size_t equals = line.find('=');
    if (equals != std::string_view::npos) lines.emplace(line.substr(0, equals), line.substr(equals + 1));
  }
  return lines;
}

/// The version in the heading; 0 where there is none.
int VersionOf(std::string_view text) {
  if (!text.starts_with(kHeading)) return 0;
  int version = 0;
  const std::string_view digits = text.substr(kHeading.size());
  const auto end = std::from_chars(digits.data(), digits.data() + digits.size(), version);
  return end.ec == std::errc() ? version : 0;
}

/// Whether the last line is the sum of those before it.
bool IsWhole(std::string_view text) {
  const std::size_t at = text.rfind(kCheck);
  if (at == std::string_view::npos || at == 0 || text[at - 1] != '\n') return false;
  return text.substr(at) == std::string(kCheck) + SumOf(text.substr(0, at)) + "\n";
}

}  // namespace

std::string KeptText(const KeptPlan& kept) {
  std::string text = std::string(kHeading) + std::to_string(kVersion) + "\n";
  Teller tell(text);
  CarryKept(tell, kept);
  if (kept.plan.requests) CarryRequests(tell, *kept.plan.requests);
  return WithKeptSum(text);
}

std::string WithKeptSum(const std::string& lines) {
  return lines + std::string(kCheck) + SumOf(lines) + "\n";
}

ReadKept ParseKept(std::string_view text) {
  const int version = VersionOf(text);
  if (version > kVersion) return {KeptFlaw::Newer, {}};
  if (version != kVersion || !IsWhole(text)) return {KeptFlaw::Damaged, {}};
  const auto lines = LinesOf(text);
  Taker take(lines);
  ReadKept read;
  CarryKept(take, read.kept);
  if (take.Has("request.by-revolutions")) CarryRequests(take, read.kept.plan.requests.emplace());
  if (!take.Fine()) return {KeptFlaw::Damaged, {}};
  return read;
}

}  // namespace veldrin
