// The limits of the program's numbers, and what the running conditions are where nothing else is said. Lists,
// settings, boxes and the console's options all hold to this one table.
#pragma once

#include "model/setting_names.h"

#include <cstdint>

namespace veldrin {

// ---- How much the tables hold ----

inline constexpr int kGears = 6;
/// The two gears that may exclude each other, as they share a part.
inline constexpr int kThirdGear = 3;
inline constexpr int kFourthGear = 4;
inline constexpr int kGearRowLimit = 10;     // rows of a gear that the tables hold
inline constexpr int kPrimaryFileLimit = 8;  // primary rows that a list file can fill
inline constexpr int kPrimaryLimit = 15;
inline constexpr int kFinalDriveLimit = 10;
inline constexpr int kFinalDrivenLimit = 20;
inline constexpr int kFinalLimit = kFinalDriveLimit * kFinalDrivenLimit;
inline constexpr int kPlanLimit = 30;

// ---- What numbers may be ----

/// Both ends are allowed.
struct Limits {
  int lowest;
  int highest;

  constexpr bool Holds(double number) const { return number >= lowest && number <= highest; }
};

inline constexpr Limits kTyreLimits{1, 3};               // metres
inline constexpr Limits kRevolutionLimits{5000, 24000};  // rev/min
inline constexpr Limits kMaxSpeedLimits{100, 340};       // km/h
inline constexpr Limits kToleranceLimits{1, 21};         // km/h
inline constexpr Limits kMinPlanLimits{1, kPlanLimit};
inline constexpr int kLowestRequest = 10;  // km/h
/// Of a point that a tyre is measured by: an engine also runs below what the conditions take, never above.
inline constexpr Limits kMeasuredSpeedLimits{1, 1000};                      // km/h
inline constexpr Limits kMeasuredNeLimits{500, kRevolutionLimits.highest};  // rev/min
/// Of a gear in a plan's file, where only what cannot be a speed is refused.
inline constexpr Limits kStoredSpeedLimits{0, 10000};  // km/h

/// A running condition that lists and settings give.
struct Condition {
  const char* key;      // in a list's key lines and in the older settings file
  const char* setting;  // in the store
  Limits limits;
  bool whole;
};

/// In the order of the settings window's boxes; below it their places.
// clang-format off
inline constexpr Condition kConditions[] = {
    {"TYRE_L",    kTyreLengthWrittenValue, kTyreLimits,       false},
    {"CHECK_NE",  kCheckNeValue,           kRevolutionLimits, true},
    {"SHIFT_NE",  kShiftNeValue,           kRevolutionLimits, true},
    {"MAX_SPEED", kMaxSpeedValue,          kMaxSpeedLimits,   true},
    {"MAX_NE",    kMaxNeValue,             kRevolutionLimits, true},
};
// clang-format on
inline constexpr int kTyreCondition = 0;
inline constexpr int kCheckNeCondition = 1;
inline constexpr int kShiftNeCondition = 2;
inline constexpr int kMaxSpeedCondition = 3;
inline constexpr int kMaxNeCondition = 4;

// ---- The running conditions and the history of a new installation ----

inline constexpr float kDefaultTyreLength = 1.9F;       // metres
inline constexpr std::int16_t kDefaultShiftNe = 13000;  // rev/min
inline constexpr std::int16_t kDefaultCheckNe = 10000;  // rev/min
inline constexpr std::int16_t kDefaultMaxNe = 15000;    // rev/min
inline constexpr std::int16_t kDefaultMaxSpeed = 340;   // km/h
inline constexpr std::int16_t kDefaultHistoryMax = 6;   // files used last

}  // namespace veldrin
