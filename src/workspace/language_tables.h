// The messages in the two languages that are built in; element 0 is message 1.
//
// Windows tell what they are doing by comparing captions with messages, so 1 to 5 and 27, and 13 to 17, must
// stay different from each other: English 17 differs from 16 by its trailing blank alone.
#pragma once

#include <array>

namespace veldrin {

using MessageTexts = std::array<const char*, 28>;

extern const MessageTexts JapaneseMessages;
extern const MessageTexts EnglishMessages;

}  // namespace veldrin
