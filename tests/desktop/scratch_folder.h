// A folder of a test's own on the real disk, gone with the test.
#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <string>
#include <sys/stat.h>

namespace veldrin {

class ScratchFolder {
 public:
  QString In(const QString& name) const { return folder.path() + "/" + name; }
  /// The same, byte for byte.
  std::string PathOf(const std::string& name) const { return folder.path().toStdString() + "/" + name; }

  /// Writes a file, and makes the folders on the way to it.
  void Put(const QString& name, const QByteArray& bytes) const {
    QDir().mkpath(QFileInfo(In(name)).path());
    QFile file(In(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
  }

  /// Writes a program that does this work in the shell.
  void PutProgram(const QString& name, const QByteArray& work) const {
    Put(name, "#!/bin/sh\n" + work);
    chmod(QFile::encodeName(In(name)).constData(), 0755);
  }

  QByteArray Bytes(const QString& name) const {
    QFile file(In(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(not there)");
  }

  QTemporaryDir folder;
};

}  // namespace veldrin
