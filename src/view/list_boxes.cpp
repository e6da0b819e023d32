#include "view/list_boxes.h"

#include "runtime/fault.h"
#include "view/window.h"

#include <algorithm>

namespace veldrin {

namespace {

/// Where an entry stands in a list; -1 for nowhere.
int PlaceOf(const std::vector<std::string>& entries, const std::string& entry) {
  const auto place = std::find(entries.begin(), entries.end(), entry);
  return place == entries.end() ? -1 : static_cast<int>(place - entries.begin());
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
  box.ListIndex.Put(PlaceOf(box.entries, box.Drive));
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
  box.ListIndex.Put(PlaceOf(box.entries, box.FileName));
  if (!box.FileName.get().empty()) box.DblClick();
}

void FilePicked(Control& control) {
  auto& box = As<FileBox>(control);
  box.FileName.Put(SelectedEntry(box));
  if (box.ListIndex >= 0) box.Click();
}

}  // namespace

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
  ListIndex.Design(PlaceOf(entries, Drive));
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

}  // namespace veldrin
