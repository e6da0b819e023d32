#include "simulated/simulated_disk.h"

#include "runtime/fault.h"
#include "runtime/text.h"

#include <utility>

namespace veldrin {

DiskEntry* DiskEntry::Find(std::string_view entryName) const {
  const auto found = entries.find(LowerCase(entryName));
  if (found != entries.end()) return found->second.get();
  for (const auto& [key, entry] : entries) {
    if (!entry->shortName.empty() && EqualsIgnoringCase(entry->shortName, entryName)) return entry.get();
  }
  return nullptr;
}

DiskEntry& DiskEntry::Put(const std::string& entryName, bool folder) {
  auto& place = entries[LowerCase(entryName)];
  place = std::make_unique<DiskEntry>();
  place->name = entryName;
  place->isFolder = folder;
  return *place;
}

void DiskEntry::Remove(const DiskEntry& entry) {
  entries.erase(LowerCase(entry.name));
}

void DiskEntry::Rename(const DiskEntry& entry, const std::string& newName) {
  auto node = entries.extract(LowerCase(entry.name));
  node.key() = LowerCase(newName);
  node.mapped()->name = newName;
  entries.insert(std::move(node));
}

DiskPlace SimulatedDisk::PlaceOf(const SimulatedPath& path) const {
  DiskPlace place;
  place.drive = path.drive == 0 ? currentDrive : path.drive;
  const auto drive = drives.find(place.drive);
  if (!path.rooted && drive != drives.end()) place.parts = drive->second.currentFolder;
  for (const std::string& part : path.parts) {
    if (part != "..") {
      place.parts.push_back(part);
    } else if (!place.parts.empty()) {
      place.parts.pop_back();
    }
  }
  return place;
}

DiskEntry* SimulatedDisk::Walk(const DiskPlace& place, std::size_t count) {
  const auto drive = drives.find(place.drive);
  if (drive == drives.end()) Raise(kFaultPathNotFound);
  if (!drive->second.ready) Raise(kFaultDriveNotReady);
  DiskEntry* entry = &drive->second.root;
  for (std::size_t k = 0; k < count && entry != nullptr; ++k) entry = entry->Find(place.parts[k]);
  return entry;
}

DiskEntry* SimulatedDisk::Find(const DiskPlace& place) {
  return Walk(place, place.parts.size());
}

DiskEntry& SimulatedDisk::FolderAround(const DiskPlace& place) {
  DiskEntry* const folder = Walk(place, place.parts.empty() ? 0 : place.parts.size() - 1);
  if (folder == nullptr || !folder->isFolder) Raise(kFaultPathNotFound);
  return *folder;
}

std::string SimulatedDisk::Spell(const DiskPlace& place) {
  std::string path = std::string(1, place.drive) + ":";
  if (place.parts.empty()) return path + "\\";
  for (std::size_t k = 0; k < place.parts.size(); ++k) {
    const DiskEntry* const entry = Walk(place, k + 1);
    path += "\\" + (entry == nullptr ? place.parts[k] : entry->name);
  }
  return path;
}

DiskEntry& SimulatedDisk::MakeFolder(const DiskPlace& place) {
  SimulatedDrive& drive = drives[place.drive];
  drive.ready = true;
  drive.root.isFolder = true;
  DiskEntry* folder = &drive.root;
  for (const std::string& part : place.parts) {
    DiskEntry* next = folder->Find(part);
    if (next == nullptr) next = &folder->Put(part, true);
    if (!next->isFolder) Raise(kFaultPathAccess);
    folder = next;
  }
  return *folder;
}

}  // namespace veldrin
