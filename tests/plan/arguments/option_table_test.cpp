// The options against what is written of them: the manual, the completion of the shell, the help.
#include "plan/arguments/option_table.h"

#include "tests/plan/planner_fixture.h"

#include <algorithm>

namespace veldrin {
namespace {

std::vector<std::string> Names() {
  std::vector<std::string> names = {"--help", "--version"};
  for (const ActionOption& option : ActionOptions()) names.push_back(option.name);
  for (const Option& option : Options()) names.push_back(option.name);
  return names;
}

/// Whether the text holds the word with no letter or hyphen behind it.
bool HoldsWord(const std::string& text, const std::string& word) {
  for (std::size_t at = text.find(word); at != std::string::npos; at = text.find(word, at + 1)) {
    const char next = at + word.size() < text.size() ? text[at + word.size()] : ' ';
    if (next != '-' && (next < 'a' || next > 'z')) return true;
  }
  return false;
}

TEST(OptionTable, EveryOptionStandsInHelpManualAndCompletion) {
  const std::string manual = Documented("man/man1/veldrin-plan.1");
  const std::string completion = Documented("bash-completion/completions/veldrin-plan");
  ASSERT_FALSE(manual.empty());
  ASSERT_FALSE(completion.empty());
  for (const std::string& name : Names()) {
    EXPECT_TRUE(HoldsWord(HelpText(), name)) << name;
    EXPECT_TRUE(HoldsWord(manual, "Fl " + name.substr(1))) << name;
    EXPECT_TRUE(HoldsWord(completion, name)) << name;
  }
}

TEST(OptionTable, ManualAndCompletionNameNoOptionThatThereIsNot) {
  const std::vector<std::string> names = Names();
  const auto expectKnown = [&](const std::string& text, const std::string& mark, const std::string& front) {
    int found = 0;
    for (std::size_t at = text.find(mark); at != std::string::npos; at = text.find(mark, at + 1)) {
      std::size_t end = at + mark.size();
      while (end < text.size() && ((text[end] >= 'a' && text[end] <= 'z') || text[end] == '-')) ++end;
      const std::string name = front + text.substr(at + mark.size(), end - at - mark.size());
      if (name == front) continue;
      ++found;
      EXPECT_NE(std::find(names.begin(), names.end(), name), names.end()) << name;
    }
    EXPECT_GT(found, 15);
  };
  expectKnown(Documented("man/man1/veldrin-plan.1"), "Fl -", "--");
  expectKnown(Documented("bash-completion/completions/veldrin-plan"), " --", "--");
}

TEST(OptionTable, TheHelpHasEachSectionOnceAndEveryOptionInOne) {
  std::vector<std::string> sections;
  for (const Option& option : Options()) {
    if (sections.empty() || sections.back() != option.section) sections.push_back(option.section);
  }
  for (const std::string& section : sections) {
    EXPECT_FALSE(section.empty());
    EXPECT_EQ(std::count(sections.begin(), sections.end(), section), 1) << section;
    EXPECT_NE(HelpText().find("\n\n" + section + "\n"), std::string::npos) << section;
  }
}

TEST(OptionTable, EveryOptionNeedsItsValueAndGoesWithSomething) {
  for (const Option& option : Options()) {
    EXPECT_NE(option.actions, 0U) << option.name;
    if (option.value == nullptr) continue;
    std::string mistake;
    EXPECT_FALSE(ReadArguments({option.name}, mistake)) << option.name;
    EXPECT_EQ(mistake, std::string(option.name) + " needs a value");
  }
}

}  // namespace
}  // namespace veldrin
