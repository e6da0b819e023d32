// Where the program's lists, plans, sounds and captions lie. Its first run takes the current folder for its
// own, so main() enters this one before.
//
//   VELDRIN_HOME                      that folder, when the variable names one
//   DATA/veldrin                      else the user's own, where saving works for everybody; DATA is the
//                                     folder for data of the user, ~/.local/share or its like
//
// The user's folder is made at the first run, with copies of what was installed. Later runs add files that
// came with a newer program; what lies in LIST and DAT is the user's, and a folder that is there gets
// nothing, unless the user has no list at all.
#pragma once

#include <QString>

#include <filesystem>

namespace veldrin {

/// Whole path of the program's folder, which is there; the variable's bytes go through as they are. Where the
/// user's own cannot be made it is the installed one, or the user's home.
std::filesystem::path ProgramFolder();

/// The folder with what was installed for the program in the folder `program`: that one itself, or veldrin in
/// one of the folders for shared data. Empty when there is none.
QString InstalledFolder(const QString& program);

/// Makes `folder` and copies what it still lacks from `installed`. False when it cannot be made or denies
/// writing.
bool FillProgramFolder(const QString& folder, const QString& installed);

}  // namespace veldrin
