#include "dialogs/settings_dialog.h"

#include "dialogs/settings_validation.h"
#include "mainwin/main_window.h"
#include "tests/dialogs/dialog_fixture.h"
#include "tests/told_numbers.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldrin {
namespace {

using Lines = std::vector<std::string>;

/// The settings window over a workspace with a value for everything it shows.
struct SettingsDialog : DialogFixture {
  SettingsDialog() {
    AttachSettingsDialog(program);
    Workspace& workspace = program.workspace;
    workspace.AppPath = "C:\\VELDRIN";
    workspace.Language = kEnglish;
    workspace.QuickQuit = kNoWord;
    workspace.HistoryMax = 6;
    workspace.PrintFont = "Arial";
    workspace.TyreLength = 1.9F;
    workspace.CheckNe = 10000;
    workspace.ShiftNe = 13000;
    workspace.MaxSpeed = 340;
    workspace.MaxNe = 15000;
    workspace.MachineName = "NX4";
    workspace.ListPath = "C:\\VELDRIN\\LIST";
    workspace.DataPath = "C:\\VELDRIN\\DAT";
    program.form7.Load();
  }
};

TEST_F(SettingsDialog, WritesInItsOrder) {
  program.form7->SAVE.Click();
  EXPECT_EQ(registry.writes,
            (Lines{"Tyre_L=1.9", "Check_Ne=10000", "Shift_Ne=13000", "List_File=NX4.RAT",
                   "List_Path=C:\\VELDRIN\\LIST", "Data_Path=C:\\VELDRIN\\DAT", "Max_Speed=340",
                   "Max_Ne=15000", "His_Num=6", "QuickQuit=NO", "Pr_Font=Arial", "Language=ENGLISH"}));
}

TEST_F(SettingsDialog, WritesUpToTheTextThatIsNoNumber) {
  program.form7->Text1[3].Text = "200-1";
  EXPECT_EQ(Guarded([&] { program.form7->SAVE.Click(); }), kFaultTypeMismatch);
  EXPECT_EQ(registry.writes, (Lines{"Tyre_L=1.9", "Check_Ne=10000", "Shift_Ne=13000", "List_File=NX4.RAT",
                                    "List_Path=C:\\VELDRIN\\LIST", "Data_Path=C:\\VELDRIN\\DAT"}));
  EXPECT_TRUE(boxes.shown.empty());
  EXPECT_TRUE(program.form7);
}

TEST_F(SettingsDialog, RefusedValueWritesNothing) {
  program.form7->Text1[4].Text = "4999";
  program.form7->SAVE.Click();
  EXPECT_TRUE(registry.writes.empty());
  EXPECT_EQ(simulated.log.beeps, 1);
  EXPECT_TRUE(boxes.shown.empty());
  EXPECT_TRUE(program.form7);
}

TEST_F(SettingsDialog, StoreThatRefusesGoesUnnoticed) {
  registry.refusesWrites = true;
  program.form7->SAVE.Click();
  EXPECT_EQ(registry.writes.size(), 12U);
  EXPECT_FALSE(registry.Read(RegistryRoot::CurrentUser, kSettingsKey, "Tyre_L"));
  ASSERT_EQ(boxes.shown.size(), 1U);
  EXPECT_EQ(boxes.shown[0].icon, "information");
  EXPECT_FALSE(program.form7);
  EXPECT_TRUE(program.form2.Visible);
  EXPECT_EQ(simulated.log.beeps, 0);
}

TEST_F(SettingsDialog, SavingShowsItsBoxBeforeTheWindowGoes) {
  boxes.onMessage = [&] {
    EXPECT_EQ(registry.writes.size(), 12U);
    ASSERT_TRUE(program.form7);
    EXPECT_TRUE(program.form7->SAVE.Enabled);
    EXPECT_TRUE(program.form7->CANCEL.Enabled);
    EXPECT_FALSE(program.form2.Visible);
  };
  bool unloaded = false;
  windows.onEvent["Form7.Unload"] = [&] {
    unloaded = true;
    EXPECT_EQ(boxes.shown.size(), 1U);
    EXPECT_FALSE(program.form7->SAVE.Enabled);
    EXPECT_FALSE(program.form7->CANCEL.Enabled);
    EXPECT_FALSE(program.form2.Visible);
  };
  program.form7->SAVE.Click();
  EXPECT_EQ(boxes.shown.size(), 1U);
  EXPECT_TRUE(unloaded);
  EXPECT_TRUE(program.form2.Visible);
}

TEST_F(SettingsDialog, MainWindowHidesBeforeTheSettingsLoad) {
  program.form7->CANCEL.Click();
  EXPECT_TRUE(program.form2.Visible);
  AttachMainWindow(program);
  bool loaded = false;
  windows.onEvent["Form7.Load"] = [&] {
    loaded = true;
    EXPECT_FALSE(program.form2.Visible);
  };
  program.form2.menu_set.Click();
  EXPECT_TRUE(loaded);
  ASSERT_TRUE(program.form7);
  EXPECT_TRUE(program.form7->Visible);
  EXPECT_FALSE(program.form2.Visible);
}

TEST_F(SettingsDialog, FilesAreListedBeforeTheirFolderShows) {
  files.AddFolder("C:\\My Lists");
  int changes = 0;
  windows.onEvent["Form7.Label12(1).Change"] = [&] {
    ++changes;
    EXPECT_EQ(program.form7->File1.Path, "C:\\My Lists");
  };
  program.form7->Dir1.Path = "C:\\My Lists";
  EXPECT_EQ(changes, 1);
}

TEST_F(SettingsDialog, OnlyTheLanguageCanBeTyped) {
  ControlArray<ComboBox>& combos = program.form7->Combo1;
  EXPECT_TRUE(combos[0].editable);
  for (const int index : {2, 3, 4}) EXPECT_FALSE(combos[index].editable) << index;
}

TEST_F(SettingsDialog, FoldersKeepTheirCaseWhereNamesDependOnIt) {
  program.form7->CANCEL.Click();
  files.caseCounts = true;
  program.workspace.MachineName = "Rx250r";
  program.workspace.ListPath = "C:\\Gone lists";
  program.workspace.DataPath = "C:\\Gone data";
  Form7& form7 = program.form7.Load();
  EXPECT_EQ(form7.Label12[1].Caption, "C:\\Gone lists");
  EXPECT_EQ(form7.Label13[1].Caption, "C:\\Gone data");
  form7.SAVE.Click();
  ASSERT_EQ(registry.writes.size(), 12U);
  EXPECT_EQ(registry.writes[3], "List_File=RX250R.RAT");
  EXPECT_EQ(registry.writes[4], "List_Path=C:\\Gone lists");
  EXPECT_EQ(registry.writes[5], "Data_Path=C:\\Gone data");
}

TEST_F(SettingsDialog, FirstRunOfTheChecksForgetsTheWindowBefore) {
  program.form7->Text1[1].Text = "1";
  Validate(program);
  EXPECT_EQ(program.settingsDialog.ValidationResult, kInvalid);
  program.form7->CANCEL.Click();
  program.form7.Load();
  EXPECT_EQ(program.settingsDialog.ValidationResult, "");
}

struct CheckCase {
  int box;
  const char* text;
  const char* result;
  const char* left;  // what the box holds behind the check
};

/// Every kind of text at every number's box.
TEST_F(SettingsDialog, ChecksTellTextsApart) {
  const CheckCase cases[] = {
      {0, "1.0", "OK", "1.0"},
      {0, "3.0000000", "OK", "3.0000000"},
      {0, " 2 ", "OK", " 2 "},
      {0, "+2", "OK", "+2"},
      {0, "2,5", "OK", "2,5"},
      {0, "0.9999999", "NG", ""},
      {0, "3.000001", "NG", ""},
      // Closer to 3 than to the next 32-bit float.
      {0, "3.0000000001", "OK", "3.0000000001"},
      {0, "2,5,0", "NG", ""},
      {0, "2m", "NG", " "},
      {1, "5000", "OK", "5000"},
      {1, "24000", "OK", "24000"},
      {1, "6000 rev", "NG", " "},
      {1, "6000 /2", "OK", "6000 /2"},
      {1, "6,000", "NG", ""},
      {2, "+6000", "OK", "+6000"},
      {2, "6000.", "OK", "6000."},
      {2, "5.000", "NG", ""},
      {2, "-6000", "NG", ""},
      {3, "100", "OK", "100"},
      {3, "340.0", "OK", "340.0"},
      {3, "340.1", "NG", ""},
      {3, "99.99", "NG", ""},
      {3, ":", "NG", " "},
      {4, "24000,9", "OK", "24000,9"},
      {4, "24000.9", "NG", ""},
      {4, "", "NG", ""},
      {4, "\xE3\x80\x80", "NG", " "},
  };
  const std::string good[] = {"1.9", "10000", "13000", "340", "15000"};
  for (const CheckCase& c : cases) {
    Form7& form7 = *program.form7;
    for (int box = 0; box < 5; ++box) form7.Text1[box].Text = good[box];
    form7.Text1[c.box].Text = c.text;
    Validate(program);
    EXPECT_EQ(program.settingsDialog.ValidationResult, c.result) << c.box << " " << c.text;
    EXPECT_EQ(form7.Text1[c.box].Text.get(), c.left) << c.box << " " << c.text;
  }
}

TEST_F(SettingsDialog, LabelsTellTheRangesThatTheChecksHoldTo) {
  int box = 0;
  for (const Condition& condition : kConditions) {
    const std::string label = program.form7->Label15[box++].Caption;
    EXPECT_EQ(NumbersIn(label), EndsOf(condition.limits)) << label;
  }
}

}  // namespace
}  // namespace veldrin
