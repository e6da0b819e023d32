// The Japanese locale among the variables that name one.
#include "plan/system_country.h"

#include <gtest/gtest.h>

#include <map>
#include <string>

namespace veldrin {
namespace {

using Variables = std::map<std::string, std::string>;

bool IsJapanese(const Variables& variables) {
  return IsJapaneseLocale([&](const char* name) {
    const auto found = variables.find(name);
    return found == variables.end() ? std::string() : found->second;
  });
}

TEST(JapaneseLocale, IsNamedByItsLanguage) {
  for (const char* name : {"ja_JP.UTF-8", "ja_JP.eucJP", "ja", "JA_jp", "ja-JP", "ja@x", "jpn_JP"}) {
    EXPECT_TRUE(IsJapanese({{"LANG", name}})) << name;
  }
  for (const char* name : {"", "C", "C.UTF-8", "POSIX", "en_US.UTF-8", "en_JP", "jam_JM", "japanese"}) {
    EXPECT_FALSE(IsJapanese({{"LANG", name}})) << name;
  }
  EXPECT_FALSE(IsJapanese({}));
}

TEST(JapaneseLocale, IsTakenFromTheFirstVariableThatIsSet) {
  EXPECT_TRUE(IsJapanese({{"LC_ALL", "ja_JP"}, {"LC_MESSAGES", "en_US"}, {"LANG", "en_US"}}));
  EXPECT_FALSE(IsJapanese({{"LC_ALL", "en_US"}, {"LC_MESSAGES", "ja_JP"}, {"LANG", "ja_JP"}}));
  EXPECT_TRUE(IsJapanese({{"LC_MESSAGES", "ja_JP"}, {"LANG", "en_US"}}));
  EXPECT_FALSE(IsJapanese({{"LC_MESSAGES", "C"}, {"LANG", "ja_JP"}}));
  EXPECT_TRUE(IsJapanese({{"LC_ALL", ""}, {"LANG", "ja_JP"}})) << "an empty one is not set";
}

TEST(JapaneseLocale, GivesWayToTheLanguagesThatTheUserPrefers) {
  EXPECT_TRUE(IsJapanese({{"LANG", "en_US.UTF-8"}, {"LANGUAGE", "ja:en"}}));
  EXPECT_FALSE(IsJapanese({{"LANG", "ja_JP.UTF-8"}, {"LANGUAGE", "en:ja"}}));
  EXPECT_FALSE(IsJapanese({{"LANG", "C"}, {"LANGUAGE", "ja"}})) << "but not where there is no language";
  EXPECT_FALSE(IsJapanese({{"LANGUAGE", "ja"}}));
}

}  // namespace
}  // namespace veldrin
