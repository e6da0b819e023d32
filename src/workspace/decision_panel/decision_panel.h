// The decision panel: a question in `Label17`, an answer on each of `Command8` and `Command9`.
//
//   question                                  asked by          left, right
//   SpeedsDiffer            message 13        the plan reader   18, 22
//   NoPlanFound             14                the search        19, 23
//   QuitWithChanges         15                the close query   20, 24
//   LoadWithChanges         16                the openers       21, 25
//   HistoryLoadWithChanges  17                the history       21, 25
//
// The answers tell the questions apart by `Label17`'s text alone, so 16 and 17 differ in a blank.
//
// A question may put controls out of use, and that of a load puts a word of its own in the place of the
// mode's. The panel remembers both, and gives them back whichever way the question ends:
//
//   an answer          controls back; the mode's word when the load that follows has come to nothing
//   another question   controls and the mode's word back, the window stops flashing
//   DropQuestion       the same, and the panel goes: what the question was about is no more
#pragma once

#include "workspace/program.h"

namespace veldrin {

/// A failed search may leave the texts that no other question has put on the panel.
enum class PanelTexts { Write, KeepThoseOfSearch };

/// Asks a question in the place of the one that waits, if any, in front and with the focus on the right
/// answer. Both can be pressed; a search sees to that itself. `ModeWord` stays; the one who asks about a load
/// writes it afterwards. Raises what a box raises that loses the focus.
void AskQuestion(Program& program, Question question, PanelTexts texts = PanelTexts::Write);

/// The panel's three texts alone.
void SetQuestionTexts(Program& program, Question question);

/// The question whose texts the panel carries, whether it is on show or not.
Question QuestionOnPanel(const Program& program);

/// Ends the question that waits, unanswered: what it asked about is gone. Without one nothing happens.
void DropQuestion(Program& program);

/// Whether the panel is on show: a question waits, or its answer saves first.
bool QuestionStands(const Program& program);

/// Whether a save that begins now belongs to an answer, whose word says what follows it.
bool SavesForAnswer(const Program& program);

/// The plan of `mode` is on show: a load that comes to nothing leads back to that.
void ReturnToMode(Program& program, const char* mode);

/// The chooser has gone: where an answer had opened it and nothing was loaded, the mode comes back, and
/// changes that were to be dropped count again. Nothing happens while the chooser is only away for a moment.
void EndAnsweredLoad(Program& program);

/// Binds `Command8` and `Command9`.
void AttachDecisionPanel(Program& program);

}  // namespace veldrin
