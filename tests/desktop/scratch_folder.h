// A folder of a test's own on the real disk, gone with the test.
#pragma once

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace veldrin {

class ScratchFolder {
 public:
  QString In(const QString& name) const { return folder.path() + "/" + name; }
  /// The same as the program writes it: byte for byte, with the system's separators.
  std::string PathOf(const std::string& name) const {
    std::string path = folder.path().toStdString() + "/" + name;
    const char separator = QDir::separator().toLatin1();
    if (separator != '/') std::replace(path.begin(), path.end(), '/', separator);
    return path;
  }

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
    QFile::setPermissions(In(name), QFile::permissions(In(name)) | QFileDevice::ExeOwner |
                                        QFileDevice::ExeUser | QFileDevice::ExeGroup | QFileDevice::ExeOther);
  }

  QByteArray Bytes(const QString& name) const {
    QFile file(In(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(not there)");
  }

  QTemporaryDir folder;
};

}  // namespace veldrin
