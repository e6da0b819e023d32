// What the desktop says when the settings' store makes trouble, and the way out of a start that ends by it.
#include "desktop/stored_settings.h"

#include "runtime/fault.h"
#include "tests/desktop/running_program.h"

#include <QAbstractButton>

#include <csignal>
#include <optional>

namespace veldrin {
namespace {

constexpr char kRegistry[] = "config/veldrin/registry.txt";

class StoredSettingsTest : public RunningProgramTest {
 protected:
  void Anew() {
    TearDown();
    SetUp();
  }
  void Keep(const std::string& value, const std::string& text) {
    SettingsRegistry().Write(RegistryRoot::CurrentUser, kSettings, value, text);
  }
  std::optional<std::string> Stored(const std::string& value) {
    return SettingsRegistry().Read(RegistryRoot::CurrentUser, kSettings, value);
  }
  static QAbstractButton* ButtonOf(const QString& caption) {
    for (QAbstractButton* button : OpenBox()->buttons()) {
      if (button->text() == caption) return button;
    }
    return nullptr;
  }
  std::string Shown() {
    const Notice* const notice = Desktop().stage.notices.Shown();
    return notice == nullptr ? "" : notice->text.english;
  }
};

TEST_F(StoredSettingsTest, AStartThatEndsByAStoredNumberOffersItsDefault) {
  Keep("App Path", PathOf("program"));
  Keep("Shift_Ne", "abc");
  std::string file = "(not started)";
  Desktop().startAgain = [&](const std::string& kept, const std::string& started) {
    EXPECT_EQ(kept, "");
    file = started;
  };
  When([] { return OpenBox() != nullptr; },
       [this] {
         const std::string text = OpenBox()->text().toStdString();
         EXPECT_TRUE(text.starts_with("Run-time error '13':\n\nType mismatch")) << text;
         EXPECT_NE(text.find("Shift_Ne is \"abc\" in " + PathOf(kRegistry)), std::string::npos) << text;
         EXPECT_NE(ButtonOf("OK"), nullptr);
         ASSERT_NE(ButtonOf("Start with that setting's default"), nullptr);
         ButtonOf("Start with that setting's default")->click();
       });
  EXPECT_EQ(Finish(PlanFile()), 1);
  EXPECT_EQ(file, PlanFile());
  EXPECT_EQ(Stored("Shift_Ne"), "");
  Anew();
  EXPECT_EQ(Run("",
                [this] {
                  EXPECT_EQ(Main().workspace.ShiftNe, kDefaultShiftNe);
                  Desktop().EndAtOnce();
                }),
            0);
}

TEST_F(StoredSettingsTest, OkLeavesTheValueAlone) {
  Keep("App Path", PathOf("program"));
  Keep("Color_3", "99999999999");
  Desktop().startAgain = [](const std::string&, const std::string&) { ADD_FAILURE() << "not asked for"; };
  When([] { return OpenBox() != nullptr; },
       [] {
         EXPECT_TRUE(OpenBox()->text().startsWith("Run-time error '6':\n\nOverflow"));
         EXPECT_TRUE(OpenBox()->text().contains("Color_3 is \"99999999999\" in "));
         OpenBox()->accept();
       });
  EXPECT_EQ(Finish(""), 1);
  EXPECT_EQ(Stored("Color_3"), "99999999999");
}

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

TEST_F(StoredSettingsTest, AnyOtherFaultOffersNoDefault) {
  When([] { return OpenBox() != nullptr; },
       [] {
         EXPECT_EQ(ButtonOf("Start with that setting's default"), nullptr);
         OpenBox()->accept();
       });
  Run("", [this] {
    Keep("Shift_Ne", "abc");
    Desktop().stage.input.Do([]() -> bool { Raise(kFaultTypeMismatch); });
  });
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

TEST(StoredSettings, ALongTextIsShownByItsFront) {
  const BothLanguages words = BadSettingWords({"Max_Ne", std::string(1000, 'x')}, "/f");
  EXPECT_EQ(words.english, "Max_Ne is \"" + std::string(60, 'x') + "...\" in /f.");
  EXPECT_EQ(words.japanese, "/f で Max_Ne が \"" + std::string(60, 'x') + "...\" になっています。");
}

}  // namespace
}  // namespace veldrin
