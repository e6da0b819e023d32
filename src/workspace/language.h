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

// Messages by what they are for. Titles of the chooser, by which it knows its role:
inline constexpr int kListTitleMessage = 1;
inline constexpr int kDataTitleMessage = 2;
inline constexpr int kSaveTitleMessage = 3;
inline constexpr int kDeleteTitleMessage = 4;
inline constexpr int kQuickRatioTitleMessage = 5;
inline constexpr int kReferenceTitleMessage = 27;
// Its prompt line:
inline constexpr int kUnknownKindMessage = 6;
inline constexpr int kMachineChangeMessage = 7;
inline constexpr int kOverwriteMessage = 8;
inline constexpr int kReservedTargetMessage = 9;
inline constexpr int kQuickRatioPromptMessage = 10;
inline constexpr int kMissingFileMessage = 26;
inline constexpr int kReferencePromptMessage = 28;
// The banner of the search:
inline constexpr int kSearchingMessage = 11;
inline constexpr int kFoundMessage = 12;
// Questions of the decision panel, 13 to 17, are named by `Question`. Its answers:
inline constexpr int kRecalculateBySpeedMessage = 18;
inline constexpr int kRecalculateByFullAutoMessage = 19;
inline constexpr int kSaveAndQuitMessage = 20;
inline constexpr int kSaveAndLoadMessage = 21;
inline constexpr int kReadPlanMessage = 22;
inline constexpr int kEnterRequestsAgainMessage = 23;
inline constexpr int kQuitWithoutSavingMessage = 24;
inline constexpr int kLoadWithoutSavingMessage = 25;

/// Sets `TitlePrefix`, `ChangedMark` and `IsJapanese` by the system's country. `instanceNumber` counts from 1
/// and shows in the Japanese title alone. Raises nothing.
void SetTitleTexts(Program& program, int instanceNumber);

/// Fills `MessageTable` for `Language`; a caption file also replaces `TitlePrefix` and `ChangedMark`. A
/// language whose caption file is missing becomes that of the system. Raises fault 62 at the end of a caption
/// file of fewer than 30 lines, what was read being stored, and the faults of a file that cannot be opened.
void LoadLanguage(Program& program);

/// Whether texts that are in both languages show in Japanese: under the Japanese table, and on a Japanese
/// system under a caption file as well. Raises nothing.
bool SpeaksJapanese(const Workspace& workspace);

/// Message `number` (1..30). Raises fault 9 outside.
const std::string& Message(const Workspace& workspace, int number);

/// The message that a question of the decision panel asks by. Raises fault 9 for none.
const std::string& Message(const Workspace& workspace, Question question);

}  // namespace veldrin
