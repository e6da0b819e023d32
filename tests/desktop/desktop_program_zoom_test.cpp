#include "desktop/desktop_program.h"
#include "machine/registry/real_registry.h"
#include "tests/desktop/program_folders.h"

#include <QApplication>
#include <QScreen>
#include <gtest/gtest.h>

#include <optional>
#include <string>

namespace veldrin {
namespace {

/// Each DesktopProgram is one run of the program by the same user.
class DesktopProgramZoomTest : public ::testing::Test, protected ProgramFolders {
 protected:
  static std::optional<std::string> Stored() {
    return RealRegistry().Read(RegistryRoot::CurrentUser, kSettings, "Zoom");
  }

  static double FittingHere() {
    const QSize room = QGuiApplication::primaryScreen()->availableSize();
    return FittingZoom(room.width(), room.height());
  }
};

TEST_F(DesktopProgramZoomTest, FirstRunFitsTheScreenAndStoresNothing) {
  const DesktopProgram program;
  EXPECT_EQ(program.stage.zoom.Factor(), FittingHere());
  EXPECT_EQ(program.machine.screen.zoom, FittingHere());
  EXPECT_EQ(Stored(), std::nullopt);
}

TEST_F(DesktopProgramZoomTest, ChangedZoomIsStoredAtOnceAndFoundAgain) {
  {
    DesktopProgram program;
    program.stage.zoom.Set(1.25);
    EXPECT_EQ(Stored(), "125");
    program.stage.zoom.Enlarge();
    EXPECT_EQ(Stored(), "150");
    EXPECT_EQ(program.machine.screen.zoom, 1.5);
  }
  DesktopProgram program;
  EXPECT_EQ(program.stage.zoom.Factor(), 1.5);
  EXPECT_EQ(program.machine.screen.zoom, 1.5);
  EXPECT_EQ(Stored(), "150");
}

TEST_F(DesktopProgramZoomTest, StoredTextIsReadWithinTheEnds) {
  const struct {
    const char* text;
    double factor;
  } cases[] = {{"100", 1},          {"112.5", 1.125},        {"20", Zoom::kLeast}, {"50", 0.5},
               {"300", 3},          {"9999", Zoom::kMost},   {"0", FittingHere()}, {"-100", FittingHere()},
               {"", FittingHere()}, {"large", FittingHere()}};
  for (const auto& one : cases) {
    RealRegistry().Write(RegistryRoot::CurrentUser, kSettings, "Zoom", one.text);
    const DesktopProgram program;
    EXPECT_EQ(program.stage.zoom.Factor(), one.factor) << one.text;
    EXPECT_EQ(Stored(), one.text);
  }
}

TEST_F(DesktopProgramZoomTest, ScreenIsAsLargeInTwipsAsTheZoomMakesIt) {
  DesktopProgram program;
  program.stage.zoom.Set(1);
  const float width = program.machine.screen.Width();
  program.stage.zoom.Set(2);
  EXPECT_EQ(program.machine.screen.Width(), width / 2);
}

}  // namespace
}  // namespace veldrin
