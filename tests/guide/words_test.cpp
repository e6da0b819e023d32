// The guide and the windows tell of the same things: what the guide names is there, and what is there it
// names.
#include "guide/sections.h"
#include "tests/guide/all_windows.h"
#include "tests/guide/source_literals.h"

#include <algorithm>
#include <map>

namespace veldrin {
namespace {

bool IsAscii(const std::string& text) {
  return std::all_of(text.begin(), text.end(), [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// Whether a caption is a word, and no number or sign.
bool IsWord(const std::string& caption) {
  return !IsAscii(caption) ||
         std::any_of(caption.begin(), caption.end(), [](unsigned char c) { return std::isalpha(c); });
}

/// A menu's caption without the letter that opens it.
std::string MenuName(const Menu& menu) {
  std::string name = menu.Caption;
  name = name.substr(0, name.find("(&"));
  return name.substr(std::min(name.find_first_not_of(' '), name.size()));
}

/// From the bar on down.
std::string MenuPath(const Menu& menu) {
  if (menu.parent->kind != ControlKind::Menu) return MenuName(menu);
  return MenuPath(static_cast<const Menu&>(*menu.parent)) + " > " + MenuName(menu);
}

class Words : public AllWindows {
 protected:
  /// Entries that somebody can come to see. Those that the program adds have no caption yet; small pictures
  /// and the choice of a font are never shown.
  std::vector<const Menu*> Menus() {
    std::vector<const Menu*> menus;
    for (const Control* control : form2.controls) {
      if (control->kind != ControlKind::Menu) continue;
      const auto& menu = static_cast<const Menu&>(*control);
      const bool never = (!menu.Visible && !menu.Enabled) || &menu == &form2.menu_font;
      if (!never && !MenuName(menu).empty() && MenuName(menu) != "-") menus.push_back(&menu);
    }
    return menus;
  }

  /// What labels, buttons and titles read in a language, by the controls' names. A label that is written over
  /// before anybody sees it, and the link, are no words of the guide.
  std::map<std::string, std::string> Captions(bool japanese) {
    std::map<std::string, std::string> captions;
    const auto add = [&](const Control& control) {
      const std::string caption =
          japanese || *control.look.english == '\0' ? control.look.caption : control.look.english;
      const bool other = !japanese && !IsAscii(caption);
      if (IsWord(caption) && !other && caption.find("://") == std::string::npos)
        captions[control.FullName()] = caption;
    };
    for (const Window* window : Worked()) {
      if (window != &form2 && window != &form3) add(*window);
      for (const Control* control : window->controls) {
        const bool reads = control->kind == ControlKind::Label || control->kind == ControlKind::Button ||
                           control->kind == ControlKind::OptionButton;
        if (reads && control != &form3.Label4) add(*control);
      }
    }
    return captions;
  }
};

class WordsIn : public Words, public ::testing::WithParamInterface<const char*> {
 protected:
  const GuideText guide{GetParam()};
};

INSTANTIATE_TEST_SUITE_P(Guide, WordsIn, ::testing::Values("en", "ja"));

TEST_P(WordsIn, EveryWindowAndPanelHasItsSection) {
  const std::set<std::string> sections = guide.Sections();
  for (const GuideSection& section : GuideSections()) {
    EXPECT_EQ(sections.count(std::string(section.name)), 1U) << section.name << " has no heading";
  }
  EXPECT_EQ(sections.count(std::string(kMessagesSection)), 1U);
}

TEST_P(WordsIn, EveryEntryOfTheMenusIsNamedAndEveryOneNamedIsThere) {
  std::set<std::string> there;
  for (const Menu* menu : Menus()) there.insert(MenuPath(*menu));
  const std::set<std::string> named = guide.Menus();
  for (const std::string& path : named) EXPECT_EQ(there.count(path), 1U) << "there is no " << path;
  for (const Menu* menu : Menus()) {
    if (!menu->children.empty()) continue;
    EXPECT_EQ(named.count(MenuPath(*menu)), 1U) << MenuPath(*menu) << " is not named";
  }
}

TEST_P(WordsIn, TheTableOfTheMenusHasTheirKeys) {
  for (const Menu* menu : Menus()) {
    if (!menu->children.empty()) continue;
    const std::string key = menu->shortcut.empty() ? "" : "[[" + menu->shortcut + "]] ";
    const std::string row = "\n| {{" + MenuPath(*menu) + "}} | " + key + "|";
    EXPECT_NE(guide.text.find(row), std::string::npos) << row;
  }
}

TEST_P(WordsIn, EveryCaptionIsNamed) {
  const std::set<std::string> words = guide.Words();
  for (const auto& [control, caption] : Captions(GetParam() == std::string("ja"))) {
    EXPECT_EQ(words.count(WithoutBlanks(caption)), 1U) << control << ", \"" << caption << "\", is not named";
  }
}

TEST_P(WordsIn, EveryWordNamedIsOneOfTheProgram) {
  const std::set<std::string> literals = SourceLiterals();
  for (const std::string& word : guide.Words())
    EXPECT_EQ(literals.count(word), 1U) << "nothing reads " << word;
}

TEST(SourceLiterals, AreThoseOfTheCode) {
  EXPECT_EQ(LiteralsIn("a(\"one\", '\"', \"t\\\"wo\"); // no \"word\"\nb(\"\");"),
            (std::vector<std::string>{"one", "t\\\"wo", ""}));
}

TEST(Guide, NamesTheSameThingsInBothLanguages) {
  const GuideText english("en");
  const GuideText japanese("ja");
  EXPECT_EQ(english.Sections(), japanese.Sections());
  EXPECT_EQ(english.Menus(), japanese.Menus());
  EXPECT_EQ(english.Keys(), japanese.Keys());
}

}  // namespace
}  // namespace veldrin
