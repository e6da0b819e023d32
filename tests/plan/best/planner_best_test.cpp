// --best as the command line has it.
#include "tests/plan/planner_fixture.h"

namespace veldrin {
namespace {

constexpr char kSpeeds[] = "104,134,163,185,204,216";

class PlannerBest : public Planner {
 protected:
  int Best(const Words& more) { return Search(Sample("NX4.RAT"), kSpeeds, more); }
  std::string Mistake(const Words& more) {
    EXPECT_EQ(Best(more), 2);
    EXPECT_EQ(out, "");
    return errors;
  }
  int Count(const std::string& text) const {
    int count = 0;
    for (std::size_t at = out.find(text); at != std::string::npos; at = out.find(text, at + 1)) ++count;
    return count;
  }
};

TEST_F(PlannerBest, GivesMorePlansThanASearchMayHold) {
  EXPECT_EQ(Best({"--best=100"}), 0) << errors;
  EXPECT_EQ(Count("\nPlan "), 100);
}

TEST_F(PlannerBest, TheFirstIsTheNearestThatThereIs) {
  EXPECT_EQ(Best({"--best=1", "--format=json"}), 0) << errors;
  const std::string best = out;
  // Nothing lies within a millionth less than what it misses, and it lies within what it misses.
  const std::size_t at = best.find("\"miss\": ") + 8;
  const double miss = std::stod(best.substr(at));
  EXPECT_EQ(Best({"--best=1", "--format=json", "--within=" + std::to_string(miss + 0.000001)}), 0);
  EXPECT_EQ(out, best);
  EXPECT_EQ(Best({"--best=1", "--within=" + std::to_string(miss - 0.000002)}), 1);
  EXPECT_EQ(errors, Sample("NX4.RAT") + ": no plan found\n");
}

TEST_F(PlannerBest, HoldsGearsAsASearchDoes) {
  EXPECT_EQ(Best({"--best=30", "--main=3", "--manual=6=-1+21", "--format=csv"}), 0) << errors;
  std::istringstream lines(out);
  std::string line;
  std::getline(lines, line);
  EXPECT_EQ(line, "plan,primary,final,gear,pair,request,speed,step,ne_after,miss,sum,steps");
  int checked = 0;
  while (std::getline(lines, line)) {
    std::vector<std::string> fields;
    std::istringstream parts(line);
    for (std::string field; std::getline(parts, field, ',');) fields.push_back(field);
    const double error = std::stod(fields[6]) - std::stod(fields[5]);
    EXPECT_TRUE(fields[3] != "3" || std::abs(error) <= 1.0001) << line;
    EXPECT_TRUE(fields[3] != "6" || error >= -1.0001) << line;
    ++checked;
  }
  EXPECT_EQ(checked, 180);
}

TEST_F(PlannerBest, SaysWhyNothingLiesWithin) {
  EXPECT_EQ(Best({"--best=1", "--within=0.1", "--why"}), 1);
  EXPECT_EQ(Count("near enough"),
            Count("\n1ST") + Count("\n2ND") + Count("\n3RD") + Count("\n4TH") + Count("\n5TH"))
      << out;
  EXPECT_EQ(Count("\nNearest   primary "), 1) << out;
}

TEST_F(PlannerBest, OptionsHaveRangesAndCompany) {
  EXPECT_EQ(Mistake({"--best=0"}), "veldrin-plan: --best: 0 is out of range, 1 to 1000\n");
  EXPECT_EQ(Mistake({"--best=1001"}), "veldrin-plan: --best: 1001 is out of range, 1 to 1000\n");
  EXPECT_EQ(Mistake({"--best=2", "--rank=size"}),
            "veldrin-plan: --rank: \"size\" is none of miss, sum, steps and change\n");
  EXPECT_EQ(Mistake({"--rank=sum"}), "veldrin-plan: --rank goes with --best\n");
  EXPECT_EQ(Mistake({"--within=3"}), "veldrin-plan: --within goes with --best\n");
  EXPECT_EQ(Mistake({"--best=2", "--within=-1"}), "veldrin-plan: --within: -1 is out of range, 0 to 1000\n");
  EXPECT_EQ(Mistake({"--best=2", "--min-plan=2"}),
            "veldrin-plan: --min-plan and --best do not go together\n");
  EXPECT_EQ(Mistake({"--best=2", "--rank=change"}), "veldrin-plan: --rank change goes with --from\n");
  EXPECT_EQ(Mistake({"--tyre-from=60@9000:1"}), "veldrin-plan: --tyre-from goes with --show\n");
  EXPECT_EQ(Mistake({"--language=fr"}), "veldrin-plan: --language: \"fr\" is neither en nor ja\n");
  EXPECT_EQ(Mistake({"--show"}), "veldrin-plan: --show and --speed do not go together\n");
  EXPECT_EQ(Mistake({"--check-ne=4999"}), "veldrin-plan: --check-ne: 4999 is out of range, 5000 to 24000\n");
}

}  // namespace
}  // namespace veldrin
