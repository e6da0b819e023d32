#include "script/script_slots.h"

#include "hints/hint.h"
#include "runtime/conversion.h"
#include "script/script_error.h"
#include "script/script_suggest.h"
#include "script/script_values.h"
#include "simulated/printed_values.h"

#include <algorithm>
#include <utility>

namespace veldrin {

namespace {

/// What reads like a slot without being one of the record.
struct Extra {
  const char* name;
  std::size_t subscripts;
  bool (*has)(const Control& control);
  Answer (*read)(const Program& program, Control& control, const NamePart& slot);
};

bool IsWindowControl(const Control& control) {
  return control.kind == ControlKind::Window;
}

bool IsInWindow(const Control& control) {
  return !IsWindowControl(control);
}

bool IsGrid(const Control& control) {
  return control.kind == ControlKind::Grid;
}

Window& AsWindow(Control& control) {
  return static_cast<Window&>(control);
}

bool HasEntries(const Control& control) {
  return EntriesOf(control) != nullptr;
}

/// The drawing surface of a picture, or of the report's canvas; null for others.
const Surface* SurfaceOf(const Control& control) {
  if (control.kind == ControlKind::Picture) return &static_cast<const Picture&>(control).surface;
  if (IsWindowControl(control) && control.name == "Form6") return &static_cast<const Form6&>(control).surface;
  return nullptr;
}

bool HasSurface(const Control& control) {
  return SurfaceOf(control) != nullptr;
}

bool HasScale(const Control& control) {
  return HasSurface(control) || IsWindowControl(control);
}

Answer ReadEntry(const Program& /*program*/, Control& control, const NamePart& slot) {
  const std::vector<std::string>& entries = *EntriesOf(control);
  const auto place = static_cast<std::size_t>(slot.indices[0]);  // a negative one lies beyond the end
  return {place < entries.size() ? entries[place] : kNone, {}};
}

Answer ReadEntryCount(const Program& /*program*/, Control& control, const NamePart& /*slot*/) {
  return {std::to_string(EntriesOf(control)->size()), {}};
}

bool IsInside(const Grid& grid, int row, int column) {
  return row >= 0 && row < grid.Rows && column >= 0 && column < grid.Cols;
}

Answer ReadCell(const Program& /*program*/, Control& control, const NamePart& slot) {
  const auto& grid = static_cast<const Grid&>(control);
  const int row = slot.indices[0];
  const int column = slot.indices[1];
  return {IsInside(grid, row, column) ? grid.Cell(row, column) : kNone, {}};
}

Answer ReadColWidth(const Program& /*program*/, Control& control, const NamePart& slot) {
  const auto& grid = static_cast<const Grid&>(control);
  const int column = slot.indices[0];
  return {column >= 0 && column < grid.Cols ? ValueText(grid.ColWidth(column)) : kNone, {}};
}

Answer ReadDrawing(const Program& /*program*/, Control& control, const NamePart& slot) {
  return DrawingAnswer(DrawingLines(SurfaceOf(control)->Drawing()), slot);
}

Answer ReadScale(const Program& /*program*/, Control& control, const NamePart& /*slot*/) {
  const Surface* surface = SurfaceOf(control);
  Scale scale;
  if (surface != nullptr) {
    scale = surface->UserScale();
  } else {
    scale.width = AsWindow(control).InnerWidth();
    scale.height = AsWindow(control).InnerHeight();
  }
  std::string text;
  for (const double value : {scale.left, scale.top, scale.width, scale.height}) {
    text += (text.empty() ? "" : " ") + ShortestText(static_cast<float>(value));
  }
  return {text, {}};
}

Answer ReadZOrder(const Program& /*program*/, Control& control, const NamePart& /*slot*/) {
  return {std::to_string(control.ZOrder()), {}};
}

Answer ReadFocus(const Program& /*program*/, Control& control, const NamePart& /*slot*/) {
  const Control* focus = AsWindow(control).focus;
  return {focus != nullptr ? focus->IndexedName() : kNone, {}};
}

Answer ReadLoaded(const Program& /*program*/, Control& control, const NamePart& /*slot*/) {
  return {ValueText(AsWindow(control).loaded), {}};
}

Answer ReadModal(const Program& /*program*/, Control& control, const NamePart& /*slot*/) {
  return {ValueText(AsWindow(control).isModal && AsWindow(control).Visible), {}};
}

Answer ReadHint(const Program& program, Control& control, const NamePart& /*slot*/) {
  const std::string hint = Hint(program, control);
  std::vector<std::string> lines;
  for (std::size_t at = 0; at <= hint.size();) {
    const std::size_t end = std::min(hint.find('\n', at), hint.size());
    lines.push_back(hint.substr(at, end - at));
    at = end + 1;
  }
  return LinesAnswer(std::move(lines));
}

// clang-format off
constexpr Extra kExtras[] = {
    {"List",         1, HasEntries,      ReadEntry},
    {"ListCount",    0, HasEntries,      ReadEntryCount},
    {"Cell",         2, IsGrid,          ReadCell},
    {"ColWidth",     1, IsGrid,          ReadColWidth},
    {"Drawing",      0, HasSurface,      ReadDrawing},
    {"Drawing",      1, HasSurface,      ReadDrawing},
    {"DrawingCount", 0, HasSurface,      ReadDrawing},
    {"Scale",        0, HasScale,        ReadScale},
    {"Hint",         0, IsInWindow,      ReadHint},
    {"ZOrder",       0, IsInWindow,      ReadZOrder},
    {"Focus",        0, IsWindowControl, ReadFocus},
    {"Loaded",       0, IsWindowControl, ReadLoaded},
    {"Modal",        0, IsWindowControl, ReadModal},
};
// clang-format on

std::string Whose(const Control& control) {
  return IsWindowControl(control) ? control.name : control.window.name + "." + control.name;
}

/// The extra of this name and number of subscripts; null for none of the name.
const Extra* FindExtra(const Control& control, const NamePart& slot) {
  bool known = false;
  for (const Extra& extra : kExtras) {
    if (slot.name != extra.name || !extra.has(control)) continue;
    if (slot.indices.size() == extra.subscripts) return &extra;
    known = true;
  }
  if (known) throw ScriptError{Whose(control) + "." + NameText(slot) + " has the wrong number of subscripts"};
  return nullptr;
}

/// The slot of the record. Throws ScriptError for an unknown one.
const AnySlot& FindRecordSlot(const Control& control, const NamePart& slot) {
  if (const AnySlot* found = control.FindSlot(slot.name)) {
    if (slot.indices.empty()) return *found;
    throw ScriptError{Whose(control) + "." + slot.name + " has no subscripts"};
  }
  std::vector<std::string> names;
  for (const AnySlot& any : control.slots) {
    names.emplace_back(std::visit([](const auto* typed) { return typed->Name(); }, any));
  }
  for (const Extra& extra : kExtras) {
    if (extra.has(control)) names.emplace_back(extra.name);
  }
  throw ScriptError{Whose(control) + " has no slot " + slot.name + Suggestion(slot.name, names)};
}

struct SlotWriter {
  const Control& control;
  const std::string& word;

