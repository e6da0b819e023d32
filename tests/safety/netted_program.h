// A program on the simulated machine with a net beneath it, as the desktop has one.
#pragma once

#include "program/assemble.h"
#include "program/event_boundary.h"
#include "safety/kept_offers.h"
#include "safety/safety_net.h"
#include "simulated/simulated_machine.h"
#include "tests/safety/memory_keep_folder.h"
#include "view/user_input.h"

#include <functional>
#include <memory>
#include <string>

namespace veldrin {

inline constexpr char kPlanPath[] = "C:\\VELDRIN\\DAT\\A.nx4";
inline constexpr char kListPath[] = "C:\\VELDRIN\\LIST\\NX4.RAT";

/// Two rows wherever a machine can have rows. The plan is of the first ones, and its speeds are exact.
inline constexpr char kTwoRowList[] =
    "LIST\r\nNX4\r\nFINAL-DRIVE\r\n16,17,99\r\nFINAL-DRIVEN\r\n40,99\r\nROWS,2,PRIMARY\r\n20,40\r\n21,"
    "40\r\n99\r\n"
    "-\r\n-\r\n1A,10,40,2A,10,30,3A,10,24,4A,10,20,5A,10,16,6A,10,15\r\n"
    "1B,11,40,2B,11,30,3B,11,24,4B,11,20,5B,11,16,6B,11,15\r\nM34-ARRAY\r\n0,0\r\n0,99\r\n";
inline constexpr char kFirstRowPlan[] =
    "FROM:NX4.RAT\r\n2\r\n10000\r\n60\r\n80\r\n100\r\n120\r\n150\r\n160\r\n20\r\n40\r\n16\r\n40\r\n"
    "1A-2A-3A-4A-5A-6A\r\nremark\r\n";

inline void AddSampleFiles(SimulatedFiles& files) {
  files.AddFile(kListPath, kTwoRowList);
  std::string other = kTwoRowList;
  other.replace(other.find("NX4"), 3, "VT2");
  files.AddFile("C:\\VELDRIN\\LIST\\VT2.RAT", other);
  files.AddFile(kPlanPath, kFirstRowPlan);
}

struct NettedProgram {
  /// Starts on a machine with the sample list and plan; `file` as on the command line.
  NettedProgram(KeepFolder& folder, const std::string& file) : NettedProgram(folder, file, AddSampleFiles) {}
  NettedProgram(KeepFolder& folder, const std::string& file,
                const std::function<void(SimulatedFiles&)>& addFiles) {
    addFiles(simulated.files);
    program = AssembleProgram(simulated.machine);
    net.emplace(*program, folder);
    offers.emplace(*program, *net);
    StartProgram(*program, file);
    for (const int milliseconds : {100, 1200}) {
      simulated.clock.Advance(milliseconds, [this](TimerControl& timer) { Do([&] { timer.Timer(); }); });
    }
    net->Look();
  }
  ~NettedProgram() {
    net.reset();
    simulated.windows.Forget();
  }

  /// One event of the program; the net looks when it has ended.
  void Do(const std::function<void()>& event) {
    RunEvent(*program, event);
    net->Look();
  }
  void Step(int gear, bool up = true) {
    Do([&] { user::Spin(program->form2.Spin6[gear], up); });
  }
  void Click(Control& control, int button = kLeftButton) {
    Do([&] { user::Click(control, button); });
  }
  void Close() {
    Do([&] { user::Close(program->form2, CloseReason::User); });
  }
  /// The whole event of an action that a notice offers.
  void Act(std::size_t action) {
    const std::function<void()> act = Last().actions.at(action).act;
    Do(act);
  }

  Form2& Main() { return program->form2; }
  Workspace& Work() { return program->workspace; }
  const Notice& Last() const { return simulated.notices.told.back(); }
  std::size_t Told() const { return simulated.notices.told.size(); }

  SimulatedMachine simulated;
  std::unique_ptr<Program> program;
  std::optional<SafetyNet> net;
  std::optional<KeptOffers> offers;
};

}  // namespace veldrin
