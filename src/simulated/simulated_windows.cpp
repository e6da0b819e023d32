#include "simulated/simulated_windows.h"

#include "simulated/printed_values.h"
#include "view/grid.h"

#include <algorithm>
#include <cstdio>
#include <ostream>
#include <string>
#include <variant>

namespace veldrin {

namespace {

/// The value of an element of a grid, by a name such as "Cell(0,1)" or "ColWidth(1)".
std::string TracedElement(const Grid& grid, const char* name) {
  int row = 0;
  int column = 0;
  if (std::sscanf(name, "Cell(%d,%d)", &row, &column) == 2) return Printed(Quoted(grid.Cell(row, column)));
  if (std::sscanf(name, "ColWidth(%d)", &column) == 1) return ValueText(grid.ColWidth(column));
  return "";
}

/// The value that a trace tells of a slot; empty for what is no slot to be asked for.
std::string TracedValue(const Control& control, const char* name) {
  if (const AnySlot* const slot = control.FindSlot(name)) {
    const std::string text = SlotText(control, *slot);
    return std::holds_alternative<Slot<std::string>*>(*slot) ? Printed(Quoted(text)) : text;
  }
  if (control.kind == ControlKind::Grid && std::string_view(name) != "ZOrder") {
    return TracedElement(static_cast<const Grid&>(control), name);
  }
  const bool isPlaceAmongSiblings = std::string_view(name) == "ZOrder" && control.kind != ControlKind::Window;
  return isPlaceAmongSiblings ? ValueText(control.ZOrder()) : "";
}

}  // namespace

void SimulatedWindows::Forget() {
  loaded.clear();
  clock_->Forget();
}

void SimulatedWindows::Loaded(Window& window) {
  loaded.push_back(&window);
  clock_->WindowLoaded(window);
}

void SimulatedWindows::Unloaded(Window& window) {
  std::erase(loaded, &window);
  clock_->WindowUnloaded(window);
}

void SimulatedWindows::SlotWritten(Control& control, const char* slot, bool changed) {
  if (changed && control.kind == ControlKind::Timer) {
    clock_->TimerChanged(static_cast<TimerControl&>(control), slot);
  }
  if (trace == nullptr) return;
  const std::string value = TracedValue(control, slot);
  if (!value.empty()) *trace << "write " << control.FullName() << "." << slot << " " << value << "\n";
}

void SimulatedWindows::EventFired(Control& control, const Event& event) {
  if (trace != nullptr) *trace << "event " << control.FullName() << "." << event.Name() << "\n";
}

void SimulatedWindows::RunModal(Window& window) {
  clock_->FinishAdvance();
  if (window.Visible && modalLoop) modalLoop(window);
}

void SimulatedWindows::Flash(Window& window) {
  ++log_->flashes;
  log_->Add("flash " + window.name);
}

}  // namespace veldrin
