// What the desktop says when the settings' store makes trouble, and the way out of a start that ends by it.
#include "desktop/stored_settings.h"

#include "runtime/fault.h"
#include "tests/desktop/started_by_settings.h"

namespace veldrin {
namespace {

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
         EXPECT_NE(text.find("Shift_Ne is \"abc\" in " + Place()), std::string::npos) << text;
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

TEST_F(StoredSettingsTest, APageThatIsNotPrintedIsToldInBothLanguages) {
  QStringList told;
  const auto fail = [&](const char* language) {
    Main().workspace.Language = language;
    When([] { return OpenBox() != nullptr; },
         [&] {
           told << OpenBox()->text();
           OpenBox()->accept();
         });
    Desktop().machine.printer.failed();
  };
  Run(PlanFile(), [&] {
    fail(kEnglish);
    fail(kJapanese);
    Desktop().EndAtOnce();
  });
  EXPECT_EQ(told, (QStringList{"The page could not be printed.", "印刷できませんでした。"}));
}

TEST(StoredSettings, TroubleIsToldInBothLanguages) {
  const Notice damaged = SettingsNotice({"/s", 0, "/s.damaged-1"});
  EXPECT_EQ(damaged.severity, Severity::Warning);
  EXPECT_EQ(damaged.text.english,
            "The settings file /s was damaged. It is kept as /s.damaged-1; what could be read of it holds.");
  EXPECT_EQ(damaged.text.japanese,
            "設定ファイル /s が壊れていました。/s.damaged-1 として残し、読み取れた設定を引き継ぎました。");
  const Notice refused = SettingsNotice({"/s", kFaultFileNotFound, ""});
  EXPECT_EQ(refused.severity, Severity::Failure);
  EXPECT_EQ(refused.text.english,
            "Settings cannot be stored in /s and hold for this run alone: The file is not there.");
  EXPECT_EQ(refused.text.japanese,
            "設定を /s に保存できません。変更は今回の起動中のみ有効です: ファイルがありません");
}

TEST(StoredSettings, ALongTextIsShownByItsFront) {
  const BothLanguages words = BadSettingWords({"Max_Ne", std::string(1000, 'x')}, "/f");
  EXPECT_EQ(words.english, "Max_Ne is \"" + std::string(60, 'x') + "...\" in /f.");
  EXPECT_EQ(words.japanese, "/f で Max_Ne が \"" + std::string(60, 'x') + "...\" になっています。");
}

}  // namespace
}  // namespace veldrin
