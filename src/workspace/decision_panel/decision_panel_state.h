// What the decision panel remembers between a question and its end.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace veldrin {

struct Control;

/// The panel's questions, each by the number of its message, which is named here alone.
enum class Question : int {
  None = 0,
  SpeedsDiffer = 13,
  NoPlanFound = 14,
  QuitWithChanges = 15,
  LoadWithChanges = 16,
  HistoryLoadWithChanges = 17,
};

/// A load that an answer has set going, until its chooser is gone.
struct AnsweredLoad {
  std::string modeBefore;  // `ModeWord` as it stood before the question
  bool discards = false;   // the answer was to drop the changes
};

struct DecisionPanelState {
  /// The question that waits for its answer. "Save and Quit" leaves its own waiting: the panel stays.
  Question unanswered = Question::None;
  /// What that question has put out of use; what was so before is not among them.
  std::vector<Control*> disabled;
  /// `ModeWord` as it stood before that question.
  std::string modeBefore;
  /// The load that comes of the last answer.
  std::optional<AnsweredLoad> load;
  /// An answer has the plan saved, right now.
  bool saving = false;
};

}  // namespace veldrin
