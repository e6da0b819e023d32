#include "simulated/printed_values.h"

#include "runtime/conversion.h"

#include <type_traits>

namespace veldrin {

std::string ValueText(bool value) {
  return value ? "True" : "False";
}

std::string ValueText(int value) {
  return std::to_string(value);
}

std::string ValueText(float value) {
  return ShortestText(value);
}

std::string ValueText(double value) {
  return ShortestText(value);
}

std::string ValueText(Colour value) {
  return std::to_string(value.Red()) + "," + std::to_string(value.Green()) + "," +
         std::to_string(value.Blue());
}

std::string ValueText(const std::string& value) {
  return value;
}

std::string SlotText(const Control& control, const AnySlot& slot) {
  return std::visit(
      [&](const auto* typed) -> std::string {
        if constexpr (std::is_same_v<decltype(typed), const Slot<int>*>) {
          static constexpr const char* kStates[] = {"normal", "minimised", "maximised"};
          const int value = typed->get();
          const bool isState = control.kind == ControlKind::Window && typed->Name() == "WindowState";
          if (isState && value >= 0 && value <= 2) return kStates[value];
        }
        return ValueText(typed->get());
      },
      slot);
}

std::string Printed(std::string_view text) {
  std::string printed;
  for (const char c : text) {
    switch (c) {
      case '\r':
        printed += "<CR>";
        break;
      case '\n':
        printed += "<LF>";
        break;
      case '\t':
        printed += "<TAB>";
        break;
      default:
        printed += c;
    }
  }
  return printed;
}

std::string Quoted(std::string_view text) {
  std::string quoted = "\"";
  for (const char c : text) {
    quoted += c;
    if (c == '"') quoted += c;
  }
  return quoted + "\"";
}

}  // namespace veldrin
