#include "machine/files/real_path.h"

#include "machine/real_command_line.h"
#include "tests/desktop/scratch_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace veldrin {
namespace {

TEST(RealCommandLine, WordsThatTogetherNameAFileAreThatFile) {
  const ScratchFolder scratch;
  scratch.Put("My plans/Round 3, wet.nx4", "");
  const std::string folder = scratch.PathOf("My");
  const std::string plan = scratch.PathOf("My plans/Round 3, wet.nx4");
  EXPECT_EQ(PathOfWords({folder, "plans/Round", "3,", "wet.nx4"}), PathOfWord(plan));
  EXPECT_EQ(PathOfWords({folder, "plans/Round", "4,", "wet.nx4"}), std::nullopt);
  EXPECT_EQ(PathOfWords({folder, "plans"}), std::nullopt) << "a folder is no file";
  EXPECT_EQ(PathOfWords({plan, plan}), std::nullopt);
  EXPECT_EQ(PathOfWords({plan}), PathOfWord(plan));
  EXPECT_EQ(PathOfWords({folder + "/no.nx4"}), PathOfWord(folder + "/no.nx4"))
      << "one word need not be there";
  EXPECT_EQ(PathOfWords({}), "");
}

}  // namespace
}  // namespace veldrin
