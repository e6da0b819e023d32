#include "workspace/language.h"

#include "platform/paths.h"
#include "workspace/language_tables.h"
#include "workspace/settings.h"

namespace veldrin {

namespace {

void StoreTable(Workspace& workspace, const MessageTexts& texts) {
  for (int number = 1; number <= kMessages; ++number) workspace.MessageTable[number] = texts[number - 1];
}

/// The title's two texts and the messages, a line each. What lies beyond is not read.
void ReadCaptionFile(Program& program, const std::string& path) {
  Workspace& workspace = program.workspace;
  program.files.OpenInput(Handle::Captions, path);
  TextReader& reader = program.files.Reader(Handle::Captions);
  workspace.TitlePrefix = reader.Line();
  workspace.ChangedMark = reader.Line();
  for (int number = 1; number <= kMessages; ++number) workspace.MessageTable[number] = reader.Line();
  // Kept: a file that is too short raises its fault above and stays open.
  program.files.Close(Handle::Captions);
}

}  // namespace

void SetTitleTexts(Program& program, int instanceNumber) {
  Workspace& workspace = program.workspace;
  if (CountryCode(program, 0) == kJapan) {
    workspace.TitlePrefix = "べるどりん君[" + std::to_string(instanceNumber) + "] - ";
    workspace.ChangedMark = " - 変更";
    workspace.IsJapanese = 1;
  } else {
    workspace.TitlePrefix = "Mr.Veldrin";
    workspace.ChangedMark = " - Changed";
    workspace.IsJapanese = 0;
  }
}

void LoadLanguage(Program& program) {
  Workspace& workspace = program.workspace;
  if (workspace.Language == kJapanese) {
    StoreTable(workspace, JapaneseMessages);
  } else if (workspace.Language == kEnglish) {
    StoreTable(workspace, EnglishMessages);
  } else {
    const std::string path =
        JoinPath(program.machine.files.Rules(), workspace.AppPath, workspace.Language + ".CAP");
    if (program.machine.files.FileExists(path)) {
      ReadCaptionFile(program, path);
    } else {
      workspace.Language = workspace.IsJapanese == 1 ? kJapanese : kEnglish;
      LoadLanguage(program);
    }
  }
}

bool SpeaksJapanese(const Workspace& workspace) {
  if (workspace.Language == kJapanese) return true;
  return workspace.IsJapanese == 1 && workspace.Language != kEnglish;
}

const std::string& Message(const Workspace& workspace, int number) {
  return workspace.MessageTable[number];
}

const std::string& Message(const Workspace& workspace, Question question) {
  return Message(workspace, static_cast<int>(question));
}

}  // namespace veldrin
