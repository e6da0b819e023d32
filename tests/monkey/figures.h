// Figures as the words of the program's description give them, worked out here anew: speeds of parts, and the
// texts in which numbers are shown. Nothing of this calls the program's own arithmetic.
#pragma once

#include "model/workspace.h"

#include <array>
#include <string>
#include <vector>

namespace veldrin::monkey {

/// Speeds by gear; element 0 repeats element 1.
using Speeds = std::array<float, kGears + 1>;

/// Rows of a table of ratios whose text reads so.
std::vector<double> RatiosNamed(const Workspace& workspace, bool primary, const std::string& text);

/// Whether the gear's only pair stands in its last row. The first plan then begins in row 1, by its label
/// with that pair; a step onto the pair leaves the label as it is, and so refreshes nothing.
bool BeginsInItsLastRow(const Workspace& workspace, int gear);

/// Rows of a gear whose pair reads so.
std::vector<int> PairsNamed(const Workspace& workspace, int gear, const std::string& text);

/// Road speed in km/h: revolutions times tyre times the three ratios times 0.06, narrowed once.
float SpeedOf(const Workspace& workspace, double primary, double final, int gear, int row);

/// "###.#" aligned at column 4, and "##.#" aligned at column 3.
std::string SpeedText(const Workspace& workspace, float speed);
std::string StepText(const Workspace& workspace, float step);
/// Whole revolutions, nothing for 0.
std::string DropText(float revolutions);
/// The revolutions away from the baseline, signed; "+-0" within 1.5 either way.
std::string DeviationText(double deviation);
/// The difference of two speeds, signed, with one decimal; two blanks and "+-0" where there is none.
std::string DifferenceText(const Workspace& workspace, float difference);

/// The number that a box shows; false where it shows none.
bool ReadNumber(const Workspace& workspace, const std::string& text, double& number);
/// The same of a file, where a comma and a point are both the separator.
bool ReadAnyNumber(const Workspace& workspace, const std::string& text, double& number);

}  // namespace veldrin::monkey
