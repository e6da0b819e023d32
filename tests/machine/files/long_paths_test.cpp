// Plans in folders whose paths are longer than 260 characters, where old calls of Windows end.
#include "machine/files/real_files.h"
#include "machine/files/real_made_folder.h"
#include "machine/files/real_path.h"
#include "machine/real_command_line.h"
#include "platform/disk.h"
#include "platform/system_code_pages.h"
#include "tests/desktop/scratch_folder.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

class LongPathsTest : public ::testing::Test, protected ScratchFolder {
 protected:
  void SetUp() override {
    deep = TextOfPath(WholePath(PathOfText(folder.path().toStdString())));
    for (int i = 0; i < 5; ++i) deep += files.Rules().separator + ("Season 20" + std::string(50, 'a'));
    MakeFolder(PathOfText(deep));
    ASSERT_GT(deep.size(), 260U);
    plan = deep + files.Rules().separator + "雨.nx4";
  }

  void Save(const std::string& text) {
    const auto writer = files.OpenForWriting(plan);
    writer->Write(text);
    writer->Close();
  }

  RealFiles files{SystemCodePages(false)};
  std::string deep;
  std::string plan;
};

TEST_F(LongPathsTest, APlanIsSavedFoundReadAndDeleted) {
  Save("FROM:NX4.RAT\r\n");
  Save("FROM:NX4.RAT\r\n1.9\r\n");
  EXPECT_EQ(files.ReadText(plan), "FROM:NX4.RAT\r\n1.9\r\n");
  EXPECT_TRUE(files.FileExists(plan));
  EXPECT_EQ(files.Size(plan), 19);
  EXPECT_EQ(files.LongName(plan), "雨.nx4");
  EXPECT_EQ(files.FindFirst(deep + files.Rules().separator + "*.nx4"), "雨.nx4");
  EXPECT_EQ(PathOfWord(plan), plan);
  files.Delete(plan);
  EXPECT_FALSE(files.FileExists(plan));
}

TEST_F(LongPathsTest, TheBoxesListWhatIsInTheFolder) {
  Save("");
  MakeFolder(PathOfText(deep + files.Rules().separator + "LIST"));
  EXPECT_EQ(files.FileNames(deep, "*.nx4"), std::vector<std::string>{"雨.nx4"});
  EXPECT_EQ(files.FolderNames(deep), std::vector<std::string>{"LIST"});
  EXPECT_EQ(files.ResolveFolder(deep), deep);
}

#ifdef _WIN32
TEST(NetworkPaths, TheShareStaysAtTheFront) {
  EXPECT_EQ(PathOfWord("\\\\box\\share\\a\\..\\b.nx4"), "\\\\box\\share\\b.nx4");
  EXPECT_EQ(TextOfPath(PathOnDisk("\\\\no-such-box\\share\\b.nx4")), "\\\\no-such-box\\share\\b.nx4");
  EXPECT_EQ(PathOfWord("c:\\a.nx4"), "C:\\a.nx4");
}
#endif

}  // namespace
}  // namespace veldrin
