// The folder in which unsaved plans are kept, as the net beneath the program asks for it. The plans of all
// running copies of the program stand in one folder of the user, each under an id of its own:
//
//   ID.kept      the kept plan
//   ID-N.KEY     the plan file that it names, N counting the times it was kept
//   ID.lock      while a copy of the program has the plan on its screen or offers it
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace veldrin {

/// While it lives, the kept plan is this copy's. It goes with the process at the latest.
struct KeepClaim {
  virtual ~KeepClaim() = default;
};

/// Replace, Read and Remove may be called from another thread than the rest.
struct KeepFolder {
  virtual ~KeepFolder() = default;

  /// Names of all files whose names end in ".kept", in their order; none where there is no folder.
  virtual std::vector<std::string> KeptNames() const = 0;
  /// An id that no plan of this folder has; later ones come later in order.
  virtual std::string NewId() = 0;
  /// Local time, as 2026-11-22T21:04:05.
  virtual std::string Now() const = 0;
  /// Makes the plan with this id this copy's own. Null while another copy has it, or where nothing can be
  /// made.
  virtual std::unique_ptr<KeepClaim> Claim(const std::string& id) = 0;

  /// The bytes of a file; nothing when it cannot be read.
  virtual std::optional<std::string> Read(const std::string& name) const = 0;
  /// Makes a file's bytes these, whole or not at all, and returns when they are on the disk. Raises the
  /// faults of the file system.
  virtual void Replace(const std::string& name, const std::string& bytes) = 0;
  /// Takes a file away, if it is there. False when it stays. Raises nothing.
  virtual bool Remove(const std::string& name) = 0;
  /// Where a file of this name stands, for people.
  virtual std::string PathOf(const std::string& name) const = 0;
};

}  // namespace veldrin
