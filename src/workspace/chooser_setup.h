// The file chooser before it is shown: its filter list, its name field and its folder. The start and every
// role set it up alike.
#pragma once

#include "workspace/program.h"

#include <string>
#include <vector>

namespace veldrin {

inline constexpr char kListPattern[] = "*.RAT";
inline constexpr char kAnyPattern[] = "*.*";

/// "*." and the machine's key: the plans of the loaded machine.
std::string DataPattern(const Workspace& workspace);

/// Fills `Combo2` with the patterns, the last of them picked and in `Combo1`, disables OK, and points the
/// boxes at the folder; one that cannot be had leaves them where they are. The pattern goes over "*.*", so
/// that the list is rebuilt even where it is the same as before. A question that an earlier opening has left
/// is over. Raises nothing.
void SetUpChooserBoxes(Program& program, const std::vector<std::string>& patterns, const std::string& folder);

/// The chooser in its role for opening plans, not shown yet. Raises nothing.
void SetUpDataChooser(Program& program);

/// Ends the question for a change of machine, wherever it stands: its list is closed, and the chooser does
/// not come up again by itself. Raises nothing.
void ForgetWaitingList(Program& program);

/// Shows a message, or a text, on the prompt line, in front.
void ShowChooserPrompt(Program& program, int message);
void ShowChooserPrompt(Program& program, const std::string& text);

/// Whether the prompt line shows a message.
bool PromptShows(const Program& program, int message);

/// `Command2` reads "CANCEL" and can be pressed.
void OfferCancel(Program& program);

/// Shows the chooser modally, with the focus on the box that the user's hands are at in its role: `Combo1`
/// where a name is typed, `File1` where a file is picked. Returns when the chooser hides; at once where it is
/// up already and has only taken another role.
void ShowChooser(Program& program, Control& hands);

/// Disables OK and hides the chooser: its role is done.
void LeaveChooser(Program& program);

}  // namespace veldrin
