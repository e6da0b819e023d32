// The icons of the program and of its files. They are drawn here, so that they are sharp at every size; what
// lies under share/icons was drawn from here by veldrin-icons.
#pragma once

#include <QIcon>
#include <QImage>

#include <string>

namespace veldrin {

/// Whose icon: the program's, a plan's or a machine list's.
enum class IconSubject { Program, Plan, List };

/// The icon, `size` pixels wide and high (1 or more). Lines are the wider, in proportion, the smaller it is.
QImage IconImage(IconSubject subject, int size);

/// The same as SVG, with the proportions of the largest.
std::string IconSvg(IconSubject subject);

/// The program's icon for its windows.
QIcon ProgramIcon();

}  // namespace veldrin
