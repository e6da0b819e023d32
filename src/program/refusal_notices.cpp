#include "program/refusal_notices.h"

#include "model/file_tags.h"
#include "plan/check/list_check.h"
#include "plan/files/bad_input.h"
#include "plan/present/plan_reader.h"
#include "platform/paths.h"
#include "runtime/fault.h"
#include "workspace/failure_texts.h"

#include <optional>
#include <string>

namespace veldrin {

namespace {

/// The place of the first fault, 0 for the file as a whole, and what it is. The words are the console's,
/// which speaks English alone.
struct Reason {
  int line = 0;
  std::string text;
};

std::optional<Reason> ReasonOfList(const std::string& text, const std::string& name) {
  for (const ListRemark& remark : CheckList(text, name.substr(0, name.rfind('.'))).InOrder()) {
    if (!remark.warning) return Reason{remark.line, remark.text};
  }
  return std::nullopt;
}

/// The line in front of the words, if they have one: "12: the tyre length ...".
Reason Parted(const std::string& words) {
  const std::size_t colon = words.find(": ");
  if (colon == std::string::npos || words.find_first_not_of("0123456789") != colon) return {0, words};
  return {std::stoi(words.substr(0, colon)), words.substr(colon + 2)};
}

std::optional<Reason> ReasonOfPlan(const std::string& text, const Workspace& machine) {
  try {
    ReadPlan("", text, machine);
    return std::nullopt;
  } catch (const BadInput& bad) {
    // The file's name stands in front, and it is empty here.
    return Parted(bad.text.substr(bad.text.starts_with(": ") ? 2 : 1));
  }
}

std::optional<Reason> ReasonOf(Program& program, const std::string& path) {
  const Files& files = program.machine.files;
  const std::string text = program.machine.files.ReadText(path);
  if (IsPlanTag(text)) return ReasonOfPlan(text, program.workspace);
  return ReasonOfList(text, LastPartOf(files.Rules(), path));
}

BothLanguages Words(const std::string& path, const Reason& reason) {
  const std::string line = std::to_string(reason.line);
  if (reason.line == 0) return {path + ": " + reason.text, path + " は読めません"};
  return {path + ", line " + line + ": " + reason.text, path + " の " + line + " 行目が正しくありません"};
}

void TellRefusal(Program& program, const std::string& path, int fault) {
  BothLanguages words;
  if (IsFileFault(fault)) {
    const BothLanguages cause = FailureCause(fault);
    words = {path + ": " + cause.english, path + ": " + cause.japanese};
  } else {
    std::optional<Reason> reason;
    Guarded([&] { reason = ReasonOf(program, path); });
    if (!reason) return;
    words = Words(path, *reason);
  }
  program.machine.notices.Tell({Severity::Warning, words, {}, "refused"});
}

}  // namespace

void AttachRefusalNotices(Program& program) {
  program.hooks.FileRefused = [&program](const std::string& path, int fault) {
    TellRefusal(program, path, fault);
  };
}

}  // namespace veldrin
