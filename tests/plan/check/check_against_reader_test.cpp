// The strict reading against the program's own: it finds faults in just the lists that the program refuses,
// or of which it does not get every number that counts.
#include "model/list_tables.h"
#include "plan/check/list_check.h"
#include "runtime/text_file.h"
#include "tests/plan/sample_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>
#include <random>
#include <sstream>
#include <string>

namespace veldrin {
namespace {

/// Everything that counts of a machine as text, read into tables that held `before` and `pair` all over. What
/// is skipped keeps that, so two readings over different tables differ. Nothing for a list that is refused.
std::optional<std::string> Reading(const std::string& list, std::int16_t before, const char* pair) {
  Workspace workspace;
  workspace.GearRows = before;
  for (int i = 1; i <= kFinalDriveLimit; ++i) workspace.FinalDriveList[i] = before;
  for (int i = 1; i <= kFinalDrivenLimit; ++i) workspace.FinalDrivenList[i] = before;
  for (int i = 1; i <= kPrimaryLimit; ++i)
    workspace.PrimaryTable[i].Drive = workspace.PrimaryTable[i].Driven = before;
  for (int row = 1; row <= kGearRowLimit; ++row) {
    for (int k = 1; k <= kGearRowLimit; ++k) workspace.M34Matrix(row, k) = before;
    for (int gear = 1; gear <= kGears; ++gear) {
      workspace.GearTable(gear, row) = pair;
      workspace.GearDriveTeeth(gear, row) = workspace.GearDrivenTeeth(gear, row) = before;
    }
  }
  TextReader reader(list);
  if (reader.AtEnd() || !reader.Field().starts_with("LIST")) return {};
  if (!ReadListTables(reader, workspace)) return {};

  std::ostringstream all;
  bool usable = !workspace.MachineName.empty() && workspace.PrimaryCount > 0 &&
                FinalRowCount(workspace) > 0 && workspace.GearRows > 0;
  const auto teeth = [&](int number) {
    usable = usable && number > 0;
    all << number << ' ';
  };
  all << workspace.MachineName << '\n' << workspace.GearRows << '\n';
  for (int i = 1; i <= workspace.FinalDriveCount; ++i) teeth(workspace.FinalDriveList[i]);
  for (int i = 1; i <= workspace.FinalDrivenCount; ++i) teeth(workspace.FinalDrivenList[i]);
  for (int i = 1; i <= workspace.PrimaryCount; ++i) {
    teeth(workspace.PrimaryTable[i].Drive);
    teeth(workspace.PrimaryTable[i].Driven);
  }
  const int rows = std::min<int>(workspace.GearRows, kGearRowLimit);
  for (int row = 1; row <= rows; ++row) {
    for (int gear = 1; gear <= kGears; ++gear) {
      const std::string& text = workspace.GearTable(gear, row);
      all << text << '\n';
      if (text == kNoPair) continue;
      teeth(workspace.GearDriveTeeth(gear, row));
      teeth(workspace.GearDrivenTeeth(gear, row));
    }
    for (int k = 1; k <= rows; ++k) all << workspace.M34Matrix(row, k) << '\n';
  }
  if (!usable) return {};
  return all.str();
}

bool ProgramTakes(const std::string& list) {
  const std::optional<std::string> once = Reading(list, 3, "once");
  return once && once == Reading(list, 7, "again");
}

std::string SampleText(const char* name) {
  std::ifstream file(std::string(VELDRIN_SHARE) + "/LIST/" + name, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// All tables full.
std::string FullList() {
  SampleList list;
  list[4] = "11,12,13,14,15,16,17,18,19,20";
  list[6] = "31,32,33,34,35,36,37,38,39,40,41,42,43,44,45,46,47,48,49,50";
  list[8] = "20,60,21,60,22,60,23,60,24,60,25,60,26,60,27,60";
  return list.Text();
}
/// A character is changed, taken out or put in.
void DamageCharacter(std::string& text, std::mt19937& any) {
  const std::string characters = "0123456789,\"\n-=. AMx\t\x82";
  const std::size_t at = any() % text.size();
  switch (any() % 4) {
    case 0:
      text.erase(at, 1 + any() % 3);
      break;
    case 1:
      text.insert(at, 1, characters[any() % characters.size()]);
      break;
    default:
      text[at] = characters[any() % characters.size()];
  }
}

/// A field becomes another one, is doubled or goes.
void DamageField(std::string& text, std::mt19937& any) {
  const char* const fields[] = {"99", "99.2", "98.5",  "\"99\"",  "099",          "14.5", "0",   "-3",    "x",
                                "",   "\"12", "40000", "PRIMARY", "FINAL-DRIVEN", "A=1",  "1e1", "\"7\"x"};
  const std::size_t from = any() % text.size();
  const std::size_t begin = std::min(text.find_last_of(",\n", from) + 1, text.size());
  const std::size_t end = std::min(text.find_first_of(",\n", begin), text.size());
  const std::string field = text.substr(begin, end - begin);
  switch (any() % 4) {
    case 0:
      text.erase(begin, end - begin + 1);
      break;
    case 1:
      text.insert(begin, field + ",");
      break;
    default:
      text.replace(begin, end - begin, fields[any() % std::size(fields)]);
  }
}

std::string Damaged(std::string text, std::mt19937& any) {
  for (unsigned changes = 1 + any() % 3; changes > 0; --changes) {
    if (any() % 2 == 0) {
      DamageCharacter(text, any);
    } else {
      DamageField(text, any);
    }
  }
  return text;
}

TEST(CheckAgainstReader, FaultsAreWhatTheProgramCannotTake) {
  std::mt19937 any(29);
  const std::string texts[] = {SampleText("NX4.RAT"), SampleText("VT2.RAT"), SampleList().Text(), FullList(),
                               TallList().Text()};
  int taken = 0;
  int refused = 0;
  for (int round = 0; round < 3000; ++round) {
    const std::string text = Damaged(texts[round % std::size(texts)], any);
    const bool fine = CheckList(text, "X").Faults() == 0;
    ASSERT_EQ(fine, ProgramTakes(text)) << text;
    ++(fine ? taken : refused);
  }
  EXPECT_GT(taken, 500);
  EXPECT_GT(refused, 500);
}

TEST(CheckAgainstReader, ListsCutAtAnyByteAreJudgedAlike) {
  for (const std::string& text : {SampleList().Text(), FullList()}) {
    for (std::size_t size = 0; size <= text.size(); ++size) {
      const std::string cut = text.substr(0, size);
      ASSERT_EQ(CheckList(cut, "X").Faults() == 0, ProgramTakes(cut)) << cut;
    }
  }
}

}  // namespace
}  // namespace veldrin
