// Plans as text, where a field needs marks, an escape or a width of its own.
#include "plan/output/plan_output.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

namespace veldrin {
namespace {

/// A plan whose gears run 10 g km/h as asked for, with this text as the 1st gear's pair.
FoundPlan PlanWith(const std::string& pair) {
  FoundPlan plan;
  plan.primary = "20-60";
  plan.final = "14-36";
  for (int gear = 1; gear <= kGears; ++gear) {
    FoundGear& found = plan.gears[static_cast<std::size_t>(gear - 1)];
    found.pair = gear == 1 ? pair : "P";
    found.request = found.speed = static_cast<float>(10 * gear);
    found.step = gear == 1 ? 0 : 10;
    found.afterNe = 9000;
  }
  return plan;
}

template <class Write>
std::string Text(const Write& write) {
  std::ostringstream out;
  write(out);
  return out.str();
}

std::string Line(const std::string& text, int number) {
  std::istringstream lines(text);
  std::string line;
  for (int k = 0; k < number; ++k) std::getline(lines, line);
  return line;
}

TEST(Csv, FieldsStandInMarksWhereTheyWouldNotBeReadBack) {
  struct Case {
    const char* pair;
    const char* field;
  };
  const Case cases[] = {
      {"14.29", "14.29"},   {"", ""}, {"a b", "a b"},  // a blank inside needs none
      {" a", "\" a\""},                                // at either end it would be lost
      {"a ", "\"a \""},                                //
      {" ", "\" \""},                                  //
      {"1,2", "\"1,2\""},                              //
      {"3\"", "\"3\"\"\""},                            // marks are doubled
      {"\"", "\"\"\"\""},                              //
      {"a\nb", "\"a\nb\""},                            //
      {"a\rb", "\"a\rb\""},                            //
      {"変速", "変速"},                                //
  };
  for (const Case& c : cases) {
    const std::string text = Text([&](std::ostream& out) { WriteCsv(out, {PlanWith(c.pair)}); });
    const std::string head = "plan,primary,final,gear,pair,request,speed,step,ne_after\n1,20-60,14-36,1,";
    EXPECT_EQ(text.substr(0, text.find("\n1,20-60,14-36,2,")), head + c.field + ",10,10,,") << c.pair;
  }
}

TEST(Csv, RowsOfTheMachineStandInMarksAsWell) {
  FoundPlan plan = PlanWith("P");
  plan.primary = "2,0";
  plan.final = " 1";
  const std::string text = Text([&](std::ostream& out) { WriteCsv(out, {plan}); });
  EXPECT_EQ(Line(text, 3), "1,\"2,0\",\" 1\",2,P,20,20,10,9000");
}

TEST(Json, TextsAreEscapedWhereTheyMustBe) {
  struct Case {
    std::string pair;
    const char* json;
  };
  const Case cases[] = {
      {"14.29", "14.29"},
      {"", ""},
      {" a b ", " a b "},  // a blank is a character like others
      {"3\"", "3\\\""},
      {"\\", "\\\\"},
      {"/", "/"},
      {"\t", "\\u0009"},
      {"a\nb", "a\\u000ab"},
      {"\x01\x1F", "\\u0001\\u001f"},
      {std::string(1, '\0'), "\\u0000"},
      {"\x7F", "\x7F"},
      {"変速é", "変速é"},
  };
  for (const Case& c : cases) {
    const std::string text =
        Text([&](std::ostream& out) { WriteJson(out, Workspace(), {PlanWith(c.pair)}); });
    EXPECT_EQ(Line(text, 10), std::string("        {\"gear\": 1, \"pair\": \"") + c.json +
                                  "\", \"request\": 10, \"speed\": 10, \"step\": null, \"ne_after\": null},");
  }
}

TEST(Json, MachineIsEscapedAsWell) {
  Workspace machine;
  machine.MachineName = "N\"X 4";
  machine.TyreLength = 1.95F;
  machine.ShiftNe = 12500;
  EXPECT_EQ(
      Text([&](std::ostream& out) { WriteJson(out, machine, {}); }),
      "{\n  \"machine\": \"N\\\"X 4\",\n  \"tyre\": 1.95,\n  \"shift_ne\": 12500,\n  \"plans\": []\n}\n");
}

TEST(Table, ColumnOfPairsIsAsWideAsTheWidestText) {
  struct Case {
    const char* pair;
    const char* head;
    const char* first;
    const char* second;
  };
  const Case cases[] = {
      {"1A", "  gear  pair   request", "  1ST   1A          10", "  2ND   P           20"},
      {"ééééé", "  gear  pair    request", "  1ST   ééééé        10", "  2ND   P            20"},
      {"変速機", "  gear  pair     request", "  1ST   変速機        10", "  2ND   P             20"},
      {"ﾃｽﾄｷﾞｱ", "  gear  pair     request", "  1ST   ﾃｽﾄｷﾞｱ        10", "  2ND   P             20"},
  };
  for (const Case& c : cases) {
    const std::string text =
        Text([&](std::ostream& out) { WriteTable(out, Workspace(), {PlanWith(c.pair)}); });
    EXPECT_TRUE(Line(text, 4).starts_with(c.head)) << text;
    EXPECT_TRUE(Line(text, 5).starts_with(std::string(c.first) + "    10.0")) << text;
    EXPECT_TRUE(Line(text, 6).starts_with(std::string(c.second) + "    20.0")) << text;
  }
}

TEST(Table, DistanceHasASignWhereThereIsAny) {
  struct Case {
    float speed;
    const char* off;
  };
  const Case cases[] = {{10, "     0.0"},     {10.04F, "     0.0"}, {9.96F, "     0.0"},
                        {10.06F, "    +0.1"}, {9.94F, "    -0.1"},  {8, "    -2.0"}};
  for (const Case& c : cases) {
    FoundPlan plan = PlanWith("P");
    plan.gears[0].speed = c.speed;
    const std::string text = Text([&](std::ostream& out) { WriteTable(out, Workspace(), {plan}); });
    EXPECT_TRUE(Line(text, 5).ends_with(c.off)) << text;
  }
}

TEST(Table, CountsItsPlans) {
  const std::vector<FoundPlan> plans = {PlanWith("P"), PlanWith("Q")};
  const std::string text = Text([&](std::ostream& out) { WriteTable(out, Workspace(), plans); });
  EXPECT_TRUE(Line(text, 1).ends_with("   2 plans")) << text;
  EXPECT_TRUE(text.find("\n\nPlan 2   primary 20-60   final 14-36\n  gear") != std::string::npos) << text;
}

}  // namespace
}  // namespace veldrin
