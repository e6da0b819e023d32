// Starting other programs, and what the desktop knows of the program's own files.
#pragma once

#include "platform/files.h"
#include "platform/system.h"

namespace veldrin {

class RealShell : public Shell {
 public:
  explicit RealShell(Files& files) : files_(&files) {}

  /// A program without a path is looked for where the system keeps them. Where there are no drive letters, a
  /// path of Windows is one whose folder is not there.
  void Run(const std::string& command) override;
  /// A link, or a folder by its path.
  bool OpenWithDesktop(const std::string& target) override;
  void AssociateExtension(const std::string& extension) override;
  void DropExtension(const std::string& extension) override;

 private:
  Files* files_;
};

}  // namespace veldrin
