// What the planner prints: table, CSV, JSON, help.
#include "tests/plan/planner_fixture.h"

#include <string>

namespace veldrin {
namespace {

TEST_F(Planner, TableLinesUp) {
  const std::string path = File("PLAIN.RAT", kPlainList);
  EXPECT_EQ(Search(path, "40,60,80,101,120,139"), 0);
  EXPECT_EQ(out,
            "PLAIN   tyre 1 m   shift 5000 rev/min   1 plan\n"
            "\n"
            "Plan 1   primary 20-60   final 20-20\n"
            "  gear  pair   request   speed     off    step  ne after\n"
            "  1ST   1A          40    40.0     0.0\n"
            "  2ND   2,A         60    60.0     0.0    20.0      3333\n"
            "  3RD   3\"A         80    80.0     0.0    20.0      3750\n"
            "  4TH   変速       101   100.0    -1.0    20.0      4000\n"
            "  5TH   5A         120   120.0     0.0    20.0      4167\n"
            "  6TH   6A         139   140.0    +1.0    20.0      4286\n");
  EXPECT_EQ(errors, "");
}

TEST_F(Planner, CsvHasALineForEachGear) {
  const std::string path = File("PLAIN.RAT", kPlainList);
  EXPECT_EQ(Search(path, "40,60,80,101,120,139", {"--format", "csv"}), 0);
  EXPECT_EQ(out,
            "plan,primary,final,gear,pair,request,speed,step,ne_after\n"
            "1,20-60,20-20,1,1A,40,40,,\n"
            "1,20-60,20-20,2,\"2,A\",60,60,20,3333.3333\n"
            "1,20-60,20-20,3,\"3\"\"A\",80,80,20,3750\n"
            "1,20-60,20-20,4,変速,101,100,20,4000\n"
            "1,20-60,20-20,5,5A,120,120,20,4166.6665\n"
            "1,20-60,20-20,6,6A,139,140,20,4285.7144\n");
}

TEST_F(Planner, JsonIsOneObject) {
  const std::string path = File("PLAIN.RAT", kPlainList);
  EXPECT_EQ(Search(path, "40,60,80,101,120,139", {"--format=json"}), 0);
  EXPECT_EQ(out,
            "{\n"
            "  \"machine\": \"PLAIN\",\n"
            "  \"tyre\": 1,\n"
            "  \"shift_ne\": 5000,\n"
            "  \"plans\": [\n"
            "    {\n"
            "      \"primary\": \"20-60\",\n"
            "      \"final\": \"20-20\",\n"
            "      \"gears\": [\n"
            "        {\"gear\": 1, \"pair\": \"1A\", \"request\": 40, \"speed\": 40, \"step\": null, "
            "\"ne_after\": null},\n"
            "        {\"gear\": 2, \"pair\": \"2,A\", \"request\": 60, \"speed\": 60, \"step\": 20, "
            "\"ne_after\": 3333.3333},\n"
            "        {\"gear\": 3, \"pair\": \"3\\\"A\", \"request\": 80, \"speed\": 80, \"step\": 20, "
            "\"ne_after\": 3750},\n"
            "        {\"gear\": 4, \"pair\": \"変速\", \"request\": 101, \"speed\": 100, \"step\": 20, "
            "\"ne_after\": 4000},\n"
            "        {\"gear\": 5, \"pair\": \"5A\", \"request\": 120, \"speed\": 120, \"step\": 20, "
            "\"ne_after\": 4166.6665},\n"
            "        {\"gear\": 6, \"pair\": \"6A\", \"request\": 139, \"speed\": 140, \"step\": 20, "
            "\"ne_after\": 4285.7144}\n"
            "      ]\n"
            "    }\n"
            "  ]\n"
            "}\n");
}

TEST_F(Planner, NoPlanIsStatus1WithAWord) {
  const std::string path = File("PLAIN.RAT", kPlainList);
  EXPECT_EQ(Search(path, "40,60,80,100,120,300"), 1);
  EXPECT_EQ(out, "");
  EXPECT_EQ(errors, path + ": no plan found\n");
  EXPECT_EQ(Search(path, "40,60,80,100,120,300", {"--format=csv"}), 1);
  EXPECT_EQ(out, "plan,primary,final,gear,pair,request,speed,step,ne_after\n");
  EXPECT_EQ(Search(path, "40,60,80,100,120,300", {"--format=json"}), 1);
  EXPECT_EQ(out, "{\n  \"machine\": \"PLAIN\",\n  \"tyre\": 1,\n  \"shift_ne\": 5000,\n  \"plans\": []\n}\n");
}

TEST_F(Planner, HelpAndVersion) {
  EXPECT_EQ(Run({"--help"}), 0);
  EXPECT_TRUE(out.find("--speed V1,...,V6") != std::string::npos);
  EXPECT_TRUE(out.find("plan, primary, final, gear,") != std::string::npos) << "the columns of the CSV";
  std::istringstream lines(out);
  for (std::string line; std::getline(lines, line);) EXPECT_LE(line.size(), 110U) << line;
  EXPECT_EQ(Run({"--version"}), 0);
  EXPECT_EQ(out, std::string("veldrin-plan ") + VELDRIN_VERSION + "\n");
}

TEST_F(Planner, BadCommandLineIsOneLine) {
  EXPECT_EQ(Run({"A.RAT", "--speed", "60"}), 2);
  EXPECT_EQ(errors, "veldrin-plan: --speed: six speeds are needed, found 1\n");
  EXPECT_EQ(out, "");
}

}  // namespace
}  // namespace veldrin
