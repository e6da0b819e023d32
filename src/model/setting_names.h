// The names of the values below the settings' key. Each is written once, here, in the case in which it is
// stored.
#pragma once

namespace veldrin {

inline constexpr char kAppPathValue[] = "App Path";

// ---- The running conditions ----

/// Kept: what is read and what is written differ in the case of a letter. The store looks names up without
/// regard to case, so both are one value.
inline constexpr char kTyreLengthValue[] = "Tyre_l";
inline constexpr char kTyreLengthWrittenValue[] = "Tyre_L";
inline constexpr char kCheckNeValue[] = "Check_Ne";
inline constexpr char kShiftNeValue[] = "Shift_Ne";
inline constexpr char kMaxSpeedValue[] = "Max_Speed";
inline constexpr char kMaxNeValue[] = "Max_Ne";

// ---- What else the user sets ----

inline constexpr char kListFileValue[] = "List_File";
inline constexpr char kListPathValue[] = "List_Path";
inline constexpr char kDataPathValue[] = "Data_Path";
inline constexpr char kHistoryMaxValue[] = "His_Num";
inline constexpr char kMinPlanValue[] = "Min Plan";
inline constexpr char kQuickQuitValue[] = "QuickQuit";
inline constexpr char kLanguageValue[] = "Language";
inline constexpr char kPrintFontValue[] = "Pr_Font";
inline constexpr char kSeparate34Value[] = "Separate_34";
/// Of gears 1..6.
inline constexpr const char* kColourValues[] = {"Color_1", "Color_2", "Color_3",
                                                "Color_4", "Color_5", "Color_6"};

// ---- What the program remembers ----

/// How many extensions are tied.
inline constexpr char kExtensionCountValue[] = "NumExtReg";
/// Where the main window last stood.
inline constexpr char kLastTopValue[] = "Last Top";
inline constexpr char kLastLeftValue[] = "Last Left";
/// How large the windows are shown, percent.
inline constexpr char kZoomValue[] = "Zoom";

}  // namespace veldrin
