#include "runtime/fault.h"
#include "runtime/text.h"
#include "script/commands/script_commands.h"
#include "script/commands/script_queries.h"
#include "script/script_error.h"
#include "script/script_values.h"

#include <filesystem>
#include <fstream>
#include <iterator>

namespace veldrin {

namespace {

/// Does what the simulated machine may refuse.
template <class Deed>
void OnMachine(const std::string& path, Deed&& deed) {
  const int fault = Guarded(deed);
  if (fault != 0) throw ScriptError{path + " cannot be had: fault " + std::to_string(fault)};
}

void RequireThere(bool done, const std::string& path) {
  if (!done) throw ScriptError{"there is no " + path};
}

// ---- system ----

/// An entry of the profile, or none of it.
std::optional<std::string> ProfileEntry(const CommandLine& line) {
  if (line.Says(2, "none")) return std::nullopt;
  return line[2];
}

int Figure(const CommandLine& line, std::size_t place) {
  return static_cast<int>(WholeNumber(line[place], 0, 1000000));
}

std::int64_t Amount(const CommandLine& line, std::size_t place) {
  return WholeNumber(line[place], 0, std::numeric_limits<std::int64_t>::max());
}

void SystemCountry(const CommandLine& line) {
  if (ProfileEntry(line)) Figure(line, 2);
  line.world.machine.profile.iCountry = ProfileEntry(line);
}

void SystemDecimal(const CommandLine& line) {
  line.world.machine.profile.sDecimal = ProfileEntry(line);
}

void SystemThousand(const CommandLine& line) {
  line.world.machine.profile.sThousand = ProfileEntry(line);
}

void SystemScreen(const CommandLine& line) {
  line.world.machine.screen.pixelWidth = Figure(line, 2);
  line.world.machine.screen.pixelHeight = Figure(line, 3);
}

void SystemInstances(const CommandLine& line) {
  line.world.machine.instances.others = Figure(line, 2);
}

void SystemPrinters(const CommandLine& line) {
  line.world.machine.printer.printers = Figure(line, 2);
}

void SystemMemory(const CommandLine& line) {
  line.world.machine.figures.memory = {Amount(line, 2), Amount(line, 3)};
}

void SystemDisk(const CommandLine& line) {
  line.world.machine.figures.disk = {Amount(line, 2), Amount(line, 3), Amount(line, 4), Amount(line, 5)};
}

/// A folder that is not there yet is made.
void SystemFolder(const CommandLine& line) {
  SimulatedFiles& files = line.world.machine.files;
  OnMachine(line[2], [&] {
    const int fault = Guarded([&] { files.ResolveFolder(line[2]); });
    if (fault == kFaultPathNotFound) files.AddFolder(line[2]);
    files.SetCurrentFolder(line[2]);
  });
}

constexpr Command kSystemEntries[] = {
    {"iCountry", 1, 1, "N|none", SystemCountry},   {"sDecimal", 1, 1, "C|none", SystemDecimal},
    {"sThousand", 1, 1, "C|none", SystemThousand}, {"screen", 2, 2, "W H", SystemScreen},
    {"instances", 1, 1, "N", SystemInstances},     {"printers", 1, 1, "N", SystemPrinters},
    {"memory", 2, 2, "TOTAL FREE", SystemMemory},  {"disk", 4, 4, "SECTORS BYTES FREE ALL", SystemDisk},
    {"folder", 1, 1, "PATH", SystemFolder},
};

void System(const CommandLine& line) {
  std::string names;
  for (const Command& entry : kSystemEntries) {
    names += std::string(names.empty() ? "" : ", ") + entry.name;
    if (line[1] != entry.name) continue;
    CheckNumberOfWords(entry, line.Count() - 2);
    entry.run(line);
    return;
  }
  throw ScriptError{"the system has no " + line[1] + ", but " + names};
}

void SetEnvironment(const CommandLine& line) {
  SimulatedEnvironment& environment = line.world.machine.environment;
  if (line.Says(2, "none")) {
    environment.Remove(line[1]);
  } else {
    environment.Set(line[1], line[2]);
  }
}

void WriteRegistry(const CommandLine& line) {
  line.world.machine.registry.Write(RootOf(line[1]), line[2], line[3], line[4]);
}

// ---- files and folders ----

void MakeFolder(const CommandLine& line) {
  OnMachine(line[1], [&] { line.world.machine.files.AddFolder(line[1]); });
}

void MakeFile(const CommandLine& line) {
  std::string text;
  if (line.Count() > 2) {
    text = line[2];
  } else {
    for (const std::string& own : line.source.NextBlock()) text += own + std::string(kCrLf);
  }
  OnMachine(line[1], [&] { line.world.machine.files.AddFile(line[1], text); });
}

void ShortName(const CommandLine& line) {
  OnMachine(line[1], [&] { RequireThere(line.world.machine.files.AddShortName(line[1], line[2]), line[1]); });
}

std::filesystem::path HostPath(const std::string& path) {
  return std::u8string(path.begin(), path.end());
}

void Import(const CommandLine& line) {
  const std::filesystem::path path = HostPath(line.source.Folder()) / HostPath(line[2]);
  std::ifstream file(path, std::ios::binary);
  if (!file || std::filesystem::is_directory(path)) throw ScriptError{"there is no file " + path.string()};
  const std::string bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  OnMachine(line[1], [&] { line.world.machine.files.AddFile(line[1], bytes); });
}

void Delete(const CommandLine& line) {
  OnMachine(line[1], [&] {
    if (!line.world.machine.files.Remove(line[1])) line.world.notes.push_back("there is no " + line[1]);
  });
}

void ReadOnly(const CommandLine& line) {
  OnMachine(line[1], [&] { RequireThere(line.world.machine.files.SetReadOnly(line[1]), line[1]); });
}

}  // namespace

const std::vector<Command>& MachineCommands() {
  static const std::vector<Command> kCommands = {
      {"system", 2, 5, "ENTRY VALUE...", System},
      {"environment", 2, 2, "NAME VALUE|none", SetEnvironment},
      {"registry", 4, 4, "ROOT KEY NAME VALUE", WriteRegistry},
      {"folder", 1, 1, "PATH", MakeFolder},
      {"file", 1, 2, "PATH [TEXT]", MakeFile},
      {"shortname", 2, 2, "PATH NAME", ShortName},
      {"import", 2, 2, "PATH HOSTFILE", Import},
      {"delete", 1, 1, "PATH", Delete},
      {"readonly", 1, 1, "PATH", ReadOnly},
  };
  return kCommands;
}

}  // namespace veldrin
