#include "safety/kept_plan.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace veldrin {
namespace {

KeptPlan Sample() {
  KeptPlan kept;
  kept.when = "2026-11-22T21:04:05";
  kept.planFile = "id-1.nx4";
  kept.place = {1200, 900.5F, 11000, 8000, 2};
  PlanState& plan = kept.plan;
  plan.machine = "NX4";
  plan.key = "nx4";
  plan.list = "C:\\VELDRIN\\LIST\\NX4.RAT";
  plan.file = "/home/käthe/雨.nx4";
  plan.title = "Veldrin [NX4] - [DAT] - [A=B]";
  plan.primary = {3, "21-61"};
  plan.final = {17, "18-41"};
  for (std::size_t place = 0; place < kGears; ++place) {
    plan.pairs[place] = {static_cast<std::int16_t>(place + 1), "1" + std::to_string(place) + ".2\\8"};
    plan.baseline[place] = 100.1F + static_cast<float>(place);
  }
  plan.tyreLength = 1.9F;
  plan.shiftNe = 13000;
  plan.checkNe = 9500;
  plan.referenceNe = 12500;
  plan.remark = "wet\r\n\\r is no line end\r\n雨";
  plan.maxSpeed = 260;
  plan.maxNe = 14000;
  return kept;
}

RequestState SampleRequests() {
  RequestState requests;
  requests.byRevolutions = true;
  requests.mainGear = 6;
  for (std::size_t place = 0; place < kGears; ++place) {
    const auto number = static_cast<std::int16_t>(place);
    requests.texts[place] = std::to_string(100 + number) + "x";
    requests.speeds[place] = 100.0F + static_cast<float>(number);
    requests.manual[place] = number % 2 == 0;
    requests.minus[place] = static_cast<std::int16_t>(-number);
    requests.plus[place] = number;
    requests.baseNe[place] = static_cast<std::int16_t>(9000 + number);
    requests.requestNe[place] = static_cast<std::int16_t>(9050 + number);
  }
  return requests;
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::vector<std::string> lines;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = text.find('\n', begin) + 1;
    lines.push_back(text.substr(begin, end - begin));
    begin = end;
  }
  return lines;
}

TEST(KeptPlanTest, ReadsBackWhatWasTold) {
  KeptPlan kept = Sample();
  EXPECT_EQ(ParseKept(KeptText(kept)).kept, kept);
  kept.plan.requests = SampleRequests();
  const ReadKept read = ParseKept(KeptText(kept));
  EXPECT_EQ(read.flaw, KeptFlaw::None);
  EXPECT_EQ(read.kept, kept);
}

/// The names of a text's values, in its order.
std::vector<std::string> NamesIn(const std::string& text) {
  std::vector<std::string> names;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) {
    const std::size_t equals = line.find('=');
    if (equals != std::string::npos) names.push_back(line.substr(0, equals));
  }
  return names;
}

// A plan may be kept by one version of the program and opened by another.
TEST(KeptPlanTest, ValuesKeepTheirNames) {
  std::vector<std::string> names = {
      "saved", "plan", "left", "top",   "width",       "height",       "state",     "machine",
      "key",   "list", "file", "title", "primary.row", "primary.text", "final.row", "final.text"};
  const auto ofGears = [&](std::initializer_list<const char*> stems) {
    for (int gear = 1; gear <= 6; ++gear) {
      for (std::string stem : stems) names.push_back(stem.replace(stem.find('#'), 1, std::to_string(gear)));
    }
  };
  ofGears({"pair.#.row", "pair.#.text", "baseline.#"});
  for (const char* name :
       {"baseline-shown", "tyre", "shift-ne", "check-ne", "reference-ne", "max-speed", "max-ne", "remark"}) {
    names.emplace_back(name);
  }
  KeptPlan kept = Sample();
  kept.plan.requests.reset();
  std::vector<std::string> told = NamesIn(KeptText(kept));
  ASSERT_GE(told.size(), names.size());
  told.resize(names.size());
  EXPECT_EQ(told, names);
  kept.plan.requests = SampleRequests();
  const std::string text = KeptText(kept);
  for (const char* name :
       {"\nrequest.by-revolutions=1\n", "\nrequest.main-gear=6\n", "\nrequest.text.6=105x\n",
        "\nrequest.speed.6=105\n", "\nrequest.manual.1=1\n", "\nrequest.minus.6=-5\n", "\nrequest.plus.6=5\n",
        "\nrequest.base-ne.6=9005\n", "\nrequest.ne.6=9055\n"}) {
    EXPECT_NE(text.find(name), std::string::npos) << name;
  }
}

