// Values of the settings' key as what they stand for, the default standing for an absent or empty one.
#pragma once

#include "workspace/program.h"
#include "workspace/settings.h"

#include <cstdint>
#include <optional>
#include <string>

namespace veldrin {

std::string StoredText(const Program& program, const std::string& value, const std::string& whenEmpty);

/// The numbers have their default also where 0 is stored. They raise fault 13 for a text that is no number,
/// and 6 for one beyond its width.
std::int16_t StoredInt16(const Program& program, const std::string& value, std::int16_t whenZero);
float StoredSingle(const Program& program, const std::string& value, float whenZero);
/// Kept: black is stored as 0 and so cannot be a gear's colour.
Colour StoredColour(const Program& program, const std::string& value, Colour whenZero);

/// The first number of those that ReadSettings reads at which it faults, with the text that is stored;
/// nothing where all can be read. Raises nothing.
std::optional<StoredValue> FindBadSetting(const Program& program);

}  // namespace veldrin
