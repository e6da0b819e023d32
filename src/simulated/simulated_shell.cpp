#include "simulated/simulated_shell.h"

#include "runtime/fault.h"

namespace veldrin {

namespace {

/// The program of a command line: what stands in the quotes it begins with, else up to the first blank.
std::string ProgramOf(const std::string& command) {
  if (command.starts_with('"')) return command.substr(1, command.find('"', 1) - 1);
  return command.substr(0, command.find(' '));
}

}  // namespace

void SimulatedShell::Run(const std::string& command) {
  log_->Add("run " + command);
  const std::string program = ProgramOf(command);
  const auto cut = program.find_last_of("\\/:");
  if (cut == std::string::npos) return;
  if (!files_->FolderExists(program.substr(0, cut + 1))) Raise(kFaultPathNotFound);
  const bool hasExtension = program.find('.', cut) != std::string::npos;
  const bool found = files_->FileExists(program) || (!hasExtension && files_->FileExists(program + ".exe"));
  if (!found) Raise(kFaultFileNotFound);
}

void SimulatedSound::Beep() {
  ++log_->beeps;
  log_->Add("beep");
}

void SimulatedSound::Play(const std::string& path) {
  if (files_->FileExists(path)) log_->Add("sound " + path);
}

}  // namespace veldrin
