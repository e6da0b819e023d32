#include "dialogs/load_dispatch.h"

#include "workspace/chooser_setup.h"
#include "workspace/decision_panel/decision_panel.h"
#include "workspace/language.h"

namespace veldrin {

namespace {

void SetTitle(Program& program, ChooserRole role) {
  program.form3.Caption = Message(program.workspace, static_cast<int>(role));
}

void Ask(Program& program, const char* modeWord) {
  AskQuestion(program, Question::LoadWithChanges);
  program.workspace.ModeWord = modeWord;
}

}  // namespace

bool MustAskBeforeLoading(const Program& program) {
  return program.workspace.QuickQuit != kYesWord && program.workspace.DataChanged == dirty::kYes;
}

ChooserRole RoleOfChooser(const Program& program) {
  for (const ChooserRole role : {ChooserRole::LoadList, ChooserRole::LoadData, ChooserRole::Save,
                                 ChooserRole::Delete, ChooserRole::QuickRatio, ChooserRole::Reference}) {
    if (program.form3.Caption == Message(program.workspace, static_cast<int>(role))) return role;
  }
  return ChooserRole::None;
}

void OpenListChooser(Program& program) {
  if (MustAskBeforeLoading(program)) return Ask(program, mode::kList);
  SetTitle(program, ChooserRole::LoadList);
  SetUpChooserBoxes(program, {kListPattern}, program.workspace.ListPath);
  OfferCancel(program);
  ShowChooser(program, program.form3.File1);
}

void OpenDataChooser(Program& program) {
  if (MustAskBeforeLoading(program)) return Ask(program, mode::kData);
  SetUpDataChooser(program);
  ShowChooser(program, program.form3.File1);
}

void OpenQuickRatioChooser(Program& program) {
  if (MustAskBeforeLoading(program)) return Ask(program, mode::kQuickRatio);
  SetTitle(program, ChooserRole::QuickRatio);
  SetUpChooserBoxes(program, {kAnyPattern}, program.workspace.DataPath);
  ShowChooserPrompt(program, kQuickRatioPromptMessage);
  ShowChooser(program, program.form3.File1);
}

void OpenReferenceChooser(Program& program) {
  if (MustAskBeforeLoading(program)) return Ask(program, mode::kReference);
  SetTitle(program, ChooserRole::Reference);
  SetUpChooserBoxes(program, {kAnyPattern}, program.workspace.DataPath);
  OfferCancel(program);
  program.form3.Command3.Visible = false;
  ShowChooserPrompt(program, kReferencePromptMessage);
  ShowChooser(program, program.form3.File1);
}

void OpenSaveChooser(Program& program) {
  SetTitle(program, ChooserRole::Save);
  SetUpChooserBoxes(program, {kListPattern, DataPattern(program.workspace)}, program.workspace.DataPath);
  OfferCancel(program);
  ShowChooser(program, program.form3.Combo1);
}

void OpenDeleteChooser(Program& program) {
  SetTitle(program, ChooserRole::Delete);
  SetUpChooserBoxes(program, {DataPattern(program.workspace)}, program.workspace.DataPath);
  program.form3.Command2.Caption = "CANCEL";
  program.form3.Command1.Caption = "Delete";
  ShowChooser(program, program.form3.Combo1);
}

void AttachLoadDispatch(Program& program) {
  program.hooks.OpenListChooser = [&program] { OpenListChooser(program); };
  program.hooks.OpenDataChooser = [&program] { OpenDataChooser(program); };
  program.hooks.OpenQuickRatioChooser = [&program] { OpenQuickRatioChooser(program); };
  program.hooks.OpenReferenceChooser = [&program] { OpenReferenceChooser(program); };
  program.hooks.OpenSaveChooser = [&program] { OpenSaveChooser(program); };
  program.hooks.OpenDeleteChooser = [&program] { OpenDeleteChooser(program); };
}

}  // namespace veldrin
