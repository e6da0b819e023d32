// Searches of the planner, and the options that steer them.
#include "calc/plan_search.h"
#include "model/list_tables.h"
#include "runtime/text_file.h"
#include "tests/calc/plain_search.h"
#include "tests/plan/planner_fixture.h"

#include <string>

namespace veldrin {
namespace {

TEST_F(Planner, OptionsOverrideTheKeyLinesAndTheseTheDefaults) {
  std::string text = kPlainList;
  const std::string path = File("PLAIN.RAT", text);
  // Twice the tyre and twice the revolutions make four times the speeds.
  EXPECT_EQ(Search(path, "160,240,320,400,480,560", {"--tyre", "2", "--shift-ne", "10000"}), 0);
  EXPECT_TRUE(out.starts_with("PLAIN   tyre 2 m   shift 10000 rev/min")) << out;
  text.erase(text.find("TYRE_L"));
  const std::string without = File("PLAIN.RAT", text);
  // 13000/5000 * 1.9 = 4.94
  EXPECT_EQ(Search(without, "198,296,395,494,593,692"), 0);
  EXPECT_TRUE(out.starts_with("PLAIN   tyre 1.9 m   shift 13000 rev/min")) << out;
}

TEST_F(Planner, MainGearStaysNear) {
  const std::string path = File("PLAIN.RAT", kPlainList);
  EXPECT_EQ(Search(path, "45,60,80,100,120,140"), 0);
  EXPECT_EQ(Search(path, "45,60,80,100,120,140", {"--main=2"}), 0);
  EXPECT_EQ(Search(path, "45,60,80,100,120,140", {"--main=1"}), 1);
}

TEST_F(Planner, ManualGearStaysWithinItsBoundsAndTheOthersWiden) {
  const std::string path = File("PLAIN.RAT", kPlainList);
  EXPECT_EQ(Search(path, "38,60,80,100,120,140", {"--manual", "1=-1+2"}), 0);
  EXPECT_EQ(Search(path, "37,60,80,100,120,140", {"--manual", "1=-1+2"}), 1);
  EXPECT_EQ(Search(path, "38,81,80,100,120,140", {"--manual", "1=-1+2"}), 0) << "gear 2 sinks by 21";
  EXPECT_EQ(Search(path, "38,82,80,100,120,140", {"--manual", "1=-1+2"}), 1);
  EXPECT_EQ(Search(path, "38,58,80,100,120,140", {"--manual", "1=-1+2"}), 0) << "and rises by 2";
  EXPECT_EQ(Search(path, "38,57,80,100,120,140", {"--manual", "1=-1+2"}), 1);
}

TEST_F(Planner, MinPlanAsksForMore) {
  SampleList list;
  const std::string path = File("TEST.RAT", list.Text());
  // 20-60, 12500 rev/min, 1.95 m: 487.5 km/h times the final and the gear's ratio.
  // 14-40: 82.4 111.6 135.1 156.4 177.5 186.9, 14-36: 91.5 123.9 ..., 15-40: 88.3 119.5 144.7 167.6 190.1
  // 200.2
  EXPECT_EQ(Search(path, "82,112,135,156,177,187"), 0);
  EXPECT_TRUE(out.find("1 plan\n") != std::string::npos) << out;
  EXPECT_EQ(Search(path, "82,112,135,156,177,187", {"--min-plan=2"}), 0);
  EXPECT_TRUE(out.find("2 plans\n") != std::string::npos) << out;
  EXPECT_EQ(Search(path, "82,112,135,156,177,187", {"--min-plan=9"}), 1);
}

TEST_F(Planner, FindsWhatTheSearchFinds) {
  const std::string speeds = "92,114,134,150,164,176";
  EXPECT_EQ(Search(Sample("NX4.RAT"), speeds, {"--format=csv"}), 0);
  Workspace workspace;
  workspace.TyreLength = 1.9F;
  workspace.ShiftNe = 13000;
  workspace.MinPlan = 1;
  TextReader reader(TextOf(Sample("NX4.RAT")));
  reader.Field();
  ASSERT_TRUE(ReadListTables(reader, workspace));
  BuildFinalTable(workspace);
  SortTables(workspace);
  const int requests[] = {92, 114, 134, 150, 164, 176};
  for (int gear = 1; gear <= kGears; ++gear)
    workspace.SpeedRequest[gear] = static_cast<float>(requests[gear - 1]);
  ASSERT_TRUE(plain::SearchAuto(workspace, 0, [](int) {}));
  std::istringstream lines(out);
  std::string line;
  std::getline(lines, line);
  for (int plan = 1; plan <= workspace.PlanCount; ++plan) {
    TextReader rows(workspace.PlanList[plan]);
    const int primary = rows.Int16Field();
    const int final = rows.Int16Field();
    for (int gear = 1; gear <= kGears; ++gear) {
      ASSERT_TRUE(std::getline(lines, line));
      const std::string begin = std::to_string(plan) + "," + workspace.PrimaryTable[primary].Text + "," +
                                workspace.FinalTable[final].Text + "," + std::to_string(gear) + "," +
                                workspace.GearTable(gear, rows.Int16Field()) + "," +
                                std::to_string(requests[gear - 1]) + ",";
      EXPECT_TRUE(line.starts_with(begin)) << line << "\n" << begin;
    }
  }
  EXPECT_FALSE(std::getline(lines, line));
}

/// A list whose speeds are 100 km/h times the final's ratio in every gear. Each of the drive sizes makes 16
/// final rows, one as fast as the other. The first gear of a second row runs 97 km/h where the others run
/// 103.
std::string ListOfFinals(const std::string& drives, bool secondRow = false) {
  std::string text = "LIST\nPLAIN\nFINAL-DRIVE\n" + drives + ",99\nFINAL-DRIVEN\n";
  for (int k = 0; k < 16; ++k) text += "1000,";
  text += std::string("99\nROWS,") + (secondRow ? "2" : "1") + ",PRIMARY\n100,300,99\n-\n-\n";
  for (int gear = 1; gear <= kGears; ++gear) text += "A,100,100\n";
  if (secondRow) text += "B,97,103\n99,0,0,99,0,0,99,0,0,99,0,0,99,0,0\n";
  return text + "M34-ARRAY\n" + (secondRow ? "0,0,0,0" : "0") + "\nTYRE_L=1\nSHIFT_NE=5000\n";
}

TEST_F(Planner, MoreThan30PlansNameTheOptionThatHelps) {
  const std::string path = (folder_ / "PLAIN.RAT").string();
  const std::string tooMany = path + ": more than 30 plans meet these speeds; ";
  const auto helpFor = [&](const std::string& list, const std::string& speeds, const Words& more) {
    File("PLAIN.RAT", list);
    EXPECT_EQ(Search(path, speeds, more), 2);
    EXPECT_EQ(out, "");
    EXPECT_TRUE(errors.starts_with(tooMany)) << errors;
    return errors.substr(std::min(tooMany.size(), errors.size()));
  };
  const std::string hundreds = "100,100,100,100,100,100";
  // 16 rows of 100 km/h and as many of 101.5: the second pass, which finds all, is needed for more than 16.
  EXPECT_EQ(helpFor(ListOfFinals("1000,1015"), hundreds, {"--min-plan=20"}), "try --min-plan 16\n");
  EXPECT_EQ(Search(path, hundreds, {"--min-plan=16", "--format=csv"}), 0);
  // One row of 100 km/h, nine of 98.5, 27 of 101.5 and three of 103.
  const std::string one =
      "LIST\nPLAIN\nFINAL-DRIVE\n1000,985,985,985,985,985,985,985,985,985\nFINAL-DRIVEN\n1000,99\n"
      "ROWS,1,PRIMARY\n100,300,103,300,103,300,103,300,99\n-\n-\n"
      "A,1,1,A,1,1,A,1,1,A,1,1,A,1,1,A,1,1\nM34-ARRAY\n0\nTYRE_L=1\nSHIFT_NE=5000\n";
  EXPECT_EQ(helpFor(one, hundreds, {"--min-plan=2"}), "try --min-plan 1\n");
  // Of 100 and 102 km/h each misses a gear by 2; within 1 km/h of the first gear's request is but the one.
  EXPECT_EQ(helpFor(ListOfFinals("1000,1020"), "100,100,100,100,100,102", {}), "try --main 1\n");
  EXPECT_EQ(Search(path, "100,100,100,100,100,102", {"--main=1"}), 0);
  EXPECT_EQ(helpFor(ListOfFinals("1000,1020"), "102,100,100,100,100,100", {}), "try --main 1\n");
  // All miss the first five gears by 3; the 6th runs 48.5 or 51.5.
  std::string low = ListOfFinals("970,1030");
  low.replace(low.rfind("A,100,100"), 9, "A,50,100");
  EXPECT_EQ(helpFor(low, "100,100,100,100,100,49", {}), "try --main 6\n");
  // Of 97 and 103 km/h no gear comes within 1, but beside a MANUAL gear the others rise by 2 at most.
  EXPECT_EQ(helpFor(ListOfFinals("970,1030"), hundreds, {}), "try --manual 1=-21+21\n");
  EXPECT_EQ(Search(path, hundreds, {"--manual=1=-21+21"}), 0);
  EXPECT_EQ(helpFor(ListOfFinals("970,1030"), hundreds, {"--min-plan=2"}),
            "try --manual 1=-21+21 in place of --min-plan\n");
  EXPECT_EQ(helpFor(ListOfFinals("970,1030", true), "97,100,100,100,100,100", {"--main=1"}),
            "try --manual 1=-21+21 in place of --main\n");
  EXPECT_EQ(helpFor(ListOfFinals("970,1030", true), "97,100,100,100,100,100", {"--main=1", "--min-plan=2"}),
            "try --manual 1=-21+21 in place of --main and --min-plan\n");
  // Narrower bounds of one gear, here without the rows that are 1.5 km/h off.
  Words manual;
  for (int gear = 1; gear <= kGears; ++gear) manual.push_back("--manual=" + std::to_string(gear) + "=-1+5");
  EXPECT_EQ(helpFor(ListOfFinals("1000,1015"), hundreds, manual), "try --manual 1=-1+1\n");
  // Rows of the very same speeds: any bounds let all of them through, or none.
  EXPECT_EQ(helpFor(ListOfFinals("1000,1000"), hundreds, {}), "ask for others\n");
}

TEST_F(Planner, MoreGearRowsThanTheTablesHoldAreNotSearched) {
  SampleList list = TallList();
  const std::string path = File("TEST.RAT", list.Text());
  EXPECT_EQ(Run({"--check", path}), 0);
  EXPECT_EQ(out, path + ": fine: machine TEST, 1 primary, 4 final and 11 gear rows\n");
  EXPECT_EQ(ErrorLines(), 1) << errors;
  EXPECT_EQ(Search(path, "92,124,150,174,197,208"), 2);
  EXPECT_EQ(errors, path + ": 11 gear rows are announced, a search looks at 10 at most\n");
  EXPECT_EQ(out, "");
}

TEST_F(Planner, ListsThatTheProgramTakesWithWarningsAreSearched) {
  SampleList list;
  list[4] = "14.2,15,99";
  list[17] = "TYRE_L =1.9";
  list[18] = "COLOUR=red";
  const std::string path = File("OTHER.RAT", list.Text());
  EXPECT_EQ(Run({"--check", path}), 0);
  EXPECT_EQ(out, path + ": fine: machine TEST, 1 primary, 4 final and 2 gear rows\n");
  EXPECT_EQ(ErrorLines(), 4) << errors;
  // 20-60, 13000 rev/min, 1.9 m: 494 km/h times the final's 14-40 and the gear's ratio.
  EXPECT_EQ(Search(path, "83,113,137,158,180,189"), 0);
  EXPECT_EQ(errors, "") << "a search has nothing to say of them";
  EXPECT_TRUE(out.starts_with("TEST   tyre 1.9 m   shift 13000 rev/min   1 plan\n")) << out;
  EXPECT_TRUE(out.find("primary 20-60   final 14-40") != std::string::npos) << out;
}

TEST_F(Planner, GapsOfTheListAreNoPlans) {
  // Three finals 0, 2 and 3 km/h off: the third pass leaves an empty slot between the second and the third.
  const std::string path = File(
      "PLAIN.RAT",
      "LIST\nPLAIN\nFINAL-DRIVE\n20,99\nFINAL-DRIVEN\n20,99\nROWS,1,PRIMARY\n100,300,102,300,103,300,99\n-\n-"
      "\n"
      "A,100,100,A,100,100,A,100,100,A,100,100,A,100,100,A,100,100\nM34-ARRAY\n0\nTYRE_L=1\nSHIFT_NE=5000\n");
  EXPECT_EQ(Search(path, "100,100,100,100,100,100", {"--min-plan=3", "--format=csv"}), 0);
  EXPECT_EQ(std::count(out.begin(), out.end(), '\n'), 1 + 3 * kGears) << out;
}

}  // namespace
}  // namespace veldrin