  void operator()(Slot<std::string>* slot) const { *slot = word; }
  void operator()(Slot<bool>* slot) const { *slot = TrueOrFalse(word); }
  void operator()(Slot<int>* slot) const {
    const bool isState = IsWindowControl(control) && slot->Name() == "WindowState";
    *slot = isState ? StateNumber(word) : IntNumber(word);
  }
  void operator()(Slot<float>* slot) const { *slot = SingleNumber(word); }
  void operator()(Slot<Colour>* slot) const { *slot = ColourOf(word); }
};

void WriteExtra(Control& control, const NamePart& slot, const std::string& value) {
  if (slot.name == "Cell") {
    static_cast<Grid&>(control).SetCell(slot.indices[0], slot.indices[1], value);
  } else if (slot.name == "ColWidth") {
    static_cast<Grid&>(control).SetColWidth(slot.indices[0], SingleNumber(value));
  } else if (slot.name == "ZOrder" && IntNumber(value) == 0) {
    control.BringToFront();
  } else {
    throw ScriptError{Whose(control) + "." + NameText(slot) + " cannot be set" +
                      (slot.name == "ZOrder" ? " but to 0" : "")};
  }
}

}  // namespace

Answer LinesAnswer(std::vector<std::string> lines) {
  Answer answer;
  for (const std::string& line : lines) answer.text += (&line == &lines.front() ? "" : "\n") + line;
  answer.lines = std::move(lines);
  return answer;
}

bool IsDrawingSlot(const std::string& name) {
  return name == "Drawing" || name == "DrawingCount";
}

Answer DrawingAnswer(const std::vector<std::string>& lines, const NamePart& slot) {
  if (slot.name == "DrawingCount") return {std::to_string(lines.size()), {}};
  if (slot.indices.empty()) return LinesAnswer(lines);
  const int count = static_cast<int>(lines.size());
  const int index = slot.indices[0];
  const int place = index < 0 ? count + index : index - 1;
  return {place >= 0 && place < count ? lines[static_cast<std::size_t>(place)] : kNone, {}};
}

std::vector<std::string> DrawingLines(const std::vector<Primitive>& drawing) {
  std::vector<std::string> lines;
  lines.reserve(drawing.size());
  for (const Primitive& primitive : drawing) lines.push_back(Describe(primitive));
  return lines;
}

Answer ReadSlot(const Program& program, const Found& found, const NamePart& slot) {
  const Control& model = *found.model;
  const Extra* extra = FindExtra(model, slot);
  if (extra == nullptr) FindRecordSlot(model, slot);
  if (found.control == nullptr) {
    const bool toldOfUnloaded = IsWindowControl(model) && (slot.name == "Loaded" || slot.name == "Visible");
    return {toldOfUnloaded ? ValueText(false) : kNone, {}};
  }
  if (extra != nullptr) return extra->read(program, *found.control, slot);
  return {SlotText(*found.control, FindRecordSlot(*found.control, slot)), {}};
}

void WriteSlot(const Found& found, const NamePart& slot, const std::string& value) {
  const Extra* extra = FindExtra(*found.model, slot);
  if (extra == nullptr) FindRecordSlot(*found.model, slot);
  if (found.control == nullptr) throw ScriptError{Whose(*found.model) + " is not there now"};
  if (extra != nullptr) {
    WriteExtra(*found.control, slot, value);
  } else {
    std::visit(SlotWriter{*found.control, value}, FindRecordSlot(*found.control, slot));
  }
}

int StateNumber(const std::string& word) {
  if (word == "normal") return 0;
  if (word == "minimised") return 1;
  if (word == "maximised") return 2;
  throw ScriptError{"\"" + word + "\" is no state of a window: normal, minimised or maximised"};
}

}  // namespace veldrin
