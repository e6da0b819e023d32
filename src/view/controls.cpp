#include "view/controls.h"

#include "runtime/fault.h"
#include "view/window.h"

#include <algorithm>

namespace veldrin {

namespace {

template <class Kind>
Kind& As(Control& control) {
  return static_cast<Kind&>(control);
}

/// The reaction that fires the control's Change.
template <class Kind>
void FireChange(Control& control) {
  As<Kind>(control).Change();
}

/// A panel's surface is as large as the panel.
void KeepUpSurface(Control& control) {
  if (control.kind != ControlKind::Picture) return;
  auto& picture = As<Picture>(control);
  picture.surface.SetSize(picture.Width, picture.Height);
}

void SizeChanged(Control& control) {
  if (control.kind == ControlKind::Window) As<Window>(control).Resize();
}

void OptionChanged(Control& control) {
  auto& option = As<OptionButton>(control);
  if (!option.Value) return;
  for (Control* sibling : option.parent->children) {
    if (sibling->kind == ControlKind::OptionButton && sibling != &option) {
      As<OptionButton>(*sibling).Value.Put(false);
    }
  }
  option.Click();
}

void KeepUpShape(Control& control) {
  As<Grid>(control).Shape();
}

template <class Box>
int HeldWithinList(Control& control, const int& index) {
  if (index < -1 || index >= static_cast<int>(As<Box>(control).entries.size())) Raise(kFaultBadProperty);
  return index;
}

template <class Box>
const std::string& SelectedEntry(Box& box) {
  static const std::string kNone;
  return box.ListIndex < 0 ? kNone : box.entries[static_cast<std::size_t>(box.ListIndex.get())];
}

void ComboPicked(Control& control) {
  auto& combo = As<ComboBox>(control);
  if (combo.ListIndex < 0) return;
  combo.Text.Put(SelectedEntry(combo));
  combo.Click();
}

void ComboTextChanged(Control& control) {
  auto& combo = As<ComboBox>(control);
  combo.ListIndex.Put(-1);
  combo.Change();
}

std::string HeldDrive(Control& control, const std::string& path) {
  const std::string drive = control.window.desk.machine.files.DriveOf(path);
  if (drive.empty()) Raise(kFaultDeviceUnavailable);
  return drive;
}

void DriveChanged(Control& control) {
  auto& box = As<DriveBox>(control);
  box.entries = control.window.desk.machine.files.Drives();
  const auto place = std::find(box.entries.begin(), box.entries.end(), box.Drive.get());
  box.ListIndex.Put(place == box.entries.end() ? -1 : static_cast<int>(place - box.entries.begin()));
  box.Change();
}

void DrivePicked(Control& control) {
  auto& box = As<DriveBox>(control);
  if (box.ListIndex >= 0) box.Drive = SelectedEntry(box);
}

std::string HeldFolder(Control& control, const std::string& path) {
  return control.window.desk.machine.files.ResolveFolder(path);
}

void FolderChanged(Control& control) {
  auto& box = As<FolderBox>(control);
  box.Refresh();
  box.Change();
}

void FolderHighlighted(Control& control) {
  As<FolderBox>(control).Click();
}

void FilesChanged(Control& control) {
  As<FileBox>(control).Refresh();
}

std::string JoinedPath(const Files& files, std::string folder, const std::string& name) {
  const char separator = files.Rules().separator;
  if (folder.empty() || folder.back() != separator) folder += separator;
  return folder + name;
}

std::string HeldFileName(Control& control, const std::string& name) {
  if (name.empty()) return name;
  const Files& files = control.window.desk.machine.files;
  const std::string path = JoinedPath(files, As<FileBox>(control).Path, name);
  if (!files.FileExists(path)) Raise(kFaultFileNotFound);
  return files.LongName(path);
}

void FileNamed(Control& control) {
  auto& box = As<FileBox>(control);
  const auto place = std::find(box.entries.begin(), box.entries.end(), box.FileName.get());
  box.ListIndex.Put(place == box.entries.end() ? -1 : static_cast<int>(place - box.entries.begin()));
  if (!box.FileName.get().empty()) box.DblClick();
}

void FilePicked(Control& control) {
  auto& box = As<FileBox>(control);
  box.FileName.Put(SelectedEntry(box));
  if (box.ListIndex >= 0) box.Click();
}

}  // namespace

PlacedControl::PlacedControl(ControlKind kind, const char* name, Control& parent, const Place& place,
                             const Look& look)
    : Control(kind, name, parent, look),
      Left(*this, "Left", place.left),
      Top(*this, "Top", place.top),
      Width(*this, "Width", place.width, SizeChanged, nullptr, KeepUpSurface),
      Height(*this, "Height", place.height, SizeChanged, nullptr, KeepUpSurface) {
  HavePlaced();
}

PlacedControl::PlacedControl(const char* name, const Place& place, const Look& look)
    : Control(name, look),
      Left(*this, "Left", place.left),
      Top(*this, "Top", place.top),
      Width(*this, "Width", place.width, SizeChanged, nullptr, KeepUpSurface),
      Height(*this, "Height", place.height, SizeChanged, nullptr, KeepUpSurface) {
  HavePlaced();
}

void PlacedControl::HavePlaced() {
  Have(Left, Top, Width, Height, BackColor, ForeColor, FontName, FontSize, FontBold, FontItalic,
       MousePointer);
}

Label::Label(const char* name, Control& parent, const Place& place, const Look& look)
    : PlacedControl(ControlKind::Label, name, parent, place, look),
      Caption(*this, "Caption", look.caption, FireChange<Label>) {
  Have(Caption);
}

TextBox::TextBox(const char* name, Control& parent, const Place& place, const Look& look, bool severalLines)
    : FocusControl(ControlKind::TextBox, name, parent, place, look),
      multiLine(severalLines),
      Text(*this, "Text", look.caption, FireChange<TextBox>) {
  Have(Text);
}

Button::Button(const char* name, Control& parent, const Place& place, const Look& look)
    : FocusControl(ControlKind::Button, name, parent, place, look), Caption(*this, "Caption", look.caption) {
  Have(Caption);
}

OptionButton::OptionButton(const char* name, Control& parent, const Place& place, const Look& look)
    : FocusControl(ControlKind::OptionButton, name, parent, place, look),
      Caption(*this, "Caption", look.caption),
      Value(*this, "Value", false, OptionChanged) {
  Have(Caption, Value);
}

SpinButton::SpinButton(const char* name, Control& parent, const Place& place, const Look& look)
    : PlacedControl(ControlKind::SpinButton, name, parent, place, look) {}

ScrollBar::ScrollBar(const char* name, Control& parent, const Place& place, const Range& range,
                     const Look& look)
    : PlacedControl(ControlKind::ScrollBar, name, parent, place, look),
      smallChange(range.smallChange),
      largeChange(range.largeChange),
      Min(*this, "Min", range.min),
      Max(*this, "Max", range.max),
      Value(*this, "Value", range.value, FireChange<ScrollBar>) {
  Have(Min, Max, Value);
}

int ScrollBar::WithinEnds(int value) const {
  return std::max(std::min(value, Max.get()), Min.get());
}

TimerControl::TimerControl(const char* name, Control& parent, int interval, bool enabled)
    : Control(ControlKind::Timer, name, parent, Look{.enabled = enabled}),
      Interval(*this, "Interval", interval) {
  Have(Interval);
}

Menu::Menu(const char* name, Control& parent, const char* caption, const char* keys, const Look& look)
    : Control(ControlKind::Menu, name, parent, look), shortcut(keys), Caption(*this, "Caption", caption) {
  Have(Caption);
}

Picture::Picture(const char* name, Control& parent, const Place& place, const Look& look)
    : PlacedControl(ControlKind::Picture, name, parent, place, look),
      Image(*this, "Image", 0),
      surface(parent.window.desk.machine.metrics) {
  Have(Image);
  surface.SetSize(place.width, place.height);
  surface.font = {FontName, FontSize, FontBold, FontItalic};
  surface.changed = [this] { window.desk.machine.windows.ContentChanged(*this); };
}

Line::Line(const char* name, Control& parent, float x1, float y1, float x2, float y2, Colour colour)
    : Control(ControlKind::Line, name, parent, {}),
      X1(*this, "X1", x1),
      Y1(*this, "Y1", y1),
      X2(*this, "X2", x2),
      Y2(*this, "Y2", y2),
      ForeColor(*this, "ForeColor", colour) {
  Have(X1, Y1, X2, Y2, ForeColor);
}

Grid::Grid(const char* name, Control& parent, const Place& place, const Look& look)
    : FocusControl(ControlKind::Grid, name, parent, place, look),
      Cols(*this, "Cols", 1, nullptr, nullptr, KeepUpShape),
      Rows(*this, "Rows", 1, nullptr, nullptr, KeepUpShape) {
  Have(Cols, Rows);
  Shape();
}

const std::string& Grid::Cell(int cellRow, int cellColumn) const {
  if (cellRow < 0 || cellRow >= Rows || cellColumn < 0 || cellColumn >= Cols) Raise(kFaultSubscript);
  return cells_[static_cast<std::size_t>(cellRow)][static_cast<std::size_t>(cellColumn)];
}

void Grid::SetCell(int cellRow, int cellColumn, const std::string& text) {
  const bool changed = Cell(cellRow, cellColumn) != text;
  cells_[static_cast<std::size_t>(cellRow)][static_cast<std::size_t>(cellColumn)] = text;
  TellElementWritten("Cell", std::to_string(cellRow) + "," + std::to_string(cellColumn), changed);
}

float Grid::ColWidth(int cellColumn) const {
  if (cellColumn < 0 || cellColumn >= Cols) Raise(kFaultSubscript);
  return widths_[static_cast<std::size_t>(cellColumn)];
}

void Grid::SetColWidth(int cellColumn, float width) {
  const bool changed = ColWidth(cellColumn) != width;
  widths_[static_cast<std::size_t>(cellColumn)] = width;
  TellElementWritten("ColWidth", std::to_string(cellColumn), changed);
}

void Grid::TellElementWritten(const char* slot, const std::string& element, bool changed) {
  TellWritten(*this, (slot + ("(" + element + ")")).c_str(), changed);
  window.desk.machine.windows.ContentChanged(*this);
}

void Grid::Shape() {
  const auto columns = static_cast<std::size_t>(std::max(0, Cols.get()));
  cells_.resize(static_cast<std::size_t>(std::max(0, Rows.get())));
  for (auto& cells : cells_) cells.resize(columns);
  widths_.resize(columns, 1000);
}

ComboBox::ComboBox(const char* name, Control& parent, const Place& place, const Look& look,
                   std::vector<std::string> list, bool canEdit)
    : FocusControl(ControlKind::ComboBox, name, parent, place, look),
      editable(canEdit),
      entries(std::move(list)),
      Text(*this, "Text", look.caption, ComboTextChanged),
      ListIndex(*this, "ListIndex", -1, ComboPicked, HeldWithinList<ComboBox>) {
  Have(Text, ListIndex);
}

void ComboBox::AddItem(const std::string& entry) {
  entries.push_back(entry);
  window.desk.machine.windows.ContentChanged(*this);
}

void ComboBox::Clear() {
  entries.clear();
  ListIndex.Put(-1);
  window.desk.machine.windows.ContentChanged(*this);
}

DriveBox::DriveBox(const char* name, Control& parent, const Place& place, const Look& look)
    : FocusControl(ControlKind::DriveBox, name, parent, place, look),
      entries(parent.window.desk.machine.files.Drives()),
      Drive(*this, "Drive",
            parent.window.desk.machine.files.DriveOf(parent.window.desk.machine.files.CurrentFolder()),
            DriveChanged, HeldDrive),
      ListIndex(*this, "ListIndex", -1, DrivePicked, HeldWithinList<DriveBox>) {
  Have(Drive, ListIndex);
  const auto place2 = std::find(entries.begin(), entries.end(), Drive.get());
  if (place2 != entries.end()) ListIndex.Design(static_cast<int>(place2 - entries.begin()));
}

FolderBox::FolderBox(const char* name, Control& parent, const Place& place, const Look& look)
    : FocusControl(ControlKind::FolderBox, name, parent, place, look),
      Path(*this, "Path", parent.window.desk.machine.files.CurrentFolder(), FolderChanged, HeldFolder),
      ListIndex(*this, "ListIndex", -1, FolderHighlighted, HeldWithinList<FolderBox>) {
  Have(Path, ListIndex);
  Refresh();
}

void FolderBox::Refresh() {
  const Files& files = window.desk.machine.files;
  entries.clear();
  Guarded([&] {
    for (const std::string& folder : files.FolderNames(Path))
      entries.push_back(JoinedPath(files, Path, folder));
  });
  ListIndex.Put(-1);
  window.desk.machine.windows.ContentChanged(*this);
}

FileBox::FileBox(const char* name, Control& parent, const Place& place, const Look& look, const char* pattern)
    : FocusControl(ControlKind::FileBox, name, parent, place, look),
      Path(*this, "Path", parent.window.desk.machine.files.CurrentFolder(), FilesChanged, HeldFolder),
      Pattern(*this, "Pattern", pattern, FilesChanged),
      FileName(*this, "FileName", "", FileNamed, HeldFileName),
      ListIndex(*this, "ListIndex", -1, FilePicked, HeldWithinList<FileBox>) {
  Have(Path, Pattern, FileName, ListIndex);
  Refresh();
}

void FileBox::Refresh() {
  entries.clear();
  Guarded([&] { entries = window.desk.machine.files.FileNames(Path, Pattern); });
  ListIndex.Put(-1);
  FileName.Put("");
  window.desk.machine.windows.ContentChanged(*this);
}

const std::vector<std::string>* EntriesOf(const Control& control) {
  switch (control.kind) {
    case ControlKind::ComboBox:
      return &static_cast<const ComboBox&>(control).entries;
    case ControlKind::DriveBox:
      return &static_cast<const DriveBox&>(control).entries;
    case ControlKind::FolderBox:
      return &static_cast<const FolderBox&>(control).entries;
    case ControlKind::FileBox:
      return &static_cast<const FileBox&>(control).entries;
    default:
      return nullptr;
  }
}

Dialog::Dialog(const char* name, Control& parent) : Control(ControlKind::Dialog, name, parent, {}) {}

}  // namespace veldrin
