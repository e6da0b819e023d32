// What the program asks of the system beside files and windows.
#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace veldrin {

enum class RegistryRoot { CurrentUser, ClassesRoot, LocalMachine };

/// A store of string values in a tree of keys; the value "" is a key's default. Names do not depend on case.
struct Registry {
  virtual ~Registry() = default;
  virtual std::optional<std::string> Read(RegistryRoot root, const std::string& key,
                                          const std::string& value) const = 0;
  /// Makes the key if needed. False when the system refuses.
  virtual bool Write(RegistryRoot root, const std::string& key, const std::string& value,
                     const std::string& text) = 0;
  /// Removes a key and all below it. False when it is not there or the system refuses.
  virtual bool DeleteKey(RegistryRoot root, const std::string& key) = 0;
};

/// The system's international profile.
struct Profile {
  virtual ~Profile() = default;
  /// An entry ("iCountry", "sDecimal", "sThousand") of its section; nothing when it is absent.
  virtual std::optional<std::string> International(const std::string& entry) const = 0;
};

/// Variables of the process.
struct Environment {
  virtual ~Environment() = default;
  /// The variable's value, empty when there is none.
  virtual std::string Variable(const std::string& name) const = 0;
};

/// Other running copies of the program.
struct Instances {
  virtual ~Instances() = default;
  /// How many others run now.
  virtual int Others() const = 0;
};

/// Starting other programs.
struct Shell {
  virtual ~Shell() = default;
  /// Starts a command line in a normal window. Raises 53 when the program is not there, 76 when its folder
  /// is not.
  virtual void Run(const std::string& command) = 0;
  /// Opens a folder or a link with what the desktop uses for it. False where there is no such way.
  virtual bool OpenWithDesktop(const std::string& target) = 0;
  /// Ties the file extension (without its dot) to the program on the desktop, or unties it. Does nothing
  /// where the registry alone does it.
  virtual void AssociateExtension(const std::string& extension) = 0;
  virtual void DropExtension(const std::string& extension) = 0;
};

/// Sounds of the machine.
struct Sound {
  virtual ~Sound() = default;
  virtual void Beep() = 0;
  /// Plays a sound file without waiting; a file that is not there stays silent.
  virtual void Play(const std::string& path) = 0;
};

struct MemoryFigures {
  std::int64_t total;      // bytes
  std::int64_t available;  // bytes
};

struct DiskFigures {
  std::int64_t sectorsPerCluster;
  std::int64_t bytesPerSector;
  std::int64_t freeClusters;
  std::int64_t allClusters;
};

/// Figures of the machine's hardware.
struct Figures {
  virtual ~Figures() = default;
  virtual MemoryFigures Memory() const = 0;
  /// The drive that holds `root`, such as "C:\".
  virtual DiskFigures Disk(const std::string& root) const = 0;
};

}  // namespace veldrin
