// The one workspace of the program: the loaded machine, the plan, its speeds, the running conditions, and the
// words that say what the workspace is doing. Created at start, alive until the process ends, read and
// written directly by every window and file routine.
//
// Gears are numbered 1 to 6; tables start at 1 unless they say otherwise. Texts are UTF-8.
#pragma once

#include "model/limits.h"
#include "model/words.h"
#include "platform/colour.h"
#include "runtime/table.h"

#include <cstdint>
#include <string>

namespace veldrin {

inline constexpr int kRatioTextLength = 5;

/// A row of the primary or of the final table.
struct RatioRow {
  std::int16_t Drive = 0;   // teeth of the driving sprocket or wheel
  std::int16_t Driven = 0;  // teeth of the driven one
  std::string Text =
      "     ";       // "Drive-Driven", always 5 characters; the row's name in plan files and on screen
  double Ratio = 0;  // Drive over Driven
};

/// The text of a row: "drive-driven", filled up with blanks or cut at 5 characters.
/// Kept: teeth above 99 lose digits here; `Ratio` still uses the full numbers.
std::string RatioText(int drive, int driven);

/// A running condition that a key of the machine's list has set.
template <class Number>
struct KeyedCondition {
  bool taken = false;
  Number before{};  // what the condition was before the key
  Number set{};     // what the key made it
};

/// The conditions under keys of the loaded list, which hold as long as its machine.
struct KeyedConditions {
  KeyedCondition<float> TyreLength;
  KeyedCondition<float> CheckNe;
  KeyedCondition<std::int16_t> ShiftNe;
  KeyedCondition<std::int16_t> MaxSpeed;
  KeyedCondition<std::int16_t> MaxNe;
};

struct Workspace {
  // ---- The machine, constant until the next list is loaded ----
  std::string MachineName;    // as written in the list file
  std::string MachineKey;     // in lower case; empty while no machine is loaded; extension of plan files
  std::string LoadedMachine;  // name of the machine that the tables hold whole; empty for none
  std::string LoadedList;     // path of the list that the tables were read from
  Table<std::int16_t, 1, kFinalDriveLimit> FinalDriveList;  // teeth
  std::int16_t FinalDriveCount = 0;
  Table<std::int16_t, 1, kFinalDrivenLimit> FinalDrivenList;  // teeth
  std::int16_t FinalDrivenCount = 0;
  Table<RatioRow, 1, kFinalLimit> FinalTable;      // ascending by Ratio
  Table<RatioRow, 1, kPrimaryLimit> PrimaryTable;  // ascending by Ratio
  std::int16_t PrimaryCount = 0;
  std::int16_t GearRows = 0;  // rows of each gear as the list says; the tables hold 10
  Grid2D<std::string, kGears, kGearRowLimit> GearTable;  // (gear, row): text of the pair, "99" for none
  Grid2D<std::int16_t, kGears, kGearRowLimit> GearDriveTeeth;
  Grid2D<std::int16_t, kGears, kGearRowLimit> GearDrivenTeeth;
  Grid2D<std::int16_t, kGearRowLimit, kGearRowLimit> M34Matrix;  // (row of 3rd, row of 4th): 99 forbids
  Table<std::int16_t, 1, kGears> GearFirstRow;
  std::string FinalRow7Text;  // texts of final rows 7 and 1 right after the sort
  std::string FinalRow1Text;

  // ---- The plan ----
  std::int16_t PrimaryIndex = 0;
  std::int16_t FinalIndex = 0;
  Table<std::int16_t, 1, kGears> PlanIndex;
  std::int16_t FilePrimaryDrive = 0;  // as last read from a plan file
  std::int16_t FilePrimaryDriven = 0;
  std::int16_t FileFinalDrive = 0;
  std::int16_t FileFinalDriven = 0;

  // ---- Running conditions ----
  float TyreLength = 0;          // metres per turn
  std::int16_t ShiftNe = 0;      // rev/min: speeds are computed at these
  float CheckNe = 0;             // rev/min, whole
  std::int16_t ReferenceNe = 0;  // rev/min: the baseline speeds belong to these
  std::int16_t MaxSpeed = 0;     // km/h: top of the chart
  std::int16_t MaxNe = 0;        // rev/min: right end of the chart
  KeyedConditions keyed;         // those that the list's keys have set