TEST(KeptPlanTest, EveryCutIsKnown) {
  KeptPlan kept = Sample();
  kept.plan.requests = SampleRequests();
  const std::string text = KeptText(kept);
  for (std::size_t length = 0; length < text.size(); ++length) {
    EXPECT_EQ(ParseKept(text.substr(0, length)).flaw, KeptFlaw::Damaged) << length;
  }
}

TEST(KeptPlanTest, EveryChangedByteIsKnown) {
  const std::string text = KeptText(Sample());
  for (std::size_t at = 0; at < text.size(); ++at) {
    std::string changed = text;
    changed[at] = static_cast<char>(changed[at] ^ 1);
    EXPECT_NE(ParseKept(changed).flaw, KeptFlaw::None) << at;
  }
}

/// The lines with a sum that fits them, as someone with an editor could make them.
std::string Summed(const std::vector<std::string>& lines) {
  std::string body;
  for (const std::string& line : lines) body += line;
  std::uint64_t sum = 14695981039346656037U;
  for (const char c : body) sum = (sum ^ static_cast<unsigned char>(c)) * 1099511628211U;
  char digits[17];
  std::snprintf(digits, sizeof digits, "%llx", static_cast<unsigned long long>(sum));
  return body + "check=" + digits + "\n";
}

TEST(KeptPlanTest, EveryMissingLineIsKnown) {
  KeptPlan kept = Sample();
  kept.plan.requests = SampleRequests();
  std::vector<std::string> lines = LinesOf(KeptText(kept));
  lines.pop_back();
  EXPECT_EQ(ParseKept(Summed(lines)).flaw, KeptFlaw::None);
  for (std::size_t at = 1; at < lines.size(); ++at) {
    std::vector<std::string> fewer = lines;
    fewer.erase(fewer.begin() + static_cast<std::ptrdiff_t>(at));
    const ReadKept read = ParseKept(Summed(fewer));
    // Without the line that announces them the requests are passed over.
    const bool announces = lines[at].starts_with("request.by-revolutions");
    EXPECT_EQ(read.flaw, announces ? KeptFlaw::None : KeptFlaw::Damaged) << lines[at];
  }
}

TEST(KeptPlanTest, ValuesThatAreNoneAreKnown) {
  std::vector<std::string> lines = LinesOf(KeptText(Sample()));
  lines.pop_back();
  for (const char* wrong :
       {"shift-ne=13000x\n", "shift-ne=\n", "shift-ne=99999\n", "tyre=nan\n", "tyre=inf\n", "tyre=1,9\n"}) {
    std::vector<std::string> changed = lines;
    const std::string name(wrong, std::string_view(wrong).find('=') + 1);
    for (std::string& line : changed) {
      if (line.starts_with(name)) line = wrong;
    }
    EXPECT_EQ(ParseKept(Summed(changed)).flaw, KeptFlaw::Damaged) << wrong;
  }
}

TEST(KeptPlanTest, NewerVersionIsKnownForWhatItIs) {
  EXPECT_EQ(ParseKept("veldrin kept plan 2\nanything").flaw, KeptFlaw::Newer);
  EXPECT_EQ(ParseKept("veldrin kept plan x\n").flaw, KeptFlaw::Damaged);
  EXPECT_EQ(ParseKept("").flaw, KeptFlaw::Damaged);
}

}  // namespace
}  // namespace veldrin
