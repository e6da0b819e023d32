// A small machine list in parts, and reading it.
#pragma once

#include "model/list_tables.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace veldrin {

/// The parts of a small list, to be changed one by one. Gear g has the pairs "gA" and "gB".
struct List {
  std::string name = "TEST\n";
  std::string finalDrive = "FINAL-DRIVE\n14,15,99\n";
  std::string finalDriven = "FINAL-DRIVEN\n36,40,99\n";
  std::string gearRows = "GEAR-ROWS,2,PRIMARY\n";
  std::string primary = "20,60\n99\n";
  std::string headings = "free\nfree too\n";
  std::string gears =
      "1A,14,29,2A,17,26,3A,19,24,4A,22,24,5A,26,25,6A,23,21\n"
      "1B,15,28,2B,18,27,3B,20,25,4B,25,27,5B,24,23,6B,27,24\n";
  std::string matrix = "M34-ARRAY\n0,0\n0,99\n";
  std::string keys;

  std::string Text() const {
    return name + finalDrive + finalDriven + gearRows + primary + headings + gears + matrix + keys;
  }
};

class ListTables : public testing::Test {
 protected:
  bool Read(const std::string& text) {
    TextReader reader(text);
    return ReadListTables(reader, workspace);
  }
  bool Read(const List& list) { return Read(list.Text()); }

  /// Reads a list with these key lines.
  void ReadKeys(const std::string& keys) {
    List list;
    list.keys = keys;
    ASSERT_TRUE(Read(list)) << keys;
  }

  static std::string FileText(const char* name) {
    const auto path = std::filesystem::path(VELDRIN_SHARE) / "LIST" / name;
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file) << path;
    return {std::istreambuf_iterator<char>(file), {}};
  }

  /// A sample list without its tag.
  static std::string Sample(const char* name) {
    const std::string text = FileText(name);
    return text.substr(text.find('\n') + 1);
  }

  Workspace workspace;
};

}  // namespace veldrin
