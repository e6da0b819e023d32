// What a question of the decision panel holds back, and how that comes back. For the panel's own units.
#pragma once

#include "workspace/program.h"

#include <vector>

namespace veldrin {

using Controls = std::vector<Control*>;

/// Puts controls out of use until the question ends; those that are so already are not remembered.
void Hold(DecisionPanelState& panel, const Controls& controls);

/// The question has its answer: controls come back, and the load that follows keeps the mode to come back to.
/// The mode's word still names the chooser that may follow. The panel stays, for an answer that saves first.
void TakeAnswer(Program& program);

/// The panel goes and the question with it, as it has its answer.
void CloseQuestion(Program& program);

/// The question that waits ends without an answer: controls and mode come back, after a failed search the
/// request entry. Without one nothing happens.
void TakeBack(Program& program);

void HidePanel(Program& program);

/// The ways out of the request entry that a search has closed.
void EnableWaysOut(Form2& form2);

/// The request entry in the place of the plan's panel, as it stood before the search.
void ShowRequestEntry(Form2& form2);

}  // namespace veldrin
