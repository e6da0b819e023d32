// The user's folder of kept plans: XDG_STATE_HOME/veldrin, on Windows the local application data. Files are
// replaced as real_replacing_file.h tells; who has a plan is told by a lock beside it, which goes with its
// process.
#pragma once

#include "platform/keep_folder.h"

#include <QString>

namespace veldrin {

class RealKeepFolder : public KeepFolder {
 public:
  static QString UsersFolder();

  explicit RealKeepFolder(QString folder = UsersFolder());

  std::vector<std::string> KeptNames() const override;
  /// The time to the second and what makes it the only one.
  std::string NewId() override;
  std::string Now() const override;
  std::unique_ptr<KeepClaim> Claim(const std::string& id) override;

  /// Names with a folder in them are no names of this folder: they are not there.
  std::optional<std::string> Read(const std::string& name) const override;
  /// Makes the folder if needed.
  void Replace(const std::string& name, const std::string& bytes) override;
  bool Remove(const std::string& name) override;
  std::string PathOf(const std::string& name) const override;

 private:
  QString folder_;
};

}  // namespace veldrin
