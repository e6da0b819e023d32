// The columns of a table of parts, and the words of its first one.
#pragma once

#include <array>
#include <string>

namespace veldrin {

namespace parts_kind {
inline constexpr char kMachine[] = "machine";           // text: its name
inline constexpr char kFinalDrive[] = "final-drive";    // drive: teeth
inline constexpr char kFinalDriven[] = "final-driven";  // driven: teeth
inline constexpr char kPrimary[] = "primary";           // drive, driven: teeth
inline constexpr char kGear[] = "gear";  // gear, text, drive, driven; main and counter where they are known
inline constexpr char kForbidden[] = "forbidden";  // text: pair of 3rd; fourth: pair of 4th
inline constexpr char kMatrix[] =
    "matrix";                              // drive, driven: rows of 3rd and 4th; text: what the matrix holds
inline constexpr char kPart[] = "part";    // gear, text, main, counter
inline constexpr char kJoint[] = "joint";  // text, fourth: pairs; main, counter, counter_of_fourth
inline constexpr char kKey[] = "key";      // text: TYRE_L and the like; drive: its value
}  // namespace parts_kind

inline constexpr char kPartsHeading[] = "kind,gear,text,drive,driven,main,counter,fourth,counter_of_fourth";

/// One line.
struct PartsLine {
  std::string kind;
  std::string gear{};
  std::string text{};
  std::string drive{};
  std::string driven{};
  std::string main{};
  std::string counter{};
  std::string fourth{};
  std::string counterOfFourth{};

  /// Whether the column holds names of things, which may look like numbers.
  static constexpr bool IsText(std::string PartsLine::*column) {
    return column == &PartsLine::text || column == &PartsLine::main || column == &PartsLine::counter ||
           column == &PartsLine::fourth || column == &PartsLine::counterOfFourth;
  }

  /// In the order of the heading.
  static constexpr std::array<std::string PartsLine::*, 9> Columns() {
    return {&PartsLine::kind,    &PartsLine::gear,   &PartsLine::text,
            &PartsLine::drive,   &PartsLine::driven, &PartsLine::main,
            &PartsLine::counter, &PartsLine::fourth, &PartsLine::counterOfFourth};
  }
};

}  // namespace veldrin
