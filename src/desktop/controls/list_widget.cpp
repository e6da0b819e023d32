#include "desktop/controls/list_widget.h"

#include "desktop/input/pointer_gestures.h"
#include "machine/painting/text_ends.h"

#include <QHelpEvent>
#include <QScrollBar>
#include <QStyle>

#include <algorithm>

namespace veldrin {

namespace {

constexpr double kIconPixels = 14;

/// A folder's path with those of the folders around it, the root first. A root keeps its separator.
std::vector<std::string> WayTo(const std::string& path, char separator) {
  std::vector<std::string> way;
  for (std::size_t at = path.find(separator); at != std::string::npos; at = path.find(separator, at + 1)) {
    const bool root = way.empty();
    way.push_back(path.substr(0, root ? at + 1 : at));
  }
  if (way.empty() || way.back() != path) way.push_back(path);
  if (way.size() > 1 && path.back() == separator) way.pop_back();
  return way;
}

QString NameOf(const std::string& path, char separator) {
  const std::size_t at = path.find_last_of(separator);
  const bool root = at == std::string::npos || at + 1 == path.size();
  return QString::fromStdString(root ? path : path.substr(at + 1));
}

}  // namespace

ListView::ListView(Control& control, Stage& stage, QWidget* parent) : ControlWidget(control, stage, parent) {
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setUniformItemSizes(true);
  setTextElideMode(Qt::ElideMiddle);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(this, &QListWidget::currentRowChanged, this, [this](int row) {
    // The pointer picks when it goes up.
    if (control_ != nullptr && stage_->applying == 0 && !IsPressed() && row >= 0) PickRow(row);
  });
}

void ListView::Settle() {
  if (!stale_) return;
  stale_ = false;
  const Applying applying(*stage_);
  clear();
  Fill();
  ShowPicked();
}

/// Only the left button picks.
void ListView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    ControlWidget::mousePressEvent(event);
  } else {
    Pressed(*event);
  }
}

/// A button that goes up beside the list has picked nothing, though the bar came along with the pointer.
void ListView::mouseReleaseEvent(QMouseEvent* event) {
  ControlWidget::mouseReleaseEvent(event);
  StandByPicked();
}

/// Qt puts the bar on the first row of a list that comes into focus without one; nobody picked it.
void ListView::focusInEvent(QFocusEvent* event) {
  {
    const Applying applying(*stage_);
    ControlWidget::focusInEvent(event);
  }
  StandByPicked();
}

/// A name that is cut short is told in full where the pointer rests on it, before the list's hint.
bool ListView::viewportEvent(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return ControlWidget::viewportEvent(event);
  const auto& help = static_cast<const QHelpEvent&>(*event);
  const QModelIndex row = indexAt(help.pos());
  const bool cut = row.isValid() && sizeHintForIndex(row).width() > viewport()->width();
  return ShowHint(*event, *viewport(), cut ? row.data().toString().trimmed() : QString());
}

void ListView::StandByPicked() {
  if (control_ != nullptr && !stale_) ShowPicked();
}

void ListView::PickAt(const QPoint& point) {
  if (const QListWidgetItem* item = itemAt(point)) {
    PickRow(row(item));
  } else {
    PickNothing();
  }
}

FileListWidget::FileListWidget(FileBox& box, Stage& stage, QWidget* parent) : ListView(box, stage, parent) {}

void FileListWidget::Take(std::string_view slot) {
  if (slot == "Path" || slot == "Pattern") {
    stale_ = true;
  } else if (slot == "ListIndex" || slot == "FileName") {
    StandByPicked();
  } else {
    ListView::Take(slot);
  }
}

Shown FileListWidget::WhatShows() const {
  Shown shown = ListView::WhatShows();
  shown.listIndex = currentRow();
  shown.entries.emplace();
  for (int i = 0; i < count(); ++i) shown.entries->push_back(ToSlotText(item(i)->text()));
  return shown;
}

