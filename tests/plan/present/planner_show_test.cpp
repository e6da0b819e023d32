// --show, --compare and --from: plans at hand, and what is said of plan files that are wrong.
#include "tests/plan/planner_fixture.h"

namespace veldrin {
namespace {

/// A plan of kPlainList, whose gear g runs 20 + 20 g km/h at 5000 rev/min and 1 m.
constexpr char kPlainPlan[] =
    "FROM:PLAIN.RAT\r\n1\r\n5000\r\n40\r\n60\r\n80\r\n100\r\n120\r\n140\r\n20\r\n60\r\n20\r\n20\r\n"
    "1A-2,A-3\"A-変速-5A-6A\r\nWet.\r\nSecond line\r\n";

class PlannerShow : public Planner {
 protected:
  std::string list = File("PLAIN.RAT", kPlainList);

  /// The plan with one text replaced.
  std::string Plan(const std::string& from = "", const std::string& to = "",
                   const std::string& name = "A.plain") {
    std::string text = kPlainPlan;
    if (!from.empty()) text.replace(text.find(from), from.size(), to);
    return File(name, text);
  }
  bool Says(const std::string& text) const { return out.find(text) != std::string::npos; }
};

TEST_F(PlannerShow, PrintsSpeedsStepsDropsAndDeviations) {
  EXPECT_EQ(Run({"--show", Plan()}), 0) << errors;
  EXPECT_EQ(out,
            "PLAIN   tyre 1 m   shift 5000 rev/min   check 10000 rev/min\n"
            "\n"
            "A.plain   primary 20-60   final 20-20\n"
            "  gear  pair    speed    step  ne after   stored    step     off  +/- ne\n"
            "  1ST   1A       40.0              5000     40.0             +-0     +-0\n"
            "  2ND   2,A      60.0    20.0      3333     60.0    20.0     +-0     +-0\n"
            "  3RD   3\"A      80.0    20.0      3750     80.0    20.0     +-0     +-0\n"
            "  4TH   変速    100.0    20.0      4000    100.0    20.0     +-0     +-0\n"
            "  5TH   5A      120.0    20.0      4167    120.0    20.0     +-0     +-0\n"
            "  6TH   6A      140.0    20.0      4286    140.0    20.0     +-0     +-0\n"
            "\n"
            "  Wet.\n"
            "  Second line\n");
  EXPECT_EQ(errors, "");
}

TEST_F(PlannerShow, OtherConditionsDeviateFromWhatIsStored) {
  // A tyre a tenth longer: 4 km/h more in 1st, and (1 - 1.1) of the check line's 10000.
  EXPECT_EQ(Run({"--show", Plan(), list, "--tyre", "1.1"}), 0) << errors;
  EXPECT_TRUE(Says("  1ST   1A       44.0              5000     40.0            +4.0   -1000\n")) << out;
  // Twice the revolutions, twice the speed: no deviation, since the stored speeds belong to 5000.
  EXPECT_EQ(Run({"--show", Plan(), "--shift-ne=10000", "--check-ne=8000"}), 0) << errors;
  EXPECT_TRUE(Says("shift 10000 rev/min   check 8000 rev/min")) << out;
  EXPECT_TRUE(Says("  1ST   1A       80.0             10000     40.0           +40.0     +-0\n")) << out;
}

TEST_F(PlannerShow, WarnsOfStoredSpeedsThatAreNotThoseOfTheRows) {
  const std::string path = Plan("\r\n100\r\n120", "\r\n101\r\n120");
  EXPECT_EQ(Run({"--show", path}), 0);
  EXPECT_EQ(errors,
            path +
                ": warning: the stored speeds are not those of the plan's rows: 4TH is stored with 101.0 "
                "km/h and runs 100.0\n");
}

TEST_F(PlannerShow, NamesWhatIsWrongByFileAndLine) {
  struct Case {
    const char* from;
    const char* to;
    const char* mistake;
  };
  const Case cases[] = {
      {"FROM:PLAIN.RAT", "FROM:", "1: this is no plan: its first line is not FROM:MACHINE.RAT"},
      {"FROM:PLAIN.RAT", "LIST", "1: this is no plan: its first line is not FROM:MACHINE.RAT"},
      {"FROM:PLAIN.RAT", "FROM:NX4.RAT", "1: this is a plan of NX4, the list is that of PLAIN"},
      {"\r\n1\r\n", "\r\nx\r\n", "2: the tyre length, \"x\", is no number"},
      {"\r\n1\r\n", "\r\n4\r\n", "2: the tyre length, 4, is out of range, 1 to 3"},
      {"5000", "50", "3: the shift revolutions, 50, is out of range, 5000 to 24000"},
      {"80\r\n", "\r\n", "6: the speed of 3RD, \"\", is no number"},
      {"20\r\n60\r\n20", "20\r\n61\r\n20", "10: PLAIN has no primary \"20-61\""},
      {"20\r\n20\r\n1A", "20\r\n21\r\n1A", "12: PLAIN has no final \"20-21\""},
      {"-5A-", "-5B-", "14: PLAIN has no pair \"5B\" in 5TH"},
      {"-6A\r\nWet.\r\nSecond line\r\n", "", "14: PLAIN has no pair \"\" in 6TH"},
      {"100\r\n120\r\n140\r\n20\r\n60\r\n20\r\n20\r\n1A-2,A-3\"A-変速-5A-6A\r\nWet.\r\nSecond line\r\n", "",
       "6: the file ends before the speed of 4TH"},
  };
  for (const Case& c : cases) {
    const std::string path = Plan(c.from, c.to);
    for (const Words& words :
         {Words{"--show", path, list}, Words{list, "--speed=40,60,80,100,120,140", "--from", path}}) {
      EXPECT_EQ(Run(words), 2) << c.mistake;
      EXPECT_EQ(errors, path + ':' + c.mistake + '\n');
      EXPECT_EQ(out, "");
    }
  }
}

TEST_F(PlannerShow, FindsTheListBesideThePlanAndInListBesideItsFolder) {
  EXPECT_EQ(Run({"--show", (fs::path(VELDRIN_SHARE) / "DAT" / "TEST.vt2").string()}), 0) << errors;
  EXPECT_TRUE(Says("VT2   tyre 1.95 m   shift 12500 rev/min   check 9500 rev/min\n")) << out;
  EXPECT_TRUE(Says("M-20/24   C-25C")) << "the parts of 3rd: " << out;
  const std::string lonely = Plan("PLAIN", "LONELY");
  EXPECT_EQ(Run({"--show", lonely}), 2);
  EXPECT_EQ(errors, lonely + ":1: the list LONELY.RAT is not found; type its path behind the plan's\n");
}

TEST_F(PlannerShow, ComparesPlansSideBySide) {
  const std::string dat = (fs::path(VELDRIN_SHARE) / "DAT").string();
  EXPECT_EQ(Run({"--compare", dat + "/DRY.nx4", dat + "/RAIN.nx4", dat + "/DRY.nx4"}), 0) << errors;
  EXPECT_TRUE(Says("                         DRY.nx4      RAIN.nx4       DRY.nx4\n")) << out;
  EXPECT_TRUE(Says("  6TH                      215.3   220.8  +5.4   215.3   +-0\n")) << out;
  EXPECT_TRUE(Says("\n\nDRY.nx4: Dry, long straight.\n")) << out;
  EXPECT_TRUE(Says("\nDRY.nx4: 0 parts change: nothing\n")) << out;
  EXPECT_TRUE(Says("\nRAIN.nx4: 9 parts change: final 18-41 for 17-39; ")) << out;
  EXPECT_EQ(Run({"--compare", Sample("NX4.RAT"), dat + "/DRY.nx4", dat + "/RAIN.nx4", "--format=csv"}), 0)
      << errors;
  EXPECT_EQ(std::count(out.begin(), out.end(), '\n'), 13);
  EXPECT_EQ(Run({"--compare", dat + "/DRY.nx4", dat + "/TEST.vt2"}), 2);
  EXPECT_EQ(errors, dat + "/TEST.vt2:1: this is a plan of VT2, the list is that of NX4\n");
  EXPECT_EQ(Run({"--compare", Sample("NX4.RAT"), dat + "/DRY.nx4"}), 2);
  EXPECT_EQ(errors, "veldrin-plan: --compare needs two plans or more\n");
}

TEST_F(PlannerShow, TellsWhatChangesForEveryPlanOfASearch) {
  const std::string dry = (fs::path(VELDRIN_SHARE) / "DAT" / "DRY.nx4").string();
  // The plan of the file itself meets these within 1 km/h.
  EXPECT_EQ(Search(Sample("NX4.RAT"), "104,135,162,186,205,215", {"--from", dry}), 0) << errors;
  EXPECT_TRUE(Says("\n  changes nothing\n")) << out;
  EXPECT_EQ(Search(Sample("NX4.RAT"), "104,135,162,186,205,215",
                   {"--best=2", "--rank=change", "--from", dry, "--format=json"}),
            0)
      << errors;
  EXPECT_TRUE(Says("\"parts\": 0, \"changes\": []")) << out;
  EXPECT_TRUE(Says("\"parts\": 1, \"changes\": [\"")) << out;
}

TEST_F(PlannerShow, WritesAllFormats) {
  const std::string path = Plan();
  EXPECT_EQ(Run({"--show", path, "--format=csv"}), 0);
  EXPECT_TRUE(Says("\nA.plain,1,5000,20-60,20-20,2,\"2,A\",60,20,3333.3333,60,0,0,,,,\n")) << out;
  EXPECT_EQ(Run({"--show", path, "--format=json"}), 0);
  EXPECT_TRUE(Says(
      "{\"gear\": 1, \"pair\": \"1A\", \"speed\": 40, \"step\": null, \"ne_after\": null, \"stored\": 40, "
      "\"difference\": 0, \"deviation\": 0, \"main\": \"\", \"counter\": \"\"}"))
      << out;
  EXPECT_EQ(Run({"--show", path, "--format=svg"}), 0);
  EXPECT_TRUE(out.starts_with("<svg xmlns=")) << out;
  EXPECT_EQ(Run({"--show", path, "--format=html", "--language=ja"}), 0);
  EXPECT_TRUE(Says("<html lang=\"ja\">")) << out;
  EXPECT_TRUE(Says("<td class=\"text\">3&quot;A</td>")) << out;
  EXPECT_EQ(Search(list, "40,60,80,100,120,140", {"--format=html"}), 0);
  EXPECT_TRUE(Says("<h2>Plan 1</h2>")) << out;
}

}  // namespace
}  // namespace veldrin
