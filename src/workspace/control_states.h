// States of controls that several units set alike, nearly all of them the main window's.
#pragma once

#include "workspace/program.h"

#include <initializer_list>

namespace veldrin {

void ShowAll(std::initializer_list<Control*> controls);
void HideAll(std::initializer_list<Control*> controls);
void EnableAll(std::initializer_list<Control*> controls);
void DisableAll(std::initializer_list<Control*> controls);

/// Arrows that can be used are black, the others light grey.
void EnableSpin(SpinButton& spin);
void DisableSpin(SpinButton& spin);

/// What takes a plan out of the main window: saving, printing, the combination and the picture export. The
/// pointer over the printer tells whether printing is possible. Raises nothing.
void EnableOutput(Program& program, bool enabled);
bool IsOutput(const Form2& form2, const Control& control);

/// Whether the 3rd and 4th gear show that they exclude each other. The colour is the rule, and not the
/// tables: the pair that a user has chosen is tested, and a plan that was read or found shows none. Raises
/// nothing.
bool ShowsForbiddenPair(const Form2& form2);

/// Whether a gear's request has a tolerance of its own. What its button says is the rule.
bool IsManual(const Form2& form2, int gear);

/// What a search takes away, to give it back with a plan or with the answer to its question.
void DisableForSearch(Form2& form2);
bool IsTakenBySearch(const Form2& form2, const Control& control);

/// Whether there is more than one primary row: a machine with a single one leaves nothing to step.
bool HasPrimariesToStep(const Workspace& workspace);

/// The arrows of primary and final; those of a primary without rows to step stay as they are. Raises nothing.
void EnableRowSpins(Program& program);

/// A gear's labels in columns take its colour, which the user may have chosen; on the main window the columns
/// are those that tell the gears apart.
void ShowGearColour(const Workspace& workspace, int gear,
                    std::initializer_list<ControlArray<Label>*> columns);
void ShowGearColour(Program& program, int gear);

/// Restore, as button and as menu entry.
void EnableRestore(Program& program, bool enabled);

}  // namespace veldrin
