// A program with a machine, its history's menu and the store that the history stands in.
#pragma once

#include "simulated/simulated_machine.h"
#include "workspace/files/working_files.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldrin {

inline constexpr char kSettings[] = "Software\\Tarn Ridge\\Veldrin";
inline constexpr char kSub[] = "Software\\Tarn Ridge\\Veldrin\\Ext\\Sub";
inline constexpr char kSlot3[] = "Software\\Tarn Ridge\\Veldrin\\Ext\\3";

using Paths = std::vector<std::string>;

struct WorkingFiles : testing::Test {
  SimulatedMachine simulated;
  Program program{simulated.machine};
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;

  WorkingFiles() {
    workspace.MachineName = "T1";
    workspace.LoadedMachine = "T1";
    workspace.HistoryMax = 6;
  }
  ~WorkingFiles() override { simulated.windows.Forget(); }

  bool Exists(const std::string& path) const { return simulated.files.FileExists(path); }

  std::string Stored(const std::string& key, const std::string& value) const {
    return simulated.registry.Read(RegistryRoot::CurrentUser, key, value).value_or("(none)");
  }
  void Store(const std::string& key, const std::string& value, const std::string& text) {
    simulated.registry.Write(RegistryRoot::CurrentUser, key, value, text);
  }
  /// Stores a history of files that are there.
  void StoreHistory(const std::string& key, const Paths& paths) {
    Store(key, "0", std::to_string(paths.size()));
    for (std::size_t i = 0; i < paths.size(); ++i) {
      Store(key, std::to_string(i + 1), paths[i]);
      simulated.files.AddFile(paths[i], "");
    }
  }

  /// Captions of the entries, checked against their number.
  Paths Entries() const {
    Paths paths;
    for (const auto& [index, entry] : form2.menu_files.Elements()) {
      if (index > 0) paths.push_back(entry->Caption);
    }
    EXPECT_EQ(paths.size(), static_cast<std::size_t>(workspace.HistoryCount));
    return paths;
  }
  bool FrameShows() const {
    const bool shows = form2.menu_files[0].Visible;
    EXPECT_EQ(form2.menu_his_clear[0].Visible, shows);
    EXPECT_EQ(form2.menu_his_clear[1].Visible, shows);
    return shows;
  }
  void Add(const Paths& paths) {
    for (const std::string& path : paths) AddToHistory(program, path);
  }
  /// True when the program ended.
  bool End() {
    try {
      EndProgram(program);
    } catch (const EndOfProgram&) {
      return true;
    }
  }
};

}  // namespace veldrin
