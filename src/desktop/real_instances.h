// Running copies of the program, each under a lock of its own that goes with its process.
//
// The locks stand beside the settings. Where that folder denies writing they stand in the folder for
// temporary files, under the user's name.
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

 private:
  QString LockName(int number) const;

  QString locks_;
  int number_ = -1;
  std::unique_ptr<QLockFile> own_;
};

}  // namespace veldrin
