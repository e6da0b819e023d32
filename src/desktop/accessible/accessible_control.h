// What screen readers hear of controls for which Qt knows no words: spin buttons, labels and pictures, those
// that answer a click above all, and scroll bars. All other kinds are widgets that Qt tells of itself, and
// that carry their hint as their description.
#pragma once

namespace veldrin {

/// Makes Qt ask here first, from now on. A second call changes nothing.
void InstallAccessibleControls();

}  // namespace veldrin
