// The program on the desktop, and what its end leaves behind.
#pragma once

#include "program/event_boundary.h"
#include "tests/desktop/running_program.h"

#include <functional>
#include <optional>
#include <string>

namespace veldrin {

constexpr char kHistory[] = "Software\\Tarn Ridge\\Veldrin\\Ext\\Sub";

class DesktopProgramTest : public RunningProgramTest {
 protected:
  void SetChanged(const char* word) {
    RunEvent(Main(), [&] { Main().workspace.DataChanged = word; });
  }

  void MoveTo(float left, float top) {
    RunEvent(Main(), [&] {
      Main().form2.Left = left;
      Main().form2.Top = top;
    });
  }

  std::optional<std::string> Setting(const char* key, const char* value) {
    return Desktop().machine.registry.Read(RegistryRoot::CurrentUser, key, value);
  }

  /// Ends the running program by `end` while a question stands open behind a changed plan: it goes on with
  /// nothing.
  void ExpectEndBehindAnOpenBox(const std::function<void()>& end) {
    bool wentOn = false;
    When([] { return OpenBox() != nullptr; }, end);
    const int status = Run(PlanFile(), [&] {
      SetChanged(dirty::kYes);
      MoveTo(1500, 900);
      Desktop().stage.input.Do([&] {
        Desktop().machine.boxes.Message(BoxIcon::Question, "", "text", BoxButtons::OkCancel);
        wentOn = true;
        return true;
      });
    });
    EXPECT_EQ(status, 0);
    EXPECT_FALSE(wentOn);
    ExpectStoredAndTidy();
  }

  /// What the unload leaves behind when the plan was the only one.
  void ExpectStoredAndTidy() {
    EXPECT_TRUE(Main().ended);
    EXPECT_EQ(TempFiles(), QStringList());
    EXPECT_EQ(Setting(kHistory, "0"), "1");
    EXPECT_EQ(Setting(kHistory, "1"), PlanFile());
    EXPECT_EQ(Setting(kSettings, "Last Left"), "1500");
    EXPECT_EQ(Setting(kSettings, "Last Top"), "900");
  }
};

}  // namespace veldrin
