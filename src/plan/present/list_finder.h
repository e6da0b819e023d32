// The list of a plan's machine, where nobody names it.
#pragma once

#include <string>

namespace veldrin {

/// The path of the list of `machine`: beside the plan, in the folder LIST beside the plan's folder, or in
/// LIST of the program's folder, the one that VELDRIN_HOME names or that of the user. The case of letters
/// does not matter. Throws BadInput where there is none, with the option to be typed.
std::string FindListOf(const std::string& planPath, const std::string& machine);

/// The file beside `path` with the same name and this extension, such as ".CMB", the case of letters aside;
/// empty where there is none.
std::string FileBeside(const std::string& path, const std::string& extension);

}  // namespace veldrin
