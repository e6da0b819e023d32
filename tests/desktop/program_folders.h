// Folders for a program on the real disk, with a list, a plan of it and a user's settings.
#pragma once

#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <string>

namespace veldrin {

constexpr char kSettings[] = "Software\\Tarn Ridge\\Veldrin";

/// Stands in the program's folder, and leaves everything as it was.
class ProgramFolders {
 public:
  ProgramFolders() : before_(QDir::currentPath()) {
    for (const char* name : {"program/LIST", "program/DAT", "temp"}) QDir(folder_.path()).mkpath(name);
    Put("program/LIST/nx4.rat",
        "LIST\r\nNX4\r\nFINAL-DRIVE\r\n16,99\r\nFINAL-DRIVEN\r\n40,99\r\nROWS,1,PRIMARY\r\n20,40\r\n99\r\n-"
        "\r\n-\r\n1A,10,40,2A,10,30,3A,10,24,4A,10,20,5A,10,16,6A,10,15\r\nM34-ARRAY\r\n0\r\n");
    Put("program/DAT/Dry.nx4",
        "FROM:NX4.RAT\r\n2\r\n10000\r\n60\r\n80\r\n100\r\n120\r\n150\r\n160\r\n20\r\n40\r\n16\r\n40\r\n"
        "1A-2A-3A-4A-5A-6A\r\nremark\r\n");
    qputenv("XDG_CONFIG_HOME", In("config").toUtf8());
    qputenv("TEMP", In("temp").toUtf8());
    QDir::setCurrent(In("program"));
  }
  ProgramFolders(const ProgramFolders&) = delete;
  ProgramFolders& operator=(const ProgramFolders&) = delete;
  ~ProgramFolders() {
    QDir::setCurrent(before_);
    for (const char* name : {"XDG_CONFIG_HOME", "TEMP"}) qunsetenv(name);
  }

  QString In(const QString& name) const { return folder_.path() + "/" + name; }

  void Put(const QString& name, const QByteArray& bytes) const {
    QFile file(In(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }

  QStringList TempFiles() const { return QDir(In("temp")).entryList(QDir::Files); }
  std::string PlanFile() const { return In("program/DAT/Dry.nx4").toStdString(); }

 private:
  QString before_;
  QTemporaryDir folder_;
};

}  // namespace veldrin
