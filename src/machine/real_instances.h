// Running copies of the program, each under a lock of its own that goes with its process.
//
// The locks stand in the folder of the user's session; without one beside the settings, and where that folder
// denies writing in the folder for temporary files, under the user's name.
#pragma once

#include "platform/system.h"

#include <QLockFile>
#include <QString>

#include <memory>

namespace veldrin {

class RealInstances : public Instances {
 public:
  /// What the names of the locks begin with, for this user.
  static QString UsersLocks();

  /// Takes the first free lock; without one this copy goes on uncounted.
  explicit RealInstances(QString locks = UsersLocks());

  int Others() const override;
  /// Whether this copy has a lock, and so tells of the others truly.
  bool Counts() const { return own_ != nullptr; }

 private:
  QString LockName(int number) const;

  QString locks_;
  int number_ = -1;
  std::unique_ptr<QLockFile> own_;
};

}  // namespace veldrin
