#include "script/script_names.h"

#include "script/script_error.h"
#include "script/script_suggest.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

using List = std::vector<std::string>;

List Names(const char* text) {
  List names;
  for (const ScriptName& name : ParseNames(text)) names.push_back(NameText(name));
  return names;
}

TEST(ScriptNames, PartsHaveSubscripts) {
  const ScriptName name = ParseName("Form2.Grid2(3).Cell(0,-1)");
  ASSERT_EQ(name.size(), 3U);
  EXPECT_EQ(name[0].name, "Form2");
  EXPECT_TRUE(name[0].indices.empty());
  EXPECT_EQ(name[1].name, "Grid2");
  EXPECT_EQ(name[1].indices, std::vector<int>{3});
  EXPECT_EQ(name[2].indices, (std::vector<int>{0, -1}));
}

TEST(ScriptNames, RangesStandForEachInTurn) {
  EXPECT_EQ(Names("ModeWord"), List{"ModeWord"});
  EXPECT_EQ(Names("Form2.Label9(1..3).Caption"),
            (List{"Form2.Label9(1).Caption", "Form2.Label9(2).Caption", "Form2.Label9(3).Caption"}));
  EXPECT_EQ(Names("GearTable(3,1..2)"), (List{"GearTable(3,1)", "GearTable(3,2)"}));
  EXPECT_EQ(Names("GearTable(1..2,5)"), (List{"GearTable(1,5)", "GearTable(2,5)"}));
  EXPECT_EQ(Names("X(1..2,3..4)"), (List{"X(1,3)", "X(1,4)", "X(2,3)", "X(2,4)"}));
  EXPECT_EQ(Names("X(1..2).Y(3..4)"), (List{"X(1).Y(3)", "X(1).Y(4)", "X(2).Y(3)", "X(2).Y(4)"}));
  EXPECT_EQ(Names("X(-2..-1)"), (List{"X(-2)", "X(-1)"}));
  EXPECT_EQ(Names("X(3..1)"), (List{"X(3)", "X(2)", "X(1)"}));
  EXPECT_EQ(Names("X(2..2)"), List{"X(2)"});
}

TEST(ScriptNames, OtherTextsAreErrors) {
  for (const char* text : {"", ".", "X.", ".X", "X()", "X(", "X(1", "X(a)", "X(1.2)", "X(1..)", "X(..2)",
                           "X(1,)", "X(1)Y", "X)", "X(1))", "X(99999999999)", "X(1..1000000)"}) {
    EXPECT_THROW(ParseNames(text), ScriptError) << text;
  }
}

TEST(ScriptNames, OneNameIsNoRange) {
  EXPECT_EQ(NameText(ParseName("X(2..2)")), "X(2)");
  EXPECT_THROW(ParseName("X(1..2)"), ScriptError);
}

TEST(ScriptSuggestions, TheNearestNameIsOffered) {
  const List known{"click", "dblclick", "close", "ModeWord", "Form2"};
  EXPECT_EQ(Suggestion("clik", known), " - did you mean click?");
  EXPECT_EQ(Suggestion("lcick", known), " - did you mean click?");
  EXPECT_EQ(Suggestion("modeword", known), " - did you mean ModeWord?");
  EXPECT_EQ(Suggestion("Form8", known), " - did you mean Form2?");
  EXPECT_EQ(Suggestion("nothing", known), "");
  EXPECT_EQ(Suggestion("x", {}), "");
  EXPECT_EQ(Suggestion("abx", {"cay"}), "") << "only neighbours that changed places count as one";
}

}  // namespace
}  // namespace veldrin
