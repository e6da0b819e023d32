// A folder with a file that is replaced.
#pragma once

#include "machine/files/real_replacing_file.h"
#include "runtime/fault.h"

#include <QDir>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace veldrin {

namespace fs = std::filesystem;

class ReplacingFileTest : public ::testing::Test {
 protected:
  fs::path In(const std::string& name) const { return fs::path(folder.path().toStdString()) / name; }

  void Put(const std::string& name, const std::string& bytes) const { std::ofstream(In(name)) << bytes; }

  std::string Bytes(const std::string& name) const {
    std::ifstream file(In(name));
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  }

  QStringList Names() const {
    return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
  }

  int Replace(const std::string& name, const std::string& bytes) const {
    return Guarded([&] {
      ReplacingFile file(In(name));
      file.Append(bytes);
      file.Commit();
    });
  }

  QTemporaryDir folder;
};

}  // namespace veldrin
