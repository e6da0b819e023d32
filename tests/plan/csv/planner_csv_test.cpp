// Machine lists from tables of parts and back.
#include "model/list_tables.h"
#include "plan/csv/list_writer.h"
#include "plan/csv/parts_csv.h"
#include "tests/plan/planner_fixture.h"

#include <random>

namespace veldrin {
namespace {

/// Everything that a list says, as one text.
std::string Said(const PartsTable& parts) {
  const Workspace& machine = parts.machine;
  std::ostringstream said;
  said << machine.MachineName << '|' << machine.MachineKey << '|' << machine.GearRows;
  for (int k = 1; k <= machine.FinalDriveCount; ++k) said << " a" << machine.FinalDriveList[k];
  for (int k = 1; k <= machine.FinalDrivenCount; ++k) said << " b" << machine.FinalDrivenList[k];
  for (int k = 1; k <= machine.PrimaryCount; ++k) {
    said << " p" << machine.PrimaryTable[k].Drive << '-' << machine.PrimaryTable[k].Driven;
  }
  for (int row = 1; row <= machine.GearRows; ++row) {
    for (int gear = 1; gear <= kGears; ++gear) {
      said << '\n'
           << machine.GearTable(gear, row) << ' ' << machine.GearDriveTeeth(gear, row) << ' '
           << machine.GearDrivenTeeth(gear, row);
    }
    for (int fourth = 1; fourth <= machine.GearRows; ++fourth) said << " m" << machine.M34Matrix(row, fourth);
  }
  const KeyedConditions& keyed = machine.keyed;
  said << "\nkeys " << keyed.TyreLength.taken << keyed.TyreLength.set << ' ' << keyed.CheckNe.taken
       << keyed.CheckNe.set << ' ' << keyed.ShiftNe.taken << keyed.ShiftNe.set << ' ' << keyed.MaxSpeed.taken
       << keyed.MaxSpeed.set << ' ' << keyed.MaxNe.taken << keyed.MaxNe.set;
  for (const auto& [place, shafts] : parts.combination.single) {
    said << "\nc" << place.first << place.second << '|' << shafts.main << '|' << shafts.counter;
  }
  for (const auto& [pairs, joint] : parts.combination.joint) {
    said << "\nj" << pairs.first << '|' << pairs.second << '|' << joint.main << '|' << joint.counterOfThird
         << '|' << joint.counterOfFourth;
  }
  return said.str();
}

void ExpectRoundTrip(const std::string& list, const CombinationFile& combination) {
  const PartsTable parts = PartsOfList(list, combination);
  const PartsTable back = ReadPartsCsv("X.csv", PartsCsv(parts));
  EXPECT_EQ(Said(back), Said(parts));
  const CombinationFile written = ReadCombinationFile("X.CMB", CombinationText(back), false);
  EXPECT_EQ(Said(PartsOfList(MachineListText(back), written)), Said(parts));
}

/// A list with as many sizes and pairs as chance will have it, full ones, empty places and doubled texts
/// among them.
std::string RandomList(std::uint32_t seed) {
  std::mt19937 random(seed);
  const auto pick = [&](int lowest, int highest) {
    return lowest + static_cast<int>(random() % static_cast<std::uint32_t>(highest - lowest + 1));
  };
  std::string text = "LIST\nM" + std::to_string(seed) + "\nFINAL-DRIVE\n";
  const auto sizes = [&](int limit) {
    const int count = pick(1, limit);
    for (int k = 0; k < count; ++k) text += std::to_string(pick(10, 98)) + ",";
    text += count < limit ? "99\n" : "";
    if (count == limit) text.back() = '\n';
  };
  sizes(10);
  text += "FINAL-DRIVEN\n";
  sizes(20);
  const int rows = pick(1, 10);
  text += "ROWS," + std::to_string(rows) + ",PRIMARY\n";
  for (int k = pick(1, 8); k > 0; --k)
    text += std::to_string(pick(10, 98)) + "," + std::to_string(pick(10, 150)) + "\n";
  text += "99\nheading, one\n\n";
  for (int cell = 0; cell < rows * 6; ++cell) {
    const char* const texts[] = {"99", "\"a,b\"", "14.30", "3\"A", "変速", "\" x\"", "1"};
    const int kind = pick(0, 20);
    const std::string name = kind < 7 ? texts[kind] : std::to_string(cell) + "." + std::to_string(kind);
    text += name + "," + std::to_string(pick(1, 300)) + "," + std::to_string(pick(1, 300)) +
            (cell % 6 == 5 ? "\n" : ",");
  }
  text += "M34-ARRAY\n";
  for (int k = 0; k < rows * rows; ++k)
    text += std::to_string(pick(0, 3) == 0 ? 99 : pick(0, 9) == 0 ? -7 : 0) + "\n";
  if (pick(0, 1) == 1)
    text += "TYRE_L=1.9" + std::to_string(pick(0, 99)) + "\nMAX_NE=15000\nNOTE=x\nSHIFT_NE=13000.4\n";
  return text;
}

TEST(PartsCsv, ComesBackAsItWentForRandomLists) {
  for (std::uint32_t seed = 1; seed <= 500; ++seed) {
    SCOPED_TRACE("list " + std::to_string(seed));
    ExpectRoundTrip(RandomList(seed), {});
    if (::testing::Test::HasFailure()) return;
  }
}

TEST(PartsCsv, ComesBackWithPartsThatNoPairNames) {
  CombinationFile combination;
  combination.single[{1, "1A"}] = {"M-1,5", "C-1"};
  combination.single[{1, "none"}] = {"M", ""};
  combination.single[{6, "6A"}] = {"", ""};
  combination.joint[{"3\"A", "変速"}] = {"M-34", "C-3", "C-4"};
  ExpectRoundTrip(kPlainList, combination);
}

class PlannerCsv : public Planner {
 protected:
  const std::string target = (folder_ / "PLAIN.RAT").string();
  int FromCsv(const std::string& csv) { return Run({"--from-csv", File("PARTS.csv", csv), target}); }
};

TEST_F(PlannerCsv, SampleListsComeBackThroughTheDisk) {
  for (const char* name : {"NX4", "VT2"}) {
    EXPECT_EQ(Run({"--to-csv", Sample((std::string(name) + ".RAT").c_str())}), 0) << errors;
    const std::string csv = File(std::string(name) + ".csv", out);
    const std::string list = (folder_ / (std::string(name) + ".RAT")).string();
    EXPECT_EQ(Run({"--from-csv", csv, list}), 0) << errors;
    EXPECT_EQ(errors, "");
    EXPECT_EQ(Run({"--to-csv", list}), 0) << errors;
    EXPECT_EQ(out, TextOf(csv));
    EXPECT_EQ(Run({"--check", list}), 0) << errors;
    EXPECT_EQ(errors, "");
  }
}

TEST_F(PlannerCsv, TheDocumentsExampleIsAMachine) {
  const std::string csv = (fs::path(VELDRIN_SHARE) / ".." / ".." / "docs" / "examples" / "MINI.csv").string();
  const std::string list = (folder_ / "MINI.RAT").string();
  EXPECT_EQ(Run({"--from-csv", csv, list}), 0) << errors;
  EXPECT_EQ(errors, "");
  EXPECT_EQ(Run({"--check", list}), 0) << errors;
  EXPECT_EQ(out, list + ": fine: machine MINI, 1 primary, 4 final and 2 gear rows\n");
  EXPECT_EQ(TextOf((folder_ / "MINI.CMB").string()),
            "1,\"14.29\",\"M-14A\",\"C-29A\"\r\n1,\"15.29\",\"M-15A\",\"C-29A\"\r\n"
            "3,\"20.25\",4,\"22.24\",\"M-20/22\",\"C-25C\",\"C-24D\"\r\n");
}

constexpr char kTable[] =
    "kind,gear,text,drive,driven,main,counter,fourth\n"
    "machine,,PLAIN\nfinal-drive,,,20\nfinal-driven,,,,40\nprimary,,,20,60\n"
    "gear,1,1A,40,100,M-1,C-1\ngear,2,2A,60,100\ngear,3,3A,80,100\ngear,3,3B,85,100\ngear,4,4A,100,100\n"
    "gear,5,5A,120,100\ngear,6,6A,140,100\nforbidden,,3B,,,,,4A\nkey,,TYRE_L,1.95\n";

TEST_F(PlannerCsv, WritesAListThatPlansAreFoundWith) {
  EXPECT_EQ(FromCsv(kTable), 0) << errors;
  EXPECT_EQ(out, target + ": written\n" + (folder_ / "PLAIN.CMB").string() + ": written\n");
  EXPECT_EQ(TextOf((folder_ / "PLAIN.CMB").string()), "1,\"1A\",\"M-1\",\"C-1\"\r\n");
  const std::string list = TextOf(target);
  EXPECT_NE(list.find("\"99\",99,99, \"99\",99,99, \"3B\",85,100, \"99\",99,99, "), std::string::npos)
      << list;
  EXPECT_NE(list.find("M34-ARRAY\r\n0,0\r\n99,0\r\nTYRE_L=1.95\r\n"), std::string::npos) << list;
  // 13000 rev/min, 1.95 m, 20/60, 20/40: 253.5 km/h for a ratio of 1.
  EXPECT_EQ(Search(target, "101,152,203,253,304,355"), 0) << errors;
}

TEST_F(PlannerCsv, WhatIsNoPartIsNamedByFileAndLineAndNothingIsWritten) {
  struct Case {
    const char* from;
    const char* to;
    const char* mistake;
  };
  const Case cases[] = {
      {"kind,gear", "sort,gear",
       ":1: \"sort\" is no column; the first line is "
       "kind,gear,text,drive,driven,main,counter,fourth,counter_of_fourth"},
      {"primary,,,20", "primry,,,20",
       ":5: \"primry\" is no kind of part: machine, final-drive, final-driven, primary, gear, forbidden, "
       "matrix, part, "
       "joint, key"},
      {"primary,,,20,60", "primary,,,20", ":5: driven is missing"},
      {"primary,,,20,60", "primary,,,20,0", ":5: driven, 0, is no whole number of 1 to 32767"},
      {"primary,,,20,60", "primary,,,99,60",
       ":5: 99 teeth cannot drive a primary pair in a list, where 99 ends them"},
      {"final-drive,,,20", "final-drive,,,99",
       ":3: 99 teeth cannot stand in a list, where 99 ends the sizes"},
      {"gear,2,2A", "gear,7,2A", ":7: gear, 7, is no whole number of 1 to 6"},
      {"gear,2,2A", "gear,2,", ":7: the pair's text is missing; 99 is an empty place"},
      {"gear,2,2A,60,100\n", "", ": there is no line of kind gear for gear 2"},
      {"machine,,PLAIN\n", "", ": there is no line of kind machine"},
      {"3B,,,,,4A", "3C,,,,,4A", ":13: gear 3 has no pair \"3C\""},
      {"key,,TYRE_L,1.95", "key,,TYRE_L,4", ":14: TYRE_L, \"4\", is no number of 1 to 3"},
      {"key,,TYRE_L", "key,,TYRE", ":14: \"TYRE\" is no key: TYRE_L, CHECK_NE, SHIFT_NE, MAX_SPEED, MAX_NE"},
      {"gear,3,3A,80,100", "gear,3,3A,80,100,M-3,C-3",
       ":8: 3rd and 4th gear share a part of the main shaft; type lines joint for them"},
      {"key,,TYRE_L,1.95", "key,,TYRE_L,1.95,,,,,,x", ":14: \"x\" stands in no column"},
  };
  for (const Case& c : cases) {
    std::string table = kTable;
    table.replace(table.find(c.from), std::string(c.from).size(), c.to);
    EXPECT_EQ(FromCsv(table), 2) << c.mistake;
    EXPECT_EQ(errors, (folder_ / "PARTS.csv").string() + c.mistake + '\n');
    EXPECT_EQ(out, "");
    EXPECT_FALSE(fs::exists(target));
  }
}

TEST_F(PlannerCsv, NothingIsWrittenOverOrHalf) {
  File("PLAIN.CMB", "1,a,b,c\n");
  EXPECT_EQ(FromCsv(kTable), 2);
  EXPECT_EQ(errors,
            (folder_ / "PLAIN.CMB").string() + ": exists already; type another name or take it away\n");
  EXPECT_FALSE(fs::exists(target));
  EXPECT_EQ(Run({"--from-csv", File("PARTS.csv", kTable), (folder_ / "none" / "A.RAT").string()}), 2);
  EXPECT_EQ(errors, (folder_ / "none" / "A.RAT").string() + ": cannot be written\n");
  EXPECT_EQ(Run({"--from-csv", File("PARTS.csv", kTable)}), 2);
  EXPECT_EQ(errors, "veldrin-plan: --from-csv needs the table of parts and the list to be written\n");
}

TEST_F(PlannerCsv, SemicolonsAndDecimalCommasAreRead) {
  std::string table = kTable;
  for (char& c : table) c = c == ',' ? ';' : c;
  table.replace(table.find("1.95"), 4, "1,95");
  EXPECT_EQ(FromCsv(table), 0) << errors;
  EXPECT_NE(TextOf(target).find("TYRE_L=1.95\r\n"), std::string::npos);
}

}  // namespace
}  // namespace veldrin
