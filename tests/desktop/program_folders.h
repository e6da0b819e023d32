// Folders for a program on the real disk, with a list, a plan of it and a user's settings.
#pragma once

#include "machine/files/real_keep_folder.h"
#include "tests/desktop/sample_files.h"
#include "tests/desktop/scratch_folder.h"
#include "tests/own_user.h"

#include <string>

namespace veldrin {

constexpr char kSettings[] = "Software\\Tarn Ridge\\Veldrin";

/// Stands in the program's folder, and leaves everything as it was.
class ProgramFolders : public ScratchFolder {
 public:
  ProgramFolders() : before_(QDir::currentPath()) {
    QDir(folder.path()).mkpath("temp");
    Put("program/LIST/nx4.rat", kSampleList);
    Put("program/DAT/Dry.nx4", kSamplePlan);
    qputenv("XDG_CONFIG_HOME", In("config").toUtf8());
    stateBefore_ = qgetenv("XDG_STATE_HOME");
    qputenv("XDG_STATE_HOME", In("state").toUtf8());
    qputenv("TEMP", In("temp").toUtf8());
    QDir::setCurrent(In("program"));
    OwnUser::Forget();
  }
  ProgramFolders(const ProgramFolders&) = delete;
  ProgramFolders& operator=(const ProgramFolders&) = delete;
  ~ProgramFolders() {
    QDir::setCurrent(before_);
    for (const char* name : {"XDG_CONFIG_HOME", "TEMP"}) qunsetenv(name);
    qputenv("XDG_STATE_HOME", stateBefore_);
  }

  /// The files of this pattern in the folder of kept plans.
  QStringList InKeepFolder(const QString& pattern) const {
    return QDir(RealKeepFolder::UsersFolder()).entryList({pattern}, QDir::Files);
  }
  QStringList TempFiles() const { return QDir(In("temp")).entryList(QDir::Files); }
  std::string PlanFile() const { return PathOf("program/DAT/Dry.nx4"); }

 private:
  QString before_;
  QByteArray stateBefore_;
};

}  // namespace veldrin
