// What the desktop says when the settings' file makes trouble. Windows keeps settings in its registry, and
// that whole.
#include "tests/desktop/started_by_settings.h"

namespace veldrin {
namespace {

constexpr char kRegistry[] = "config/veldrin/registry.txt";

TEST_F(StoredSettingsTest, AValueThatCannotBeTakenAwayIsTold) {
  Keep("App Path", PathOf("program"));
  Keep("Max_Ne", "abc");
  QFile::setPermissions(In(kRegistry), QFileDevice::ReadOwner);
  Anew();
  Desktop().startAgain = [](const std::string&, const std::string&) {
    ADD_FAILURE() << "it would end likewise";
  };
  std::string why;
  When([] { return OpenBox() != nullptr; },
       [&] {
         When([] { return OpenBox() != nullptr && OpenBox()->text().startsWith("Settings cannot"); },
              [&] {
                why = OpenBox()->text().toStdString();
                OpenBox()->accept();
              });
         ButtonOf("Start with that setting's default")->click();
       });
  EXPECT_EQ(Finish(""), 1);
  EXPECT_EQ(why, "Settings cannot be stored in " + PathOf(kRegistry) +
                     " and hold for this run alone: There is no permission for this file or folder.");
}

TEST_F(StoredSettingsTest, ADamagedFileIsToldInTheStrip) {
  Keep("App Path", PathOf("program"));
  Put(kRegistry, Bytes(kRegistry) + "torn");
  Anew();
  Run("", [this] {
    EXPECT_TRUE(Shown().starts_with("The settings file " + PathOf(kRegistry) +
                                    " was damaged. It is kept as " + PathOf(kRegistry) + ".damaged-"))
        << Shown();
    Desktop().EndAtOnce();
  });
}

TEST_F(StoredSettingsTest, AFileThatCannotBeWrittenIsToldOnce) {
  Keep("App Path", PathOf("program"));
  QFile::setPermissions(In(kRegistry), QFileDevice::ReadOwner);
  Anew();
  Run("", [this] {
    EXPECT_EQ(Shown(), "Settings cannot be stored in " + PathOf(kRegistry) +
                           " and hold for this run alone: There is no permission for this file or folder.");
    Desktop().stage.notices.Drop();
    Desktop().stage.zoom.Set(2);
    EXPECT_EQ(Shown(), "");
    Desktop().EndAtOnce();
  });
}

}  // namespace
}  // namespace veldrin
