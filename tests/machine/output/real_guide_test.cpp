#include "machine/output/real_guide.h"

#include "tests/desktop/opened_links.h"
#include "tests/desktop/scratch_folder.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

class RealGuideTest : public ::testing::Test, protected ScratchFolder {
 protected:
  OpenedLinks desktop;
};

TEST_F(RealGuideTest, IsFoundWhereverItWasInstalled) {
  Put("windows/guide/en/index.html", "");
  EXPECT_EQ(GuideFolder(In("windows")), In("windows/guide"));
  Put("prefix/share/doc/veldrin/guide/en/index.html", "");
  Put("prefix/bin/veldrin", "");
  EXPECT_EQ(GuideFolder(In("prefix/bin")), In("prefix/share/doc/veldrin/guide"));
  Put("copied/share/veldrin/guide/en/index.html", "");
  EXPECT_EQ(GuideFolder(In("copied")), In("copied/share/veldrin/guide"));
}

TEST_F(RealGuideTest, IsFoundInTheBuildFolder) {
  Put("build/release/share/doc/veldrin/guide/en/index.html", "");
  Put("build/release/bin/veldrin", "");
  EXPECT_EQ(GuideFolder(In("build/release/bin")), In("build/release/share/doc/veldrin/guide"));
}

TEST_F(RealGuideTest, OpensASectionInItsLanguage) {
  for (const char* page : {"en/index.html", "en/at/chart.html", "ja/index.html", "ja/at/chart.html"}) {
    Put(QString("a guide/") + page, "");
  }
  EXPECT_TRUE(OpenGuide(In("a guide"), false, "chart"));
  EXPECT_TRUE(OpenGuide(In("a guide"), true, "chart"));
  EXPECT_TRUE(OpenGuide(In("a guide"), true, "no-such-section"));
  EXPECT_EQ(desktop.opened, (QStringList{QUrl::fromLocalFile(In("a guide/en/at/chart.html")).toString(),
                                         QUrl::fromLocalFile(In("a guide/ja/at/chart.html")).toString(),
                                         QUrl::fromLocalFile(In("a guide/ja/index.html")).toString()}));
}

TEST_F(RealGuideTest, TellsOfAGuideThatIsNotThere) {
  EXPECT_FALSE(OpenGuide(In("nowhere"), false, "chart"));
  EXPECT_FALSE(OpenGuide("", false, "chart"));
  EXPECT_EQ(desktop.opened, QStringList());
}

}  // namespace
}  // namespace veldrin
