#include "simulated/simulated_path.h"

#include "runtime/fault.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

struct CutCase {
  const char* path;
  char drive;
  bool rooted;
  std::vector<std::string> parts;
};

TEST(SimulatedPath, IsCutIntoDriveAndParts) {
  const CutCase cases[] = {
      {"C:\\VELDRIN\\LIST\\NX4.RAT", 'C', true, {"VELDRIN", "LIST", "NX4.RAT"}},
      {"c:\\", 'C', true, {}},
      {"C:", 'C', false, {}},
      {"C:x", 'C', false, {"x"}},
      {"x.txt", 0, false, {"x.txt"}},
      {"\\x", 0, true, {"x"}},
      {"C:/VELDRIN/LIST", 'C', true, {"VELDRIN", "LIST"}},
      {"C:\\\\x", 'C', true, {"x"}},
      {"C:\\VELDRIN\\", 'C', true, {"VELDRIN"}},
      {".\\a\\..\\b", 0, false, {"a", "..", "b"}},
      {"C:\\name. \\x..", 'C', true, {"name", "x"}},
      {"C:\\two words\\ＭＳ.txt", 'C', true, {"two words", "ＭＳ.txt"}},
  };
  for (const CutCase& expected : cases) {
    const SimulatedPath path = CutPath(expected.path);
    EXPECT_EQ(path.drive, expected.drive) << expected.path;
    EXPECT_EQ(path.rooted, expected.rooted) << expected.path;
    EXPECT_EQ(path.parts, expected.parts) << expected.path;
  }
}

TEST(SimulatedPath, BadNamesAreFault52) {
  const char* const cases[] = {"",         "C:\\A\\C:\\B", "a:b:c",     "C:\\a<b",  "C:\\a>b",    "C:\\a|b",
                               "C:\\a\"b", "*.txt",        "C:\\a?\\b", "C:\\a\tb", "\\\\net\\x", "//net/x",
                               "1:\\x",    ":x",           "...",       "C:\\ \\x", "ab:\\c.txt"};
  for (const char* path : cases) {
    EXPECT_EQ(Guarded([&] { CutPath(path); }), 52) << path;
  }
}

TEST(SimulatedPath, PatternIsTheLastPart) {
  const auto cut = [](const char* pattern) {
    const SimulatedPattern parts = CutPattern(pattern);
    return parts.folder + " + " + parts.name;
  };
  EXPECT_EQ(cut("C:\\TEMP\\veld???.tmp"), "C:\\TEMP\\ + veld???.tmp");
  EXPECT_EQ(cut("C:*.nx4"), "C: + *.nx4");
  EXPECT_EQ(cut("*.*"), " + *.*");
  EXPECT_EQ(cut("C:/a/b*"), "C:/a/ + b*");
  EXPECT_EQ(cut("C:\\TEMP\\"), "C:\\TEMP\\ + ");
  EXPECT_EQ(Guarded([&] { cut("C:\\a\\<*"); }), 52);
  EXPECT_EQ(Guarded([&] { cut("C:\\a\\b:*"); }), 52);
}

}  // namespace
}  // namespace veldrin
