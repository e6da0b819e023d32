// What several windows' columns of gears are designed with.
#pragma once

#include "view/control_array.h"

#include <initializer_list>

namespace veldrin {

/// The labels 1 to 6 of columns have the colours of their gears.
void DesignGearColours(std::initializer_list<ControlArray<Label>*> columns);

/// Heads of columns look alike, whatever the look of the labels below them.
void DesignHeads(std::initializer_list<Label*> heads);

}  // namespace veldrin
