// --why: what the planner says of a search that finds nothing. On kPlainList gear g runs 20 + 20 g km/h with
// the one pair that it has.
#include "tests/plan/planner_fixture.h"

namespace veldrin {
namespace {

class PlannerWhy : public Planner {
 protected:
  bool Says(const std::string& text) const { return out.find(text) != std::string::npos; }

  /// kPlainList with two rows: row 2 of 3rd and 4th gear are 10 km/h faster, the matrix as given.
  std::string TwoRows(const std::string& matrix) {
    return File("PLAIN.RAT",
                "LIST\nPLAIN\nFINAL-DRIVE\n20,99\nFINAL-DRIVEN\n20,99\nROWS,2,PRIMARY\n20,60\n99\n-\n-\n"
                "1A,40,100,2A,60,100,3A,80,100,4A,100,100,5A,120,100,6A,140,100\n"
                "99,0,0,99,0,0,3B,120,100,4B,150,100,99,0,0,99,0,0\nM34-ARRAY\n" +
                    matrix + "TYRE_L=1\nSHIFT_NE=5000\n");
  }
};

TEST_F(PlannerWhy, NamesTheGearAndTheNearestSpeed) {
  EXPECT_EQ(Search(File("PLAIN.RAT", kPlainList), "40,60,80,100,120,170", {"--why"}), 1);
  EXPECT_TRUE(
      Says("PLAIN   tyre 1 m   shift 5000 rev/min   no plan\n\n"
           "6TH: no combination comes near enough to 170 km/h; the nearest is 140.0\n"))
      << out;
  EXPECT_TRUE(
      Says("  gear    request       below       above\n"
           "  1ST         40        40.0        40.0\n"))
      << out;
  EXPECT_TRUE(Says("  6TH        170       140.0           -\n")) << out;
  EXPECT_TRUE(Says("Nearest   primary 20-60   final 20-20\n")) << out;
  EXPECT_TRUE(Says("  misses by 30.0 km/h at most, in 6TH\n")) << out;
  EXPECT_EQ(ErrorLines(), 1) << "no plan found";
}

TEST_F(PlannerWhy, NamesPairsThatCannotBeFittedTogether) {
  // 80 and 100 km/h are there, and so are 120 and 150; what is asked for is 80 and 150.
  const std::string path = TwoRows("0,99\n0,0\n");
  EXPECT_EQ(Search(path, "40,60,80,150,120,140", {"--why"}), 1);
  EXPECT_TRUE(
      Says("\n3RD and 4TH: the pairs of 3RD and 4TH that bring both near enough cannot be fitted together, "
           "the nearest 3A and 4B\n"))
      << out;
  EXPECT_TRUE(Says("  misses by 40.0 km/h at most, in 3RD\n")) << "3B and 4B: " << out;
}

TEST_F(PlannerWhy, SaysThatTheSearchTriesTheNearestPairsAlone) {
  std::string text = TextOf(TwoRows("0,99\n0,0\n"));
  text.replace(text.find("3B,120"), 6, "3B,85");
  const std::string path = File("PLAIN.RAT", text);
  EXPECT_EQ(Search(path, "40,60,80,150,120,140", {"--why"}), 1);
  EXPECT_TRUE(
      Says("the nearest pairs of 3RD and 4TH cannot be fitted together, and the search tries no others\n"))
      << out;
  EXPECT_TRUE(Says("  misses by 5.0 km/h at most, in 3RD\n")) << out;
}

TEST_F(PlannerWhy, CountsThePlansThatAreTooFew) {
  EXPECT_EQ(Search(File("PLAIN.RAT", kPlainList), "40,60,80,100,120,140", {"--why", "--min-plan", "2"}), 1);
  EXPECT_TRUE(Says("only 1 of the 2 plans wanted meet the speeds\n")) << out;
}

TEST_F(PlannerWhy, TellsWhatTheOthersNeedWhenAGearIsHeld) {
  std::string text = kPlainList;
  text.replace(text.find("20,99\nFINAL-DRIVEN"), 5, "20,30,99");  // all gears 1.5 times as fast as well
  // 4th is to stay within 1 of 150, which the faster sprocket does; the others are then up to 70 off.
  EXPECT_EQ(Search(File("PLAIN.RAT", text), "40,60,80,150,120,140", {"--why", "--main", "4"}), 1);
  EXPECT_TRUE(Says("Nearest   primary 20-60   final 20-20\n")) << out;
  EXPECT_TRUE(Says("  misses by 50.0 km/h at most, in 4TH\n")) << out;
  EXPECT_TRUE(Says("Nearest with the gears that are held   primary 20-60   final 30-20\n")) << out;
  EXPECT_TRUE(Says("  needs a tolerance of 70.0 km/h in the others\n")) << out;
}

TEST_F(PlannerWhy, StandsInJsonBesideNoPlans) {
  EXPECT_EQ(Search(File("PLAIN.RAT", kPlainList), "40,60,80,100,120,170", {"--why", "--format", "json"}), 1);
  EXPECT_TRUE(Says("\"plans\": [],\n  \"why\": {\n    \"obstacles\": [\n      \"6TH: no combination")) << out;
  EXPECT_TRUE(Says("{\"gear\": 6, \"request\": 170, \"below\": 140, \"above\": null}")) << out;
  EXPECT_TRUE(Says("\"nearest\": {\"within\": 30, \"plan\":")) << out;
}

TEST_F(PlannerWhy, ChangesNothingWherePlansAreFound) {
  const std::string path = File("PLAIN.RAT", kPlainList);
  EXPECT_EQ(Search(path, "40,60,80,100,120,140"), 0);
  const std::string before = out;
  EXPECT_EQ(Search(path, "40,60,80,100,120,140", {"--why"}), 0);
  EXPECT_EQ(out, before);
}

TEST_F(PlannerWhy, HasNoColumnsAndNoValue) {
  const std::string path = File("PLAIN.RAT", kPlainList);
  EXPECT_EQ(Search(path, "40,60,80,100,120,140", {"--why", "--format", "csv"}), 2);
  EXPECT_EQ(errors, "veldrin-plan: --why has no columns; type --format table or --format json with it\n");
  EXPECT_EQ(Search(path, "40,60,80,100,120,140", {"--why=yes"}), 2);
  EXPECT_EQ(Search(path, "40,60,80,100,120,140", {"--why", "--why"}), 2);
  EXPECT_EQ(Run({"--check", path, "--why"}), 2);
}

}  // namespace
}  // namespace veldrin
