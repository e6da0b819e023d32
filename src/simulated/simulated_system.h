// Settings of the simulated machine that the program only reads: profile, environment, other instances,
// screen and figures. All of them are plain fields; scripts write them at any time.
#pragma once

#include "platform/screen.h"
#include "platform/system.h"

#include <map>
#include <string>

namespace veldrin {

struct SimulatedProfile : Profile {
  /// Entries of the section; nothing where the profile lacks one.
  std::optional<std::string> iCountry = "1";
  std::optional<std::string> sDecimal = ".";
  std::optional<std::string> sThousand = ",";

  /// Entries are found without regard to case.
  std::optional<std::string> International(const std::string& entry) const override;
};

class SimulatedEnvironment : public Environment {
 public:
  /// The value of the name as written, else of one that differs in case alone.
  std::string Variable(const std::string& name) const override;

  /// Gives a value to the variable of this very name, else to those that differ in case alone, else to a new
  /// one.
  void Set(const std::string& name, const std::string& value) { Put(name, value); }
  /// Takes the variables away that Set would have written; the name itself then reads as empty.
  void Remove(const std::string& name) { Put(name, std::nullopt); }

 private:
  void Put(const std::string& name, const std::optional<std::string>& value);

  /// A name that was taken away holds nothing.
  std::map<std::string, std::optional<std::string>> variables_ = {
      {"TEMP", "C:\\TEMP"}, {"WINDIR", "C:\\WINDOWS"}, {"windir", "C:\\WINDOWS"}};
};

struct SimulatedInstances : Instances {
  int others = 0;

  int Others() const override { return others; }
};

struct SimulatedScreen : Screen {
  int pixelWidth = 1024;
  int pixelHeight = 768;

  float Width() const override { return static_cast<float>(pixelWidth * kTwipsPerPixel); }
  float Height() const override { return static_cast<float>(pixelHeight * kTwipsPerPixel); }
  int PixelsAcross() const override { return pixelWidth; }
  int PixelsDown() const override { return pixelHeight; }
};

struct SimulatedFigures : Figures {
  MemoryFigures memory{67108864, 33554432};
  /// Of drive C:, and of every other drive as well.
  DiskFigures disk{8, 512, 100000, 400000};

  MemoryFigures Memory() const override { return memory; }
  DiskFigures Disk(const std::string& /*root*/) const override { return disk; }
};

}  // namespace veldrin
