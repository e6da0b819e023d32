#include "workspace/failure_texts.h"

#include "workspace/chooser_setup.h"
#include "workspace/language.h"

#include <algorithm>
#include <iterator>

namespace veldrin {

namespace {

struct Cause {
  int fault;
  const char* english;
  const char* japanese;
};

constexpr Cause kCauses[] = {
    {kFaultBadFileName, "This file name is not possible.", "このファイル名は使えません"},
    {kFaultDiskFull, "There is no room left on the disk.", "ディスクに空きがありません"},
    {kFaultDeviceUnavailable, "There is no such drive.", "ドライブがありません"},
    {kFaultPermissionDenied, "There is no permission for this file or folder.",
     "このファイルまたはフォルダーを使う権限がありません"},
    {kFaultDriveNotReady, "The drive is not ready.", "ドライブの準備ができていません"},
    {kFaultPathAccess, "This name does not stand for a file that can be opened.",
     "この名前のファイルを開くことができません"},
    {kFaultPathNotFound, "The folder does not exist any more.", "フォルダーがなくなっています"},
    {kFaultFileAlreadyOpen, "The file is in use.", "ファイルは使用中です"},
};

constexpr Cause kAnyOther = {0, "The file could not be read or written.",
                             "ファイルを読み書きできませんでした"};

const Cause& CauseOf(int fault) {
  const auto* const found =
      std::find_if(std::begin(kCauses), std::end(kCauses), [&](const Cause& c) { return c.fault == fault; });
  return found == std::end(kCauses) ? kAnyOther : *found;
}

std::string InLanguage(const Workspace& workspace, const Cause& cause) {
  return SpeaksJapanese(workspace) ? cause.japanese : cause.english;
}

}  // namespace

bool IsFileFault(int fault) {
  if (fault == kFaultFileAlreadyOpen) return false;
  return fault == kFaultFileNotFound || &CauseOf(fault) != &kAnyOther;
}

BothLanguages FailureCause(int fault) {
  if (fault == kFaultFileNotFound) return {"The file is not there.", "ファイルがありません"};
  const Cause& cause = CauseOf(fault);
  return {cause.english, cause.japanese};
}

std::string FailureText(const Workspace& workspace, int fault) {
  if (fault == kFaultFileNotFound) return Message(workspace, kMissingFileMessage);
  return InLanguage(workspace, CauseOf(fault));
}

void ShowFailure(Program& program, int fault) {
  ShowChooserPrompt(program, FailureText(program.workspace, fault));
  program.form3.Command1.Enabled = false;
}

bool ShowsFailure(const Program& program) {
  const Label& prompt = program.form3.Label4;
  if (!prompt.Visible) return false;
  const auto shown = [&](const Cause& cause) {
    return prompt.Caption == InLanguage(program.workspace, cause);
  };
  return shown(kAnyOther) || std::any_of(std::begin(kCauses), std::end(kCauses), shown);
}

}  // namespace veldrin
