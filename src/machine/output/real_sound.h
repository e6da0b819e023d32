// Sounds, by what the desktop has for them. A machine without a sound device stays silent.
#pragma once

#include "platform/files.h"
#include "platform/system.h"

namespace veldrin {

class RealSound : public Sound {
 public:
  explicit RealSound(const Files& files) : files_(&files) {}

  void Beep() override;
  void Play(const std::string& path) override;

 private:
  const Files* files_;
};

}  // namespace veldrin
