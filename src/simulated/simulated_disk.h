// The drives of the simulated machine, a tree of folders and files each. Names are found without regard to
// case, by their long or their short form, and kept as written.
#pragma once

#include "simulated/simulated_path.h"

#include <map>
#include <memory>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace veldrin {

/// A file or a folder.
struct DiskEntry {
  std::string name;
  /// Its name in eight and three characters; empty when it has none beside `name`.
  std::string shortName;
  bool isFolder = false;
  bool readOnly = false;
  /// Bytes of a file.
  std::string text;
  /// What is in a folder, by names in lower case.
  std::map<std::string, std::unique_ptr<DiskEntry>> entries;

  /// What has this name here, long or short; null for nothing.
  DiskEntry* Find(std::string_view entryName) const;
  /// Adds an entry in the place of one that has the name.
  DiskEntry& Put(const std::string& entryName, bool folder);
  void Remove(const DiskEntry& entry);
  void Rename(const DiskEntry& entry, const std::string& newName);
};

/// A place on a drive, from its root on. It may be empty there.
struct DiskPlace {
  char drive = 'C';
  std::vector<std::string> parts;
};

struct SimulatedDrive {
  bool ready = true;
  DiskEntry root;
  /// Parts of the drive's own current folder.
  std::vector<std::string> currentFolder;
};

class SimulatedDisk {
 public:
  std::map<char, SimulatedDrive> drives;
  char currentDrive = 'C';
  /// Makes every write fail with fault 61.
  bool full = false;
  /// Files being written, by their full paths in lower case.
  std::set<std::string> open;

  /// Where a path leads, with the current drive and folders.
  DiskPlace PlaceOf(const SimulatedPath& path) const;

  /// What is at a place; null for nothing. Raises fault 71 when the drive is not ready and 76 when there is
  /// no such drive.
  DiskEntry* Find(const DiskPlace& place);
  /// The folder that holds, or would hold, what is at a place below the root. Raises fault 76 when it is not
  /// there, 71 when the drive is not ready.
  DiskEntry& FolderAround(const DiskPlace& place);

  /// A place's full path in the spelling of the disk, with long names; "C:\" for a root. Parts that are not
  /// there stay as they are.
  std::string Spell(const DiskPlace& place);

  /// Makes a folder, those above it and its drive, which becomes ready. Raises fault 75 where a file is in
  /// the way.
  DiskEntry& MakeFolder(const DiskPlace& place);

 private:
  /// The entry of the first `count` parts.
  DiskEntry* Walk(const DiskPlace& place, std::size_t count);
};

}  // namespace veldrin
