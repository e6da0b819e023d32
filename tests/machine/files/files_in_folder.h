// The machine's real files, in a folder of their own for each test.
#pragma once

#include "machine/files/real_files.h"
#include "platform/system_code_pages.h"
#include "runtime/fault.h"
#include "tests/desktop/scratch_folder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <string>

namespace veldrin {

/// A folder of its own for each test, which the files make nothing outside of.
class RealFilesTest : public ::testing::Test, protected ScratchFolder {
 protected:
  void MakeFolder(const std::string& name) const { QDir(folder.path()).mkpath(QString::fromStdString(name)); }

  QStringList Names() const {
    return QDir(folder.path()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot, QDir::Name);
  }

  void Save(const std::string& name, const std::string& text) {
    const auto writer = files.OpenForWriting(PathOf(name));
    writer->Write(text);
    writer->Close();
  }

  RealFiles files{SystemCodePages(false)};
};

}  // namespace veldrin
