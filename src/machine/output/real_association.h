// The tie between plan files and the program on a desktop that follows the shared MIME database: one type for
// all plan files, one package of the user for each extension that is tied to it, and an entry that opens the
// type with this program as the user's default.
//
//   DATA/mime/packages/veldrin-EXTENSION.xml     the extension's pattern
//   DATA/applications/veldrin-plan.desktop       the program, as long as one extension is tied
//
// A program that was installed with an entry of its own, veldrin.desktop, is opened by that one, and the user
// gets none. The installed package of the database knows plans by the same type, so that neither takes files
// from the other.
//
// The desktop's own tools take them in, a moment after the functions have returned; where they are not
// installed, nothing happens at all. Windows has its registry for this: there the extension stands already,
// its type gets a program that is there, and the desktop is told that something changed.
#pragma once

#include <QString>

namespace veldrin {

/// The extension comes without its dot; an empty one is passed over. Failures are silent.
void AssociateOnDesktop(const QString& extension);
void DropOnDesktop(const QString& extension);

}  // namespace veldrin
