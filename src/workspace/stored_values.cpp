#include "workspace/stored_values.h"

#include "model/decimal.h"
#include "model/setting_names.h"
#include "runtime/fault.h"
#include "workspace/settings.h"

#include <functional>

namespace veldrin {

namespace {

/// In the order in which they are read.
constexpr const char* kWholeNumberValues[] = {kCheckNeValue, kShiftNeValue,    kMaxSpeedValue,
                                              kMaxNeValue,   kHistoryMaxValue, kMinPlanValue};

}  // namespace

std::string StoredText(const Program& program, const std::string& value, const std::string& whenEmpty) {
  const std::string text = Stored(program, value);
  return text.empty() ? whenEmpty : text;
}

std::int16_t StoredInt16(const Program& program, const std::string& value, std::int16_t whenZero) {
  const std::string text = Stored(program, value);
  if (text.empty()) return whenZero;
  const std::int16_t number = SystemInt16(program.workspace, text);
  return number == 0 ? whenZero : number;
}

float StoredSingle(const Program& program, const std::string& value, float whenZero) {
  const std::string text = Stored(program, value);
  if (text.empty()) return whenZero;
  const float number = RepairedSingle(program.workspace, text);
  return number == 0 ? whenZero : number;
}

Colour StoredColour(const Program& program, const std::string& value, Colour whenZero) {
  const std::string text = Stored(program, value);
  if (text.empty()) return whenZero;
  const std::int32_t number = SystemInt32(program.workspace, text);
  return number == 0 ? whenZero : Colour{static_cast<std::uint32_t>(number)};
}

std::optional<StoredValue> FindBadSetting(const Program& program) {
  const auto bad = [&](const std::string& value, const std::function<void()>& read) {
    return Guarded(read) == 0 ? std::nullopt : std::optional(StoredValue{value, Stored(program, value)});
  };
  if (auto found = bad(kTyreLengthValue, [&] { StoredSingle(program, kTyreLengthValue, 0); })) return found;
  for (const char* value : kWholeNumberValues) {
    if (auto found = bad(value, [&] { StoredInt16(program, value, 0); })) return found;
  }
  for (int gear = 1; gear <= kGears; ++gear) {
    const std::string value = ColourValue(gear);
    if (auto found = bad(value, [&] { StoredColour(program, value, {}); })) return found;
  }
  return std::nullopt;
}

}  // namespace veldrin
