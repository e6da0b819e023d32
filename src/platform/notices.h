// What the program tells its user beside the described windows: one line, without stopping anything. Nothing
// depends on whether, where or how long it is shown.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace veldrin {

enum class Severity { Information, Warning, Failure };

/// A text in both languages of the program; which is shown is settled when it is.
struct BothLanguages {
  std::string english;
  std::string japanese;

  const std::string& In(bool inJapanese) const { return inJapanese ? japanese : english; }
};

/// Something that can be done about a notice, offered beside its text. It runs as an event of the program
/// does; the notice goes with it.
struct NoticeAction {
  BothLanguages caption;
  std::function<void()> act;
};

/// One notice. One that has actions stays until one of them is taken or it is put away; others go by
/// themselves after a while.
struct Notice {
  Severity severity = Severity::Information;
  BothLanguages text;
  std::vector<NoticeAction> actions = {};
  /// What it is about; a newer notice about the same takes the place of an older one. Empty for nothing that
  /// comes again.
  std::string topic = {};
};

struct Notices {
  virtual ~Notices() = default;
  /// Raises nothing.
  virtual void Tell(Notice notice) = 0;
};

}  // namespace veldrin
