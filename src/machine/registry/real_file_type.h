// The type of plan files in the registry of Windows.
//
// At its first run the program writes, below the classes root, which icon the type has and what opens it: by
// the rule veldrin.exe in the folder of its lists, with a bare %1. On a machine of somebody the program lies
// elsewhere, and a path with blanks would fall apart on its way. So what reaches the registry there names the
// program that is running, in quotes, as its installer does:
//
//   Veldrin.file\DefaultIcon            "C:\...\veldrin.exe",1
//   Veldrin.file\Shell\open\command     "C:\...\veldrin.exe" "%1"
//
// A type whose command so names a program that is there stays as it is.
#pragma once

#include <string>

namespace veldrin {

inline constexpr char kFileType[] = "Veldrin.file";
inline constexpr char kFileTypeIcon[] = "Veldrin.file\\DefaultIcon";
inline constexpr char kFileTypeCommand[] = "Veldrin.file\\Shell\\open\\command";

/// Whether a key of the classes root belongs to the type.
bool BelongsToFileType(const std::string& key);

/// What the default of the type's key holds on this machine, where the program's rule says `text`; `program`
/// is the path of the one that is running.
std::string FileTypeText(const std::string& key, const std::string& text, const std::string& program);

/// The program that a command starts with one path in quotes; empty for every other command.
std::string ProgramOfCommand(const std::string& command);

}  // namespace veldrin
