// What screen readers hear of controls for which Qt knows no words: spin buttons, and the labels and pictures
// that answer a click. All other kinds are widgets that Qt tells of itself.
#pragma once

namespace veldrin {

/// Makes Qt ask here first, from now on. A second call changes nothing.
void InstallAccessibleControls();

}  // namespace veldrin
