// A program about to start, with lists and plans.
#pragma once

#include "dialogs/startup.h"
#include "mainwin/chart.h"
#include "mainwin/refresh_display.h"
#include "simulated/simulated_machine.h"
#include "tests/simulated/machine_with.h"
#include "workspace/files/machine_list.h"
#include "workspace/files/working_files.h"
#include "workspace/language.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace veldrin {

inline constexpr char kSettings[] = "Software\\Tarn Ridge\\Veldrin";

inline std::string List(const std::string& machine) {
  return "LIST\r\n" + machine +
         "\r\nFINAL-DRIVE\r\n16,99\r\nFINAL-DRIVEN\r\n40,99\r\nROWS,1,PRIMARY\r\n20,40\r\n99\r\n-\r\n-\r\n"
         "1A,10,40,2A,10,30,3A,10,24,4A,10,20,5A,10,16,6A,10,15\r\nM34-ARRAY\r\n0\r\n";
}

inline std::string Plan(const std::string& machine, const std::string& thirdSpeed = "100") {
  return "FROM:" + machine + ".RAT\r\n2\r\n10000\r\n60\r\n80\r\n" + thirdSpeed +
         "\r\n120\r\n150\r\n160\r\n20\r\n40\r\n16\r\n40\r\n1A-2A-3A-4A-5A-6A\r\nremark\r\n";
}

struct Startup : testing::Test {
  SimulatedMachine simulated;
  Program program{simulated.machine};
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  Form3& form3 = program.form3;
  /// `CallerWord` whenever a modal window came up; each is hidden at once.
  std::vector<std::string> modalWords;

  Startup() {
    program.hooks.RefreshDisplay = [this] { RefreshDisplay(program); };
    program.hooks.ChartScale = [this] { ChartScale(program); };
    form2.Load.Bind([this](int) { LoadLanguage(program); });
    form3.Load.Bind([this](int) {
      OpenAnyFile(program, workspace.ListPath + "\\" + workspace.ListFile);
      ChartScale(program);
    });
    AttachStartup(program);
    simulated.windows.modalLoop = [this](Window& window) {
      modalWords.push_back(workspace.CallerWord);
      window.Hide();
    };
    simulated.files.AddFile("C:\\VELDRIN\\LIST\\NX4.RAT", List("NX4"));
  }
  ~Startup() override { simulated.windows.Forget(); }

  void Start(const std::string& commandLine = "") {
    workspace.CommandFile = commandLine;
    program.form1.LoadWindow();
  }
  void Tick() { program.form1.Timer1.Timer(); }
  void TakeAllWorkingFiles() {
    simulated.instances.others = 1;
    for (int number = 1000; number <= 1999; ++number) {
      simulated.files.AddFile("C:\\TEMP\\VELD" + std::to_string(number).substr(1) + ".TMP", "");
    }
  }
  void AddPlan(const std::string& path, const std::string& text) { simulated.files.AddFile(path, text); }
};

}  // namespace veldrin
