// Other programs and sounds on the simulated machine: they are logged, and nothing happens.
#pragma once

#include "platform/files.h"
#include "platform/system.h"
#include "simulated/simulated_log.h"

#include <string>

namespace veldrin {

class SimulatedShell : public Shell {
 public:
  SimulatedShell(Files& files, SimulatedLog& log) : files_(&files), log_(&log) {}

  /// Logs every command, also one that fails. A program without a path is always there; one with a path has
  /// to be on the disk, with ".exe" added where its name has no extension.
  void Run(const std::string& command) override;
  bool OpenWithDesktop(const std::string& /*target*/) override { return false; }
  void AssociateExtension(const std::string& /*extension*/) override {}
  void DropExtension(const std::string& /*extension*/) override {}

 private:
  Files* files_;
  SimulatedLog* log_;
};

class SimulatedSound : public Sound {
 public:
  SimulatedSound(Files& files, SimulatedLog& log) : files_(&files), log_(&log) {}

  void Beep() override;
  /// Logs a file that is there.
  void Play(const std::string& path) override;

 private:
  Files* files_;
  SimulatedLog* log_;
};

}  // namespace veldrin
