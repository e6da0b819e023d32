#include "tests/monkey/figures.h"

#include <cmath>
#include <cstdlib>

namespace veldrin::monkey {

namespace {

constexpr double kKilometresPerHour = 0.06;  // of metres per minute
constexpr double kDeadBand = 1.5;            // rev/min

char Separator(const Workspace& workspace) {
  return workspace.DecimalSep == "," ? ',' : '.';
}

/// The value's whole tenths; halves go away from zero. A 32-bit value times 10 is exact in 64 bits.
long long Tenths(float value) {
  return std::llround(std::fabs(static_cast<double>(value)) * 10);
}

/// Digits that "#" shows: no leading and no trailing zero, but always the point.
std::string PlainTenths(const Workspace& workspace, float value) {
  const long long tenths = Tenths(value);
  const std::string whole = tenths / 10 == 0 ? "" : std::to_string(tenths / 10);
  const std::string digit = tenths % 10 == 0 ? "" : std::to_string(tenths % 10);
  return (value < 0 ? "-" : "") + whole + Separator(workspace) + digit;
}

/// Padded so that the point stands at `column`, as far as the rule goes.
std::string Aligned(const std::string& text, std::size_t column) {
  if (text.size() > column) return text;
  if (text.size() == column && (text.back() == '.' || text.back() == ',')) return text + "0";
  if (text.size() == column - 1) return " " + text + "0";
  return " " + text;
}

}  // namespace

std::vector<double> RatiosNamed(const Workspace& workspace, bool primary, const std::string& text) {
  std::vector<double> ratios;
  const int count = primary ? workspace.PrimaryCount : workspace.FinalDriveCount * workspace.FinalDrivenCount;
  for (int row = 1; row <= count; ++row) {
    const RatioRow& part = primary ? workspace.PrimaryTable[row] : workspace.FinalTable[row];
    if (part.Text == text) ratios.push_back(static_cast<double>(part.Drive) / part.Driven);
  }
  return ratios;
}

bool BeginsInItsLastRow(const Workspace& workspace, int gear) {
  return workspace.GearRows > 1 && workspace.GearFirstRow[gear] == workspace.GearRows;
}

std::vector<int> PairsNamed(const Workspace& workspace, int gear, const std::string& text) {
  std::vector<int> rows;
  for (int row = 1; row <= workspace.GearRows && row <= kGearRowLimit; ++row) {
    if (workspace.GearTable(gear, row) == text) rows.push_back(row);
  }
  return rows;
}

float SpeedOf(const Workspace& workspace, double primary, double final, int gear, int row) {
  const double wheel = static_cast<double>(workspace.ShiftNe) * static_cast<double>(workspace.TyreLength);
  return static_cast<float>(wheel * primary * final * workspace.GearDriveTeeth(gear, row) /
                            workspace.GearDrivenTeeth(gear, row) * kKilometresPerHour);
}

std::string SpeedText(const Workspace& workspace, float speed) {
  return Aligned(PlainTenths(workspace, speed), 4);
}

std::string StepText(const Workspace& workspace, float step) {
  return Aligned(PlainTenths(workspace, step), 3);
}

std::string DropText(float revolutions) {
  const long long whole = std::llround(static_cast<double>(revolutions));
  return whole == 0 ? "" : std::to_string(whole);
}

std::string DeviationText(double deviation) {
  const auto single = static_cast<float>(deviation);
  if (single > -kDeadBand && single < kDeadBand) return "+-0";
  const long long whole = std::llround(std::fabs(static_cast<double>(single)));
  return (single > 0 ? "+" : "-") + std::to_string(whole);
}

std::string DifferenceText(const Workspace& workspace, float difference) {
  if (difference == 0) return "  +-0";
  const long long tenths = Tenths(difference);
  return (difference > 0 ? "+" : "-") + std::to_string(tenths / 10) + Separator(workspace) +
         std::to_string(tenths % 10);
}

bool ReadNumber(const Workspace& workspace, const std::string& text, double& number) {
  std::string plain = text;
  const std::size_t first = plain.find_first_not_of(' ');
  const std::size_t last = plain.find_last_not_of(' ');
  if (first == std::string::npos) return false;
  plain = plain.substr(first, last - first + 1);
  for (char& c : plain) {
    if (c == Separator(workspace)) {
      c = '.';
    } else if (c == '.' || c == ',' || c == 'x' || c == 'X') {
      return false;
    }
  }
  char* end = nullptr;
  number = std::strtod(plain.c_str(), &end);
  return end == plain.c_str() + plain.size() && std::isfinite(number);
}

bool ReadAnyNumber(const Workspace& workspace, const std::string& text, double& number) {
  std::string own = text;
  const std::size_t place = own.find(Separator(workspace) == ',' ? '.' : ',');
  if (place != std::string::npos) own[place] = Separator(workspace);
  return ReadNumber(workspace, own, number);
}

}  // namespace veldrin::monkey
