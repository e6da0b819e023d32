#include "mainwin/main_window.h"

#include "simulated/simulated_machine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace veldrin {
namespace {

/// A program that is not started.
struct MainWindow : testing::Test {
  SimulatedMachine simulated;
  Program program{simulated.machine};

  ~MainWindow() override { simulated.windows.Forget(); }
};

/// The menus and entries below `parent`, one a line, in the order of the screen: indented by their level, the
/// shortcut behind.
void ListMenus(const Control& parent, const std::string& indent, std::vector<std::string>& lines) {
  for (const Control* child : parent.children) {
    if (child->kind != ControlKind::Menu) continue;
    const std::string& shortcut = static_cast<const Menu*>(child)->shortcut;
    lines.push_back(indent + child->IndexedName() + (shortcut.empty() ? "" : " " + shortcut));
    ListMenus(*child, indent + " ", lines);
  }
}

TEST_F(MainWindow, MenusStandInTheirOrderWithTheirShortcuts) {
  const std::vector<std::string> expected = {
      "menu_file",
      " menu_save Ctrl+S",
      " menu_load",
      "  menu_list_load Ctrl+L",
      "  menu_data_load Ctrl+D",
      "  menu_data_ref Ctrl+F",
      "  menu_qr Ctrl+Q",
      " menu_del",
      " menu_folder",
      " menu_dummy0",
      " menu_print Ctrl+P",
      " menu_dummy1",
      " menu_comb Ctrl+Z",
      " menu_dummy2",
      " menu_quit Ctrl+X",
      " menu_files(0)",
      " menu_his_clear(0)",
      " menu_his_clear(1)",
      "menu_edit",
      " menu_copy",
      "  menu_print_clip",
      "   clip(0)",
      "   clip(1)",
      "   clip(2)",
      "   clip(3)",
      "   clip(4)",
      "   clip(5)",
      "  menu_print_bmp",
      "   bmp(0)",
      "   bmp(1)",
      "   bmp(2)",
      "   bmp(3)",
      "   bmp(4)",
      "   bmp(5)",
      "menu_f",
      " f_mode Ctrl+M",
      " f_calc Ctrl+C",
      " f_comp Ctrl+H",
      " f_rest Ctrl+R",
      " menu_dummy4",
      " menu_font",
      " menu_color",
      "menu_opt",
      " menu_about",
      " menu_set",
      " menu_dummy5",
      " menu_reg_title",
      "  menu_reg(1)",
  };
  std::vector<std::string> found;
  ListMenus(program.form2, "", found);
  EXPECT_EQ(found, expected);
}

TEST_F(MainWindow, ClaimsEachOfItsEventsOnce) {
  AttachMainWindow(program);
  Form2& form2 = program.form2;
  const std::vector<const Event*> claimed = {
      &form2.Load,
      &form2.QueryUnload,
      &form2.Unload,
      &form2.Timer2.Timer,
      &form2.Timer3.Timer,
      &form2.menu_del.Click,
      &form2.menu_folder.Click,
      &form2.menu_quit.Click,
      &form2.menu_his_clear[0].Click,
      &form2.menu_his_clear[1].Click,
      &form2.menu_font.Click,
      &form2.menu_color.Click,
      &form2.menu_about.Click,
      &form2.menu_set.Click,
  };
  std::vector<const Control*> controls(form2.controls.begin(), form2.controls.end());
  controls.push_back(&form2);
  for (const Control* control : controls) {
    for (const Event* event : control->events) {
      const bool mine = std::find(claimed.begin(), claimed.end(), event) != claimed.end();
      EXPECT_EQ(event->Claims(), mine ? 1 : 0) << control->FullName() << '.' << event->Name();
    }
  }
}

TEST_F(MainWindow, LoadSkipsAFailingStatementAndGoesOn) {
  program.hooks.BuildExtensionMenu = [] { Raise(kFaultTypeMismatch); };
  program.workspace.Language = kEnglish;
  Form2_Load(program);
  EXPECT_EQ(program.form2.Label17.Caption.get(), "Can't found the gear-ratio combination for your request");
  EXPECT_EQ(program.workspace.CallerWord, "");
  EXPECT_EQ(program.workspace.ToleranceMinus[6], 1);
}

TEST_F(MainWindow, LoadBuildsTheExtensionMenuBeforeItPlacesTheWindow) {
  std::string wordMeanwhile = "not called";
  program.hooks.BuildExtensionMenu = [&] { wordMeanwhile = program.workspace.CallerWord; };
  program.form2.Resize.Bind([&](int) { ADD_FAILURE() << "the size is that of the design"; });
  Form2_Load(program);
  EXPECT_EQ(wordMeanwhile, "");
}

TEST_F(MainWindow, LoadHoldsBackTheLayoutWhileItSetsTheSize) {
  std::vector<std::string> words;
  program.form2.Resize.Bind([&](int) { words.push_back(program.workspace.CallerWord); });
  program.form2.Width.Design(5000);
  program.form2.Height.Design(5000);
  Form2_Load(program);
  EXPECT_EQ(words, (std::vector<std::string>{"FORM2_LOAD", "FORM2_LOAD"}));
  EXPECT_EQ(program.form2.Width, 9720);
  EXPECT_EQ(program.form2.Height, 7400);
}

TEST_F(MainWindow, CloseQueryKnowsItsWordsExactly) {
  struct Case {
    const char* dataChanged;
    const char* quickQuit;
    bool refused;
  };
  const Case cases[] = {
      {"NO", "NO", false},  {"0", "NO", false},    {"1", "NO", false},   {"YES", "NO", true},
      {"NO", "YES", false}, {"YES", "YES", false}, {"YES", "yes", true}, {"YES", "", true},
      {"yes", "NO", false}, {"", "NO", false},
  };
  for (const Case& c : cases) {
    for (const CloseReason reason : {CloseReason::User, CloseReason::Code, CloseReason::SessionEnd}) {
      program.workspace.DataChanged = c.dataChanged;
      program.workspace.QuickQuit = c.quickQuit;
      program.form2.closeRefused = false;
      Form2_QueryUnload(program, static_cast<int>(reason));
      EXPECT_EQ(program.form2.closeRefused, c.refused)
          << c.dataChanged << ' ' << c.quickQuit << ' ' << static_cast<int>(reason);
    }
  }
}

}  // namespace
}  // namespace veldrin
