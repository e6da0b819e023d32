#include "workspace/decision_panel/decision_panel.h"

#include "simulated/simulated_machine.h"
#include "workspace/control_states.h"
#include "workspace/language.h"
#include "workspace/mode.h"

#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

namespace veldrin {
namespace {

constexpr Question kAll[] = {Question::SpeedsDiffer, Question::NoPlanFound, Question::QuitWithChanges,
                             Question::LoadWithChanges, Question::HistoryLoadWithChanges};

using Names = std::set<std::string>;

struct DecisionPanel : testing::Test {
  SimulatedMachine simulated;
  Program program{simulated.machine};
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;

  DecisionPanel() {
    workspace.Language = kEnglish;
    LoadLanguage(program);
    AttachDecisionPanel(program);
    workspace.ModeWord = mode::kChange;
    form2.LoadWindow();
    // As with a plan on show that can be restored.
    ShowAll({&form2.Picture2, &form2.Picture3, &form2.Picture12});
    for (Control* control : form2.controls) {
      if (control->kind != ControlKind::Timer) control->Enabled = true;
    }
    form2.Show();
  }
  ~DecisionPanel() override { simulated.windows.Forget(); }

  Names Disabled() const {
    Names names;
    for (const Control* control : form2.controls) {
      if (control->kind != ControlKind::Timer && !control->Enabled) names.insert(control->IndexedName());
    }
    return names;
  }
};

Names EditingNames() {
  Names names = {"Command11", "Text2", "Text3", "Text4", "Text6", "HScroll1", "HScroll2"};
  for (const char* array : {"Label12", "Spin6"}) {
    for (int gear = 1; gear <= kGears; ++gear) {
      names.insert(std::string(array) + "(" + std::to_string(gear) + ")");
    }
  }
  return names;
}

Names BarNames() {
  return {"Command7", "Command11", "HScroll1", "HScroll2"};
}

TEST_F(DecisionPanel, EachQuestionHasItsTextsAndItsControls) {
  struct Case {
    Question question;
    const char* text;
    const char* left;
    const char* right;
    Names disabled;
  };
  const Case cases[] = {
      {Question::SpeedsDiffer, "Data file's value is not correct!", "Recalc by SPEED", "Read Mission Plan",
       EditingNames()},
      {Question::NoPlanFound,
       "Can't found the gear-ratio combination for your request",
       "Recalc by FULL AUTO",
       "Re-Input request speed",
       {}},
      {Question::QuitWithChanges,
       "Processed file's data was changed !",
       "Save and Quit",
       "Not save. Quit",
       {}},
      {Question::LoadWithChanges, "Processing file's data is changed !", "Save and Load", "Not save. Load",
       BarNames()},
      {Question::HistoryLoadWithChanges,
       "Processing file's data is changed ! ",
       "Save and Load",
       "Not save. Load",
       {}},
  };
  for (const Case& c : cases) {
    AskQuestion(program, c.question);
    EXPECT_TRUE(form2.Picture20.Visible) << c.text;
    EXPECT_EQ(form2.Picture20.ZOrder(), 0) << c.text;
    EXPECT_EQ(form2.Label17.Caption.get(), c.text);
    EXPECT_EQ(form2.Command8.Caption.get(), c.left) << c.text;
    EXPECT_EQ(form2.Command9.Caption.get(), c.right) << c.text;
    EXPECT_EQ(form2.focus, &form2.Command9) << c.text;
    EXPECT_EQ(Disabled(), c.disabled) << c.text;
    DropQuestion(program);
    EXPECT_FALSE(form2.Picture20.Visible) << c.text;
    EXPECT_EQ(Disabled(), Names{}) << c.text;
    EXPECT_EQ(workspace.ModeWord, "CHANGE") << c.text;
  }
}

TEST_F(DecisionPanel, EveryQuestionMayTakeThePlaceOfEveryOther) {
  for (const Question before : kAll) {
    for (const Question after : kAll) {
      SCOPED_TRACE(std::to_string(static_cast<int>(before)) + " " + std::to_string(static_cast<int>(after)));
      form2.Timer3.Enabled = before == Question::QuitWithChanges;
      AskQuestion(program, before);
      if (before == Question::LoadWithChanges) workspace.ModeWord = mode::kList;
      if (after == Question::QuitWithChanges) form2.Timer3.Enabled = true;
      AskQuestion(program, after);
      EXPECT_EQ(workspace.ModeWord, "CHANGE");
      EXPECT_EQ(form2.Timer3.Enabled.get(), after == Question::QuitWithChanges);
      const Names held = after == Question::SpeedsDiffer      ? EditingNames()
                         : after == Question::LoadWithChanges ? BarNames()
                                                              : Names{};
      EXPECT_EQ(Disabled(), held);
      DropQuestion(program);
      EXPECT_EQ(Disabled(), Names{});
      EXPECT_FALSE(form2.Timer3.Enabled);
    }
  }
}

TEST_F(DecisionPanel, WhatWasOutOfUseBeforeStaysSo) {
  DisableAll({&form2.Command7, &form2.HScroll1, &form2.Text3});
  const Names before = {"Command7", "HScroll1", "Text3"};
  for (const Question question : {Question::SpeedsDiffer, Question::LoadWithChanges}) {
    AskQuestion(program, question);
    DropQuestion(program);
    EXPECT_EQ(Disabled(), before);
  }
}

TEST_F(DecisionPanel, BothAnswersCanBePressedButAfterASearch) {
  for (const Question question : kAll) {
    DisableAll({&form2.Command8, &form2.Command9});
    form2.Command9.Enabled = question == Question::NoPlanFound;
    AskQuestion(program, question);
    EXPECT_EQ(form2.Command8.Enabled.get(), question != Question::NoPlanFound);
    EXPECT_TRUE(form2.Command9.Enabled);
    EXPECT_EQ(form2.focus, &form2.Command9);
    DropQuestion(program);
  }
}

TEST_F(DecisionPanel, AFailedSearchTakesThePlaceOfOtherTextsOnly) {
  for (const Question before : kAll) {
    SetQuestionTexts(program, before);
    form2.Command9.Caption = "as it was";
    AskQuestion(program, Question::NoPlanFound, PanelTexts::KeepThoseOfSearch);
    EXPECT_EQ(form2.Label17.Caption.get(), Message(workspace, Question::NoPlanFound));
    EXPECT_EQ(form2.Command9.Caption.get(),
              before == Question::NoPlanFound ? "as it was" : "Re-Input request speed");
  }
  form2.Label17.Caption = "no question";
  AskQuestion(program, Question::NoPlanFound, PanelTexts::KeepThoseOfSearch);
  EXPECT_EQ(form2.Label17.Caption.get(), "no question");
}

TEST_F(DecisionPanel, WithoutAQuestionNothingIsDropped) {
  form2.Picture20.Visible = true;
  form2.Timer3.Enabled = true;
  DropQuestion(program);
  EXPECT_TRUE(form2.Picture20.Visible);
  EXPECT_TRUE(form2.Timer3.Enabled);
}

TEST_F(DecisionPanel, AnAnsweredQuestionIsNotDroppedAgain) {
  AskQuestion(program, Question::SpeedsDiffer);
  form2.Command9.Click();
  form2.Picture20.Visible = true;
  DropQuestion(program);
  EXPECT_TRUE(form2.Picture20.Visible);
}

/// A chooser that loads nothing: CANCEL, but for the word that only the real one clears.
TEST_F(DecisionPanel, ALoadThatCameToNothingBringsModeAndChangesBack) {
  std::vector<std::string> seen;
  program.hooks.OpenQuickRatioChooser = [&] {
    seen.push_back(workspace.ModeWord + " " + workspace.DataChanged + " " + workspace.PendingAction);
  };
  workspace.DataChanged = dirty::kYes;
  AskQuestion(program, Question::LoadWithChanges);
  workspace.ModeWord = mode::kQuickRatio;
  form2.Command9.Click();
  EXPECT_EQ(seen, (std::vector<std::string>{"QR NO CHANGE_LOAD"}));
  EXPECT_EQ(workspace.ModeWord, "CHANGE");
  EXPECT_EQ(workspace.DataChanged, "YES");
  EXPECT_EQ(workspace.PendingAction, "");
}

TEST_F(DecisionPanel, ALoadThatCameKeepsItsMode) {
  program.hooks.OpenReferenceChooser = [&] { workspace.ModeWord = mode::kReferenceInForce; };
  workspace.DataChanged = dirty::kYes;
  AskQuestion(program, Question::LoadWithChanges);
  workspace.ModeWord = mode::kReference;
  form2.Command9.Click();
  EXPECT_EQ(workspace.ModeWord, "REF_QR");
  EXPECT_EQ(workspace.DataChanged, "NO");
  EXPECT_EQ(workspace.PendingAction, "CHANGE_LOAD");
}

TEST_F(DecisionPanel, AChooserThatComesAgainKeepsTheLoadOpen) {
  program.hooks.OpenDataChooser = [&] { form2.Timer2.Enabled = true; };
  workspace.DataChanged = dirty::kYes;
  AskQuestion(program, Question::LoadWithChanges);
  workspace.ModeWord = mode::kData;
  form2.Command9.Click();
  EXPECT_EQ(workspace.ModeWord, "DATA");
  EXPECT_EQ(workspace.DataChanged, "NO");
  form2.Timer2.Enabled = false;
  EndAnsweredLoad(program);
  EXPECT_EQ(workspace.ModeWord, "CHANGE");
  EXPECT_EQ(workspace.DataChanged, "YES");
}

TEST_F(DecisionPanel, ALoadThatWasOvertakenLeavesALaterQuestionAlone) {
  program.hooks.OpenDataChooser = [&] { form2.Timer2.Enabled = true; };
  AskQuestion(program, Question::LoadWithChanges);
  workspace.ModeWord = mode::kData;
  form2.Command9.Click();
  form2.Timer2.Enabled = false;
  workspace.ModeWord = mode::kChange;
  workspace.DataChanged = dirty::kYes;
  AskQuestion(program, Question::LoadWithChanges);
  workspace.ModeWord = mode::kList;
  EndAnsweredLoad(program);
  EXPECT_EQ(workspace.ModeWord, "LIST");
}

TEST_F(DecisionPanel, ALoadAskedForOverAnotherComesBackToTheModeBeforeBoth) {
  program.hooks.OpenDataChooser = [&] { form2.Timer2.Enabled = true; };
  workspace.ModeWord = mode::kSpeed;
  AskQuestion(program, Question::LoadWithChanges);
  workspace.ModeWord = mode::kData;
  form2.Command9.Click();
  ASSERT_EQ(ModeOnShow(program), "SPEED");
  AskQuestion(program, Question::LoadWithChanges);
  workspace.ModeWord = mode::kList;
  EXPECT_EQ(ModeOnShow(program), "SPEED");
  DropQuestion(program);
  EXPECT_EQ(workspace.ModeWord, "SPEED");
  workspace.ModeWord = mode::kData;
  EXPECT_EQ(ModeOnShow(program), "DATA") << "nobody has asked";
}

TEST_F(DecisionPanel, ThePanelStandsUntilItsAnswerHasSaved) {
  std::vector<bool> seen;
  form2.Command5.Click.Bind([&](int) { seen.push_back(QuestionStands(program)); });
  EXPECT_FALSE(QuestionStands(program));
  AskQuestion(program, Question::LoadWithChanges);
  EXPECT_TRUE(QuestionStands(program));
  form2.Command8.Click();
  EXPECT_EQ(seen, std::vector<bool>{true});
  EXPECT_FALSE(QuestionStands(program));
}

TEST_F(DecisionPanel, ASaveBelongsToTheAnswerThatAskedForIt) {
  std::vector<bool> seen;
  form2.Command5.Click.Bind([&](int) { seen.push_back(SavesForAnswer(program)); });
  form2.Command5.Click();
  AskQuestion(program, Question::LoadWithChanges);
  form2.Command5.Click();
  form2.Command8.Click();
  AskQuestion(program, Question::HistoryLoadWithChanges);
  form2.Command8.Click();
  form2.Command5.Click();
  AskQuestion(program, Question::QuitWithChanges);
  workspace.PendingAction = pending::kChangeLoad;
  form2.Command5.Click();
  form2.Command8.Click();
  form2.Command5.Click();
  DropQuestion(program);
  form2.Command5.Click();
  EXPECT_EQ(seen, (std::vector<bool>{false, false, true, true, false, false, true, true, false}));
}

}  // namespace
}  // namespace veldrin
