// Windows plays sounds by itself and tells nothing of it: what can be seen is that nobody waits and nothing
// fails.
#include "machine/files/real_files.h"
#include "machine/output/real_sound.h"
#include "platform/system_code_pages.h"
#include "tests/desktop/scratch_folder.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

TEST(RealSound, WhatIsNoSoundOrNotThereIsPassedOver) {
  const ScratchFolder scratch;
  scratch.Put("鈴鹿.wav", "no sound");
  const RealFiles files{SystemCodePages(false)};
  RealSound sound{files};
  for (const char* name : {"鈴鹿.wav", "none.wav", "none/none.wav", ""}) {
    EXPECT_NO_THROW(sound.Play(scratch.PathOf(name))) << name;
  }
  EXPECT_NO_THROW(sound.Play(""));
}

}  // namespace
}  // namespace veldrin
