#include "tests/monkey/random_list.h"

#include <algorithm>
#include <array>
#include <vector>

namespace veldrin::monkey {

namespace {

constexpr int kGearCount = 6;
constexpr char kEnd[] = "\r\n";

struct Pair {
  std::string text;
  int drive;
  int driven;
};

struct Parts {
  std::vector<int> drives;
  std::vector<int> drivens;
  std::vector<std::array<int, 2>> primaries;
  int rows = 0;
  /// By gear, then by row; "99" is a place without a pair.
  std::array<std::vector<Pair>, kGearCount> gears;
};

std::vector<int> Ascending(Random& random, int lowest, int count) {
  std::vector<int> numbers;
  for (int number = lowest; static_cast<int>(numbers.size()) < count; number += random.Between(1, 2)) {
    numbers.push_back(number);
  }
  return numbers;
}

/// Pairs of a gear, most of them ascending, with holes between them.
std::vector<Pair> MakeGear(Random& random, int gear, int rows, int holes) {
  std::vector<Pair> pairs;
  int drive = 13 + 2 * gear + random.Below(2);
  for (int row = 0; row < rows; ++row) {
    const bool hole = random.Chance(holes);
    const std::string text = std::to_string(gear) + std::string(1, static_cast<char>('A' + row));
    pairs.push_back(hole ? Pair{"99", 99, 99} : Pair{text, drive, 31 - gear / 2});
    if (!hole) drive += random.Chance(90) ? 1 : -1;
  }
  return pairs;
}

Parts MakeParts(Random& random) {
  Parts parts;
  parts.drives = Ascending(random, 13, random.Between(1, 3));
  parts.drivens = Ascending(random, 36, random.Between(1, 5));
  const int primaries = random.Between(1, 3);
  for (int i = 0; i < primaries; ++i) parts.primaries.push_back({19 + i, 60 - random.Below(4)});
  parts.rows = random.Between(1, 5);
  const int holes = random.Chance(50) ? 0 : 30;
  for (int gear = 1; gear <= kGearCount; ++gear) {
    parts.gears[static_cast<std::size_t>(gear - 1)] = MakeGear(random, gear, parts.rows, holes);
  }
  return parts;
}

std::string Numbers(const std::vector<int>& numbers) {
  std::string text;
  for (const int number : numbers) text += std::to_string(number) + ",";
  return text + "99" + kEnd;
}

std::string GearRow(const Parts& parts, int row) {
  std::string text;
  for (const std::vector<Pair>& gear : parts.gears) {
    const Pair& pair = gear[static_cast<std::size_t>(row)];
    text += (text.empty() ? "" : ",") + ("\"" + pair.text + "\",") + std::to_string(pair.drive) + "," +
            std::to_string(pair.driven);
  }
  return text + kEnd;
}

/// Keys within and beyond their ranges; each holds for this machine alone.
std::string Keys(Random& random) {
  const std::vector<std::string> keys{"TYRE_L=1.85",     "TYRE_L=3.01",    "SHIFT_NE=11500", "SHIFT_NE=16000",
                                      "CHECK_NE=9000",   "CHECK_NE=4999",  "MAX_SPEED=260",  "MAX_SPEED=341",
                                      "MAX_NE=14000",    "MAX_NE=18000.5", "COLOUR=RED",     "no key at all",
                                      "SHIFT_NE = 9000", "MAX_NE=fast",    "CHECK_NE=20000"};
  std::string text;
  for (int i = random.Below(4); i > 0; --i) text += random.Pick(keys) + kEnd;
  return text;
}

std::string ListText(Random& random, const std::string& name, const Parts& parts) {
  std::string text = std::string("LIST") + kEnd + name + kEnd;
  text += std::string("FINAL-DRIVE") + kEnd + Numbers(parts.drives);
  text += std::string("FINAL-DRIVEN") + kEnd + Numbers(parts.drivens);
  text += "ROWS," + std::to_string(parts.rows) + ",PRIMARY" + kEnd;
  for (const auto& row : parts.primaries) {
    text += std::to_string(row[0]) + "," + std::to_string(row[1]) + kEnd;
  }
  text += std::string("99") + kEnd + "a machine of chance" + kEnd + "gears" + kEnd;
  for (int row = 0; row < parts.rows; ++row) text += GearRow(parts, row);
  text += std::string("M34-ARRAY") + kEnd;
  const int forbidden = random.Chance(60) ? 15 : 0;
  for (int third = 0; third < parts.rows; ++third) {
    for (int fourth = 0; fourth < parts.rows; ++fourth) {
      text += (fourth > 0 ? "," : "") + std::string(random.Chance(forbidden) ? "99" : "0");
    }
    text += kEnd;
  }
  return text + Keys(random);
}

/// Records of every pair; some lack a part's name, and some files a record.
std::string PartsText(Random& random, const Parts& parts) {
  std::string text;
  const auto part = [&](const char* what, const std::string& pair) {
    return random.Chance(2) ? std::string("\"\"") : "\"" + std::string(what) + pair + "\"";
  };
  for (std::size_t gear = 0; gear < kGearCount; ++gear) {
    for (const Pair& pair : parts.gears[gear]) {
      if (pair.text == "99" || gear == 3 || random.Chance(3)) continue;
      text += std::to_string(gear + 1) + ",\"" + pair.text + "\"";
      if (gear == 2) {
        const Pair& fourth = random.Pick(parts.gears[3]);
        text += ",4,\"" + fourth.text + "\"," + part("M", pair.text) + "," + part("C", pair.text) + "," +
                part("D", fourth.text) + kEnd;
      } else {
        text += "," + part("M", pair.text) + "," + part("C", pair.text) + kEnd;
      }
    }
  }
  if (random.Chance(30)) text += kEnd;
  if (random.Chance(5)) text += "6,\"6A\"";
  return text;
}

/// A plan whose speeds fit no machine: opening it asks which of the two to believe.
std::string PlanText(Random& random, const std::string& name, const Parts& parts) {
  std::string text = "FROM:" + name + ".RAT" + kEnd + "1.9" + kEnd + "12000" + kEnd;
  for (int gear = 0; gear < kGearCount; ++gear) text += std::to_string(90 + 20 * gear) + ".5" + kEnd;
  text += std::to_string(parts.primaries[0][0]) + kEnd + std::to_string(parts.primaries[0][1]) + kEnd;
  text +=
      std::to_string(random.Pick(parts.drives)) + kEnd + std::to_string(random.Pick(parts.drivens)) + kEnd;
  for (std::size_t gear = 0; gear < kGearCount; ++gear) {
    text += (gear > 0 ? "-" : "") + random.Pick(parts.gears[gear]).text;
  }
  return text + kEnd + "by chance" + kEnd;
}

std::string MakeName(Random& random) {
  const std::vector<std::string> names{"AB1", "Qx7", "ZR", "NV0", "LONG5", "TT3"};
  return random.Pick(names);
}

}  // namespace

RandomMachine MakeRandomMachine(Random& random) {
  const Parts parts = MakeParts(random);
  RandomMachine machine;
  machine.name = MakeName(random);
  machine.list = ListText(random, machine.name, parts);
  if (random.Chance(70)) machine.parts = PartsText(random, parts);
  if (random.Chance(70)) machine.plan = PlanText(random, machine.name, parts);
  return machine;
}

}  // namespace veldrin::monkey
