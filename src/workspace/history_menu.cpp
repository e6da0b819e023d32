#include "workspace/history_menu.h"

namespace veldrin {

void EmptyHistoryMenu(Program& program) {
  Form2& form2 = program.form2;
  for (int i = 1; i <= program.workspace.HistoryCount; ++i) form2.menu_files.Unload(i);
  program.workspace.HistoryCount = 0;
  form2.menu_files[0].Visible = false;
  form2.menu_his_clear[0].Visible = false;
  form2.menu_his_clear[1].Visible = false;
}

}  // namespace veldrin
