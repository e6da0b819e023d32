// The desktop program when a fault has ended it: what its box says, and how the user goes on.
#include "desktop/desktop_program.h"
#include "desktop/stored_settings.h"
#include "model/setting_names.h"
#include "safety/fault_words.h"
#include "workspace/language.h"
#include "workspace/settings.h"
#include "workspace/stored_values.h"

namespace veldrin {

namespace {

constexpr char kStartAgain[] = "Start again";
constexpr char kStartAgainJapanese[] = "再起動";
constexpr char kWithDefault[] = "Start with that setting's default";
constexpr char kWithDefaultJapanese[] = "この設定を初期値に戻して起動";
constexpr char kIsKept[] = "\n\nThe plan is kept.";
constexpr char kIsKeptJapanese[] = "\n\nプランは保管されています。";

}  // namespace

/// While the settings are read, the language is not settled yet.
bool DesktopProgram::BoxIsJapanese() const {
  const Workspace& workspace = program->workspace;
  if (program->form2.loaded) return SpeaksJapanese(workspace);
  return workspace.IsJapanese == 1 && Stored(*program, kLanguageValue) != kEnglish;
}

/// What is kept is on the disk by the time that the box says so.
FaultStory DesktopProgram::TellFault(int number) {
  kept_->Secure();
  keptAtFault_ = kept_->KeptId();
  const bool japanese = BoxIsJapanese();
  FaultStory story{FaultWords(*program, number, inBox_).In(japanese), {}};
  if (!keptAtFault_.empty()) story.text += japanese ? kIsKeptJapanese : kIsKept;
  story.choices.push_back({japanese ? kStartAgainJapanese : kStartAgain, [this] { wantsAnew_ = true; }});
  if (!program->form2.loaded) TellBadSetting(story);
  return story;
}

/// Before the main window is loaded, the settings are read and little else: a number among them that is none
/// would end every start.
void DesktopProgram::TellBadSetting(FaultStory& story) {
  const std::optional<StoredValue> bad = FindBadSetting(*program);
  if (!bad) return;
  const bool japanese = BoxIsJapanese();
  story.text += "\n\n" + BadSettingWords(*bad, machine.registry.PlaceOf(kSettingsKey)).In(japanese);
  story.choices.push_back({japanese ? kWithDefaultJapanese : kWithDefault,
                           [this, value = bad->value] { StartWithDefault(value); }});
}

/// An empty value stands for its default.
void DesktopProgram::StartWithDefault(const std::string& value) {
  wantsAnew_ = WriteSetting(*program, RegistryRoot::CurrentUser, kSettingsKey, value, "");
  if (wantsAnew_) return;
  // Why was told in the strip, which is not there yet.
  const BothLanguages why = SettingsNotice(settingsTrouble_).text;
  machine.boxes.Message(BoxIcon::Exclamation, "", why.In(BoxIsJapanese()), BoxButtons::Ok);
}

/// Without changes the plan is that of its file. A start that has read nothing yet is made once more.
void DesktopProgram::GoOnAnew() {
  if (!wantsAnew_ || !startAgain) return;
  const Workspace& workspace = program->workspace;
  const std::string& shown = workspace.DataFile.empty() ? workspace.LoadedList : workspace.DataFile;
  startAgain(keptAtFault_, program->form2.loaded ? shown : workspace.CommandFile);
}

}  // namespace veldrin
