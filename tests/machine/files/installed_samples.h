// Samples as they are installed, for the folder in which the program works.
#pragma once

#include "machine/files/real_path.h"
#include "machine/files/real_program_folder.h"
#include "tests/desktop/scratch_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <gtest/gtest.h>

namespace veldrin {

class RealProgramFolderTest : public ::testing::Test, protected ScratchFolder {
 protected:
  void SetUp() override {
    Put("installed/LIST/NX4.RAT", "list");
    Put("installed/LIST/NX4.CMB", "records");
    Put("installed/LIST/Extra/README", "deep");
    Put("installed/DAT/Sample.nx4", "plan");
    Put("installed/rollup.wav", "sound");
    Put("installed/veldrin", "the program itself");
  }
  void TearDown() override {
    qunsetenv("VELDRIN_HOME");
    for (const char* name : {"XDG_DATA_HOME", "XDG_DATA_DIRS"}) qunsetenv(name);
  }
};

}  // namespace veldrin
