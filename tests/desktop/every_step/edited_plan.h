// A program on the real disk with an edited plan, which keeps it, saves it and ends: in a process of its own
// that does not come through, or comes to calls that the system refuses.
#pragma once

#include "machine/files/real_files.h"
#include "machine/files/real_keep_folder.h"
#include "platform/system_code_pages.h"
#include "program/assemble.h"
#include "program/event_boundary.h"
#include "safety/safety_net.h"
#include "simulated/simulated_machine.h"
#include "tests/desktop/sample_files.h"
#include "tests/desktop/scratch_folder.h"
#include "view/user_input.h"
#include "workspace/files/plan_lines.h"

#include <atomic>
#include <filesystem>
#include <memory>
#include <new>
#include <optional>
#include <string>
#include <sys/mman.h>
#include <vector>

namespace veldrin {

/// How far a process has come, for the one that watches it.
struct Progress {
  std::atomic<bool> kept = false;   // the plan is kept, by its own word
  std::atomic<bool> told = false;   // a failure of the keeping was told
  std::atomic<bool> saved = false;  // the plan is saved, by its own word
};

class EditedPlan : public ScratchFolder {
 public:
  EditedPlan() : before_(QDir::currentPath()) {
    Put("program/LIST/nx4.rat", kSampleList);
    Put("program/DAT/A.nx4", kSamplePlan);
    QDir(folder.path()).mkpath("temp");
    QDir::setCurrent(In("program"));
    simulated_.environment.Set("TEMP", PathOf("temp"));
    program_ = AssembleProgram(machine_);
    StartProgram(*program_, PlanPath());
    for (const int milliseconds : {100, 1200}) {
      simulated_.clock.Advance(milliseconds, [](TimerControl& timer) { timer.Timer(); });
    }
    ground_ = TakeState(*program_);
    Do([&] { user::EnterText(program_->form2.Text6, "edited"); });
    Do([&] { user::ScrollTo(program_->form2.HScroll1, 11000); });
    edited_ = TakeState(*program_);
    void* const shared =
        mmap(nullptr, sizeof(Progress), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0);
    progress_ = new (shared) Progress;
  }
  ~EditedPlan() {
    munmap(progress_, sizeof(Progress));
    simulated_.windows.Forget();
    QDir::setCurrent(before_);
  }

  /// Everything as before the first run.
  void Reset() {
    namespace fs = std::filesystem;
    for (const char* name : {"state", "state.gone", "program/DAT", "DAT.gone", "temp"})
      fs::remove_all(PathOf(name));
    QDir(folder.path()).mkpath("temp");
    Put("program/DAT/A.nx4", kSamplePlan);
    new (progress_) Progress;
  }

  /// What a process does: it keeps the plan, saves it over the old one, and ends.
  int KeepAndSave() {
    RealKeepFolder keepFolder(In("state"));
    SafetyNet net(*program_, keepFolder);
    net.Adopt(ground_);
    net.Secure();
    net.Write();  // tells what has failed, and tries once more
    net.Writer().Finish();
    progress_->told = !simulated_.notices.told.empty();
    progress_->kept = !progress_->told;
    Save();
    progress_->saved = program_->workspace.DataChanged != dirty::kYes;
    net.Look();
    net.End();
    return 0;
  }

  const Progress& Came() const { return *progress_; }
  std::string PlanPath() const { return PathOf("program/DAT/A.nx4"); }
  const PlanState& Edited() const { return *edited_; }
  /// The new plan's file.
  std::string NewText() const { return PlanText(program_->workspace, "edited"); }

 private:
  void Do(const std::function<void()>& event) { RunEvent(*program_, event); }

  void Save() {
    Form3& form3 = program_->form3;
    simulated_.windows.modalLoop = [&](Window& /*chooser*/) {
      Do([&] { user::EnterText(form3.Combo1, "A"); });
      for (int presses = 0; presses < 2 && form3.Visible; ++presses) Do([&] { user::Click(form3.Command1); });
      if (form3.Visible) Do([&] { user::Click(form3.Command2); });
    };
    Do([&] { user::Click(program_->form2.Command5); });
  }

  QString before_;
  SimulatedMachine simulated_;
  RealFiles files_{SystemCodePages(false)};
  Machine machine_{files_,
                   simulated_.registry,
                   simulated_.profile,
                   simulated_.environment,
                   simulated_.instances,
                   simulated_.screen,
                   simulated_.windows,
                   simulated_.boxes,
                   simulated_.notices,
                   simulated_.metrics,
                   simulated_.printer,
                   simulated_.pictures,
                   simulated_.shell,
                   simulated_.sound,
                   simulated_.figures};
  std::unique_ptr<Program> program_;
  std::optional<PlanState> ground_;
  std::optional<PlanState> edited_;
  Progress* progress_ = nullptr;
};

}  // namespace veldrin
