// The axes of a chart as every window with one has them, in twips of the panel around the plot: a tick every
// 1000 rev/min below the plot and every 20 km/h to its left, with numerals every 5000 rev/min and 100 km/h.
// Lengths that depend on the chart's scale stand in two numbers: twips per 1000 rev/min and per 20 km/h.
#pragma once

#include "view/control_array.h"

namespace veldrin {

/// Where the axes lie, that of the speeds to the left of the plot and that of the revolutions below it.
inline constexpr float kAxesLeft = 480;
inline constexpr float kAxesRight = 4460;
inline constexpr float kAxesFoot = 5520;
/// The outer ends of their ticks, which the numerals of the revolutions begin below.
inline constexpr float kTickLeft = 360;
inline constexpr float kTickFoot = 5640;
/// Where the numerals of the speeds begin, and the unit of the revolutions.
inline constexpr float kSpeedNumeralLeft = 150;
inline constexpr float kNeUnitLeft = 3480;
inline constexpr float kNeUnitTop = 5805;

/// The two numbers that the windows are designed with, those of a chart up to 15000 rev/min and 340 km/h.
inline constexpr float kDesignThousandNe = 3960000.0F / 15000;
inline constexpr float kDesignTwentyKmh = 110400.0F / 340;

/// The last ticks of the axes, at 24000 rev/min and 360 km/h, and the last numeral of the revolutions, at
/// 20000: they are there whatever the scale.
inline constexpr int kLastTickAcross = 24;
inline constexpr int kLastTickUp = 18;
inline constexpr int kLastNumeralAcross = 3;
/// Subscript of the unit among these numerals.
inline constexpr int kNeUnit = kLastNumeralAcross + 1;

/// Where the tick of a number of thousand revolutions lies, and that of a number of 20 km/h.
inline float TickAcross(int thousands, float thousandNe) {
  // Kept: the factor is part of the rule.
  return static_cast<float>((thousands * static_cast<double>(thousandNe) + kAxesLeft) * 1.008);
}
inline float TickUp(int twenties, float twentyKmh) {
  return static_cast<float>(kAxesFoot - twenties * static_cast<double>(twentyKmh));
}

/// Where the numeral of 5, 10, 15 or 20 thousand revolutions begins, by its index, and the top of that of a
/// number of 20 km/h.
inline float NumeralLeft(int index, float thousandNe) {
  return thousandNe * static_cast<float>(5 * (index + 1)) + (index == 0 ? 450.0F : 400.0F);
}
inline float NumeralTop(int twenties, float twentyKmh = kDesignTwentyKmh) {
  return 5430 - twentyKmh * static_cast<float>(twenties);
}

/// Makes the ticks of the revolutions and those of the speeds; the subscript is their number.
ControlArray<Line>::Maker TicksAcross(const char* name, Control& panel);
ControlArray<Line>::Maker TicksUp(const char* name, Control& panel);

/// Places of the numerals of the revolutions, and of their unit below them.
std::function<Place(int)> NumeralsAcross(float unitWidth);

/// What these numerals say.
std::vector<const char*> NumeralTexts();

}  // namespace veldrin