  // ---- Speeds, km/h ----
  Table<float, 0, kGears> SpeedNow;  // element 0 repeats element 1
  Table<float, 1, kGears> SpeedBaseline;
  Table<float, 1, kGears> SpeedRequest;
  Table<float, 1, kGears - 1> SpeedStepNow;
  Table<float, 1, kGears - 1> SpeedStepBaseline;
  Table<float, 1, kGears> ShiftDropNe;  // rev/min after changing up into the gear
  Table<float, 1, kGears> NeDeviation;  // rev/min away from the baseline

  // ---- Requests and the search ----
  Table<std::int16_t, 1, kGears> ToleranceMinus;  // km/h, within kToleranceLimits
  Table<std::int16_t, 1, kGears> TolerancePlus;
  Table<std::int16_t, 1, kGears> BaseNe;  // rev/min, 0 before the first entry by revolutions
  Table<std::int16_t, 1, kGears> RequestNe;
  Table<std::int16_t, 1, kGears> GearChoiceCount;  // columns of a gear's pop-up
  Table<std::string, 0, kPlanLimit> PlanList;      // each the text of eight row numbers; slot 0 is never used
  std::int16_t PlanCount = 0;

  // ---- Files ----
  std::string AppPath;  // program folder
  std::string ListPath;
  std::string DataPath;
  std::string InitialDataPath;  // DataPath as it stood at start
  std::string ListFile;         // name of the default list
  std::string DataFile;         // path of the plan shown; empty before the first load
  std::string OpenFile;         // path last handed to the opener as a plan file
  std::string PlanLine;         // plan line of the file last read
  std::string WorkFile;         // path of the working file
  std::string CommandFile;      // path given on the command line
  std::string TempDir;          // temporary folder; the chooser keeps its folder here as well (`ChosenDir`)
  std::string SaveName;         // name of the save in progress, without folder
  std::string RemarkFirstLine;

  // ---- Language and titles ----
  std::string TitlePrefix;
  std::string ChangedMark;
  std::int16_t IsJapanese = 0;  // 1 on a Japanese system
  std::string Language;
  Table<std::string, 1, 30> MessageTable;

  // ---- Words ----
  std::string CallerWord;
  std::string ModeWord;
  std::string ResultWord;
  std::string PendingAction;
  std::string DataChanged = dirty::kNo;
  std::string RemarkChanged = dirty::kNo;
  bool WorkFileStale = false;

  // ---- Settings and history ----
  std::int16_t HistoryMax = 0;
  std::int16_t HistoryCount = 0;
  std::int16_t PendingHistoryIndex = 0;
  std::int16_t MinPlan = 0;
  std::string QuickQuit = kNoWord;
  std::string PrintFont;
  bool PrintFontBold = false;
  bool PrintFontItalic = false;
  std::string Separate34;
  Table<Colour, 1, kGears> GearColour;
  std::int16_t NumExtReg = 0;
  std::int16_t MenuRegCount = 0;
  std::int16_t ExtSlot = 0;
  std::int16_t LastTop = 0;  // twips
  std::int16_t LastLeft = 0;
  std::string DecimalSep = ".";
  std::string ThousandSep = ".";
  bool FirstInstance = false;
  bool TempCleaned = false;
  std::int16_t ReportSizeIndex = 0;

  /// State of the generator that picks the sort's pivots; never seeded, so every run sorts alike.
  std::uint32_t sortRandom = 1;
};

/// The system's decimal separator; a point where the system's is none of the plain characters.
char DecimalSeparator(const Workspace& workspace);

/// "###.#" and the like of a 32-bit value, with the system's separator.
std::string FormatSingle(const Workspace& workspace, float value, const char* format);

/// The shortest text of a 32-bit value, with the system's separator.
std::string SingleText(const Workspace& workspace, float value);

}  // namespace veldrin
