#include "script/script_source.h"

#include "script/script_error.h"

#include <gtest/gtest.h>

#include <sstream>

namespace veldrin {
namespace {

ScriptSource Source(const std::string& text) {
  std::istringstream stream(text);
  return {stream, "a.script", "folder"};
}

TEST(ScriptSource, CommentsAndEmptyLinesAreNoCommands) {
  ScriptSource source = Source("# one\n\n   \nstart\n  # two\nshow X # three\n");
  EXPECT_EQ(source.NextLine(), "start");
  EXPECT_EQ(source.Place(), "a.script:4");
  EXPECT_EQ(source.NextLine(), "show X # three");
  EXPECT_EQ(source.Place(), "a.script:6");
  EXPECT_EQ(source.NextLine(), std::nullopt);
}

TEST(ScriptSource, PhaseIsTheLastCommentOfItsOwn) {
  ScriptSource source =
      Source("start\n# The first\n# phase.\nshow X\n\n## The second. ##\nshow Y # no phase\nshow Z\n");
  source.NextLine();
  EXPECT_EQ(source.Phase(), "");
  source.NextLine();
  EXPECT_EQ(source.Phase(), "The first phase.");
  source.NextLine();
  EXPECT_EQ(source.Phase(), "The second. ##");
  source.NextLine();
  EXPECT_EQ(source.Phase(), "The second. ##");
}

TEST(ScriptSource, BlocksAreRaw) {
  ScriptSource source = Source("file X\n# no comment \n\n  end\n end of it\nend\nshow X\n");
  EXPECT_EQ(source.NextLine(), "file X");
  EXPECT_EQ(source.NextBlock(), (std::vector<std::string>{"# no comment ", "", "  end", " end of it"}));
  EXPECT_EQ(source.NextLine(), "show X");
  EXPECT_EQ(source.Place(), "a.script:7");
}

TEST(ScriptSource, BlockMayBeEmptyButHasAnEnd) {
  ScriptSource source = Source("file X\nend\nfile Y\nend of it\n");
  source.NextLine();
  EXPECT_TRUE(source.NextBlock().empty());
  source.NextLine();
  EXPECT_THROW(source.NextBlock(), ScriptError);
  EXPECT_EQ(source.Place(), "a.script:3");
}

TEST(ScriptSource, LinesOfWindowsAndAByteOrderMarkAreRead) {
  ScriptSource source = Source("\xEF\xBB\xBFstart\r\nfile X\r\n one \r\nend\r\nshow X");
  EXPECT_EQ(source.NextLine(), "start");
  EXPECT_EQ(source.NextLine(), "file X");
  EXPECT_EQ(source.NextBlock(), std::vector<std::string>{" one "});
  EXPECT_EQ(source.NextLine(), "show X");
  EXPECT_EQ(source.NextLine(), std::nullopt);
}

}  // namespace
}  // namespace veldrin
