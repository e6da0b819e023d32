// Texts that depend on the language: the messages by number, and the two parts of the title.
//
// `Language` names the source: "JP" and "ENGLISH" are built in (language_tables.h), any other word names a
// caption file in the program folder. Captions of controls and the texts of the settings and About windows
// are not kept here.
#pragma once

#include "workspace/program.h"

#include <string>

namespace veldrin {

/// Messages that are in use; the table has room for 30.
inline constexpr int kMessages = 28;

// Numbers of those that several units show or look for.
inline constexpr int kUnknownKindMessage = 6;
inline constexpr int kMachineChangeMessage = 7;
inline constexpr int kOverwriteMessage = 8;
inline constexpr int kMissingFileMessage = 26;

/// Sets `TitlePrefix`, `ChangedMark` and `IsJapanese` by the system's country. `instanceNumber` counts from 1
/// and shows in the Japanese title alone. Raises nothing.
void SetTitleTexts(Program& program, int instanceNumber);

/// Fills `MessageTable` for `Language`; a caption file also replaces `TitlePrefix` and `ChangedMark`. A
/// language whose caption file is missing becomes that of the system. Raises fault 62 at the end of a caption
/// file of fewer than 30 lines, what was read being stored, and the faults of a file that cannot be opened.
void LoadLanguage(Program& program);

/// Message `number` (1..30). Raises fault 9 outside.
const std::string& Message(const Workspace& workspace, int number);

}  // namespace veldrin