void FileListWidget::Fill() {
  for (const std::string& entry : Record().entries) addItem(ToWidgetText(entry));
}

void FileListWidget::ShowPicked() {
  const Applying applying(*stage_);
  setCurrentRow(Record().ListIndex);
}

void FileListWidget::PickRow(int row) {
  const auto place = static_cast<std::size_t>(row);
  if (place >= Record().entries.size()) return;
  const std::string entry = Record().entries[place];
  Do([&, control = control_] { return user::SelectEntry(*control, entry); });
  StandByPicked();
}

void FileListWidget::PickNothing() {
  Do([control = control_] { return ReleasePointer(*control, kLeftButton, true); });
  StandByPicked();
}

bool FileListWidget::OpenAt(const QPoint& point) {
  if (itemAt(point) != nullptr) {
    Do([control = control_] { return user::DoubleClick(*control); });
  }
  return true;
}

FolderListWidget::FolderListWidget(FolderBox& box, Stage& stage, QWidget* parent)
    : ListView(box, stage, parent) {}

int FolderListWidget::RowOf(const std::string& path, int first) const {
  const auto begin = paths_.begin() + std::min(paths_.end() - paths_.begin(), std::ptrdiff_t{first});
  const auto found = std::find(begin, paths_.end(), path);
  return found == paths_.end() ? -1 : static_cast<int>(found - paths_.begin());
}

void FolderListWidget::Take(std::string_view slot) {
  if (slot == "Path") {
    stale_ = true;
  } else if (slot == "ListIndex") {
    StandByPicked();
  } else {
    ListView::Take(slot);
  }
}

Shown FolderListWidget::WhatShows() const {
  Shown shown = ListView::WhatShows();
  shown.listIndex = currentRow() - openRow_ - 1;
  const auto firstInside =
      paths_.begin() + std::min(paths_.end() - paths_.begin(), openRow_ + std::ptrdiff_t{1});
  if (!paths_.empty()) shown.path = *(firstInside - 1);
  shown.entries = std::vector<std::string>(firstInside, paths_.end());
  return shown;
}

void FolderListWidget::AddRow(const std::string& path, const QString& name, int depth, bool open) {
  auto* item = new QListWidgetItem(style()->standardIcon(open ? QStyle::SP_DirOpenIcon : QStyle::SP_DirIcon),
                                   QString(depth * 2, QLatin1Char(' ')) + name);
  addItem(item);
  paths_.push_back(path);
}

void FolderListWidget::Fill() {
  const char separator = control_->window.desk.machine.files.Rules().separator;
  const int icon = qRound(kIconPixels * stage_->zoom.Factor());
  setIconSize({icon, icon});
  paths_.clear();
  int depth = 0;
  for (const std::string& path : WayTo(Record().Path, separator)) {
    AddRow(path, NameOf(path, separator), depth++, true);
  }
  openRow_ = depth - 1;
  for (const std::string& path : Record().entries) AddRow(path, NameOf(path, separator), depth, false);
}

void FolderListWidget::ShowPicked() {
  const Applying applying(*stage_);
  setCurrentRow(openRow_ + 1 + Record().ListIndex);
}

void FolderListWidget::PickRow(int row) {
  // The bar cannot stand on the folders above; a double click opens them.
  if (row >= openRow_ && row < static_cast<int>(paths_.size())) {
    const std::string path = paths_[static_cast<std::size_t>(row)];
    Do([&, control = control_] { return user::HighlightFolder(static_cast<FolderBox&>(*control), path); });
  }
  StandByPicked();
}

bool FolderListWidget::OpenAt(const QPoint& point) {
  const QListWidgetItem* item = itemAt(point);
  const auto place = static_cast<std::size_t>(item == nullptr ? paths_.size() : row(item));
  if (place < paths_.size()) {
    const std::string path = paths_[place];
    Do([&, control = control_] { return user::OpenFolder(static_cast<FolderBox&>(*control), path); });
  }
  return true;
}

}  // namespace veldrin
