// A program with a machine whose speeds can be worked out in the head, and a plan for it.
#pragma once

#include "mainwin/chart.h"
#include "mainwin/refresh_display.h"
#include "runtime/text.h"
#include "simulated/simulated_machine.h"
#include "workspace/files/machine_list.h"
#include "workspace/files/plan_file.h"
#include "workspace/language.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldrin {

// With revolutions 10000, tyre 2, primary 20-40 and final 16-40 the speeds of row 1 are whole:
// 10000 * 2 * 0.5 * 0.4 * 0.06 = 240 km/h times the pair's ratio.
inline constexpr char kList[] =
    "LIST\r\nT1\r\nFINAL-DRIVE\r\n15,16,99\r\nFINAL-DRIVEN\r\n40,99\r\nROWS,2,PRIMARY\r\n20,50\r\n20,"
    "40\r\n99\r\n"
    "-\r\n-\r\n"
    "1.A,10,40,2A,10,30,3A,10,24,4A,10,20,5A,10,16,6A,10,15\r\n"
    "1.B,10,50,2B,10,32,3B,10,25,4B,12,25,5B,10,17,6B,10,12\r\n"
    "M34-ARRAY\r\n0,0\r\n0,0\r\n"
    "TYRE_L=1.5\r\nSHIFT_NE=9000\r\nCHECK_NE=9000\r\nMAX_SPEED=180\r\nMAX_NE=14000\r\n";

inline constexpr char kListPath[] = "C:\\VELDRIN\\LIST\\T1.RAT";
inline constexpr char kPlanPath[] = "C:\\VELDRIN\\DAT\\A.t1";
inline constexpr char kWorkPath[] = "C:\\TEMP\\VELD000.TMP";

using Lines = std::vector<std::string>;

inline Lines PlanLines() {
  return {"FROM:T1.RAT", "2",   "10000", "60", "80", "100", "120",
          "150",         "160", "20",    "40", "16", "40",  "1.A-2A-3A-4A-5A-6A",
          "Rain"};
}

inline std::string Joined(const Lines& lines) {
  std::string text;
  for (const std::string& line : lines) text += line + "\r\n";
  return text;
}

struct PlanFile : testing::Test {
  SimulatedMachine simulated;
  Program program{simulated.machine};
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;

  PlanFile() {
    program.hooks.RefreshDisplay = [this] { RefreshDisplay(program); };
    program.hooks.ChartScale = [this] { ChartScale(program); };
    workspace.Language = kEnglish;
    LoadLanguage(program);
    workspace.TitlePrefix = "Mr.Veldrin";
    workspace.ChangedMark = " - Changed";
    workspace.HistoryMax = 6;
    workspace.WorkFile = kWorkPath;
    simulated.files.AddFile(kListPath, kList);
    OpenAnyFile(program, kListPath);
  }
  ~PlanFile() override { simulated.windows.Forget(); }

  void Open(const std::string& text) {
    simulated.files.AddFile(kPlanPath, text);
    OpenAnyFile(program, kPlanPath);
  }
  void Open(const Lines& lines) { Open(Joined(lines)); }

  std::string Save() {
    program.files.OpenOutput(Handle::Plan, "C:\\VELDRIN\\DAT\\B.t1");
    SavePlanFile(program);
    program.files.Close(Handle::Plan);
    return simulated.files.Text("C:\\VELDRIN\\DAT\\B.t1").value_or("(no file)");
  }

  std::string WorkFileText() { return simulated.files.Text(kWorkPath).value_or("(no file)"); }
};

}  // namespace veldrin
