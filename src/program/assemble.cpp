#include "program/assemble.h"

#include "dialogs/about_window.h"
#include "dialogs/colour_dialog.h"
#include "dialogs/compare_window.h"
#include "dialogs/extension_registry.h"
#include "dialogs/file_chooser.h"
#include "dialogs/load_dispatch.h"
#include "dialogs/plan_dialog.h"
#include "dialogs/settings_dialog.h"
#include "dialogs/startup.h"
#include "mainwin/chart.h"
#include "mainwin/combination.h"
#include "mainwin/gear_panel/gear_panel.h"
#include "mainwin/gear_panel/gear_panel_chart.h"
#include "mainwin/layout.h"
#include "mainwin/main_window.h"
#include "mainwin/refresh_display.h"
#include "mainwin/report.h"
#include "mainwin/search.h"
#include "program/event_boundary.h"
#include "program/refusal_notices.h"

namespace veldrin {

std::unique_ptr<Program> AssembleProgram(Machine& machine) {
  auto program = std::make_unique<Program>(machine);
  program->hooks.ChartScale = [&p = *program] { ChartScale(p); };
  program->hooks.ChartPlan = [&p = *program] { ChartPlan(p); };
  program->hooks.RefreshDisplay = [&p = *program] { RefreshDisplay(p); };
  program->hooks.RefreshPlan = [&p = *program] { RefreshPlan(p); };
  AttachStartup(*program);
  AttachPlanSearch(*program);
  AttachMainWindow(*program);
  AttachGearPanel(*program);
  AttachReport(*program);
  AttachLayout(*program);
  AttachCombination(*program);
  AttachPlanDialog(*program);
  AttachCompareWindow(*program);
  AttachFileChooser(*program);
  AttachLoadDispatch(*program);
  AttachSettingsDialog(*program);
  AttachColourDialog(*program);
  AttachExtensionRegistry(*program);
  AttachAboutWindow(*program);
  AttachRefusalNotices(*program);
  return program;
}

void StartProgram(Program& program, const std::string& commandLine) {
  program.workspace.CommandFile = commandLine;
  RunEvent(program, [&] { program.form1.LoadWindow(); });
}

}  // namespace veldrin
