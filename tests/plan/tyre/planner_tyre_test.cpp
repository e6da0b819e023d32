// --tyre-from: the rolling length from measured points. On kPlainList gear g runs (20 + 20 g) / 5000 km/h for
// each rev/min and metre.
#include "plan/files/bad_input.h"
#include "plan/tyre/tyre_fit.h"
#include "tests/plan/planner_fixture.h"

#include <cmath>

namespace veldrin {
namespace {

class PlannerTyre : public Planner {
 protected:
  std::string list = File("PLAIN.RAT", kPlainList);
  std::string plan = File("A.plain",
                          "FROM:PLAIN.RAT\n1\n5000\n40\n60\n80\n100\n120\n140\n20\n60\n20\n20\n"
                          "1A-2,A-3\"A-変速-5A-6A\n\n");

  int Measure(const Words& points, const Words& more = {}) {
    Words words = {"--show", plan};
    for (const std::string& point : points) words.insert(words.end(), {"--tyre-from", point});
    words.insert(words.end(), more.begin(), more.end());
    return Run(words);
  }
  bool Says(const std::string& text) const { return out.find(text) != std::string::npos; }
};

TEST_F(PlannerTyre, OnePointGivesItsOwnLength) {
  // 2nd at 10000 rev/min runs 120 km/h on a metre.
  EXPECT_EQ(Measure({"228@10000:2"}), 0) << errors;
  EXPECT_TRUE(Says("\nTyre of 1 point: 1.9000 m; type --tyre 1.9000 for the plan on it\n"
                   "  gear    speed    rev/min    length     off\n"
                   "  2ND     228.0      10000    1.9000     +-0\n") ||
              Says("  2ND     228.0      10000    1.9000    +0.0\n") ||
              Says("  2ND     228.0      10000    1.9000    -0.0\n"))
      << out;
}

TEST_F(PlannerTyre, SeveralPointsGiveTheLeastSquaresAndTheirSpread) {
  // Per metre 40 and 80 km/h; measured 76.4 and 152: (40 * 76.4 + 80 * 152) / (1600 + 6400) = 1.902.
  EXPECT_EQ(Measure({"76.4@5000:1", "152@5000:3"}, {"--format=csv"}), 0) << errors;
  // Their own lengths are 1.91 and 1.9: sqrt(0.008^2 + 0.002^2).
  EXPECT_TRUE(Says("length,spread,speed,ne,gear,own_length,off,fits\n1.902")) << out;
  const std::size_t comma = out.find(',', out.find("\n1.902"));
  EXPECT_NEAR(std::stod(out.substr(comma + 1)), std::sqrt(0.008 * 0.008 + 0.002 * 0.002), 1e-9);
}

TEST_F(PlannerTyre, APointThatDoesNotFitIsNamedAndLeftOut) {
  EXPECT_EQ(Measure({"76@5000:1", "114@5000:2", "152.2@5000:3", "100@5000:4"}), 0) << errors;
  // (40 * 76 + 60 * 114 + 80 * 152.2) / (1600 + 3600 + 6400) = 1.90138; their own are 1.9, 1.9 and 1.9025.
  EXPECT_TRUE(Says("  4TH     100.0       5000    1.0000   -90.1   does not fit\n")) << out;
  EXPECT_FALSE(Says("1.9000     +0.2   does not fit")) << out;
  EXPECT_TRUE(Says("Tyre of 4 points: 1.9014 m, spread 0.0016;")) << out;
}

TEST_F(PlannerTyre, PointsStandInAFileAsWell) {
  const std::string file = File("RUN.csv", "speed,rev/min,gear\n76,5000,1\n\n114,5000,2\n");
  EXPECT_EQ(Measure({file, "152@5000:3"}), 0) << errors;
  EXPECT_TRUE(Says("\nTyre of 3 points: 1.9000 m")) << out;
  const std::string german = File("LAUF.csv", "76,0;5000;1\r\n114,0;5000;2\r\n");
  EXPECT_EQ(Measure({german}), 0) << errors;
  EXPECT_TRUE(Says("\nTyre of 2 points: 1.9000 m")) << out;
}

TEST_F(PlannerTyre, WhatIsNoPointIsNamedByFileAndLine) {
  struct Case {
    const char* text;
    const char* mistake;
  };
  const Case cases[] = {
      {"76,5000,1\n76,5000\n", ":2: a point has the three fields speed, revolutions, gear, found 2"},
      {"76,5000,1\nx,5000,1\n", ":2: the speed, \"x\", is no number"},
      {"76,400,1\n", ":1: the revolutions, 400, is out of range, 500 to 24000"},
      {"76,5000,7\n", ":1: the gear, 7, is out of range, 1 to 6"},
      {"76,5000,1.5\n", ":1: the gear, 1.5, is not whole"},
      {"speed,ne,gear\n", ": there is no point in it"},
      {"76,\"5000,1\n", ":1: a quotation mark has no partner"},
  };
  for (const Case& c : cases) {
    const std::string file = File("RUN.csv", c.text);
    EXPECT_EQ(Measure({file}), 2) << c.text;
    EXPECT_EQ(errors, file + c.mistake + '\n');
    EXPECT_EQ(out, "");
  }
  EXPECT_EQ(Measure({"76@5000"}), 2);
  EXPECT_EQ(errors,
            "veldrin-plan: --tyre-from: \"76@5000\" is not of the form V@NE:G, such as 61.5@9000:2\n");
  EXPECT_EQ(Measure({"76@5000:7"}), 2);
  EXPECT_EQ(errors, "veldrin-plan: --tyre-from: 7 is out of range, 1 to 6\n");
}

TEST_F(PlannerTyre, ALengthOutOfRangeIsSaid) {
  EXPECT_EQ(Measure({"200@5000:1"}), 0);
  EXPECT_TRUE(Says("5.0000 m, out of range, 1 to 3\n")) << out;
}

}  // namespace
}  // namespace veldrin
