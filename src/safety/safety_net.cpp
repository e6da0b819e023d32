#include "safety/safety_net.h"

#include "runtime/fault.h"
#include "workspace/failure_texts.h"
#include "workspace/files/plan_lines.h"

#include <utility>

namespace veldrin {

namespace {

WindowPlace PlaceOf(const Window& window) {
  return {window.Left, window.Top, window.Width, window.Height,
          static_cast<std::int16_t>(window.WindowState.get())};
}

}  // namespace

SafetyNet::SafetyNet(Program& program, KeepFolder& folder)
    : program_(&program), folder_(&folder), writer_(folder) {
  program.hooks.Loaded = [this] {
    Depart();
    loaded_ = true;
  };
  program.hooks.Saved = [this] {
    Forget();
    saved_ = true;
  };
  program.hooks.Restored = [this] { restored_ = true; };
  program.hooks.GivenUp = [this] { givenUp_ = true; };
}

SafetyNet::~SafetyNet() {
  if (!ended_) Secure();
  program_->hooks.Loaded = nullptr;
  program_->hooks.Saved = nullptr;
  program_->hooks.Restored = nullptr;
  program_->hooks.GivenUp = nullptr;
}

void SafetyNet::Look() {
  if (program_->eventDepth > 0 || program_->ended) return;
  Take();
  givenUp_ = false;  // the answer has come to nothing
}

void SafetyNet::LookAtLast() {
  if (!program_->ended) Take();
}

void SafetyNet::Take() {
  std::optional<PlanState> now = TakeState(*program_);
  if (!now && now_) Depart();
  Settle(now);
  now_ = std::move(now);
  loaded_ = saved_ = restored_ = false;
  const bool differs = Differs();
  due_ = differs && now_ != kept_;
  if (due_) {
    // The text of the plan is made here, where the tables it needs are the plan's for certain.
    planText_.clear();
    Guarded([&] { planText_ = PlanText(program_->workspace, now_->remark); });
  } else if (!differs && kept_) {
    Forget();
  }
}

/// What the disk has of the plan from now on. A plan that was just made by Mode is its own ground: what one
/// key makes again is no work that could be lost.
void SafetyNet::Settle(const std::optional<PlanState>& now) {
  if (!now) {
    base_.reset();
  } else if (loaded_ || saved_ || !now_) {
    base_ = now;
  } else if (restored_ && base_ && SameChoice(*now, *base_)) {
    base_ = now;
  } else if (base_ && now->requests && !now_->requests && !base_->requests) {
    base_->requests = now->requests;  // as the entry offers them
  }
}

bool SafetyNet::Differs() const {
  return now_ && (!base_ || HoldsMore(*now_, *base_));
}

void SafetyNet::Write() {
  const int fault = writer_.TakeFault();
  if (fault != 0) {
    kept_.reset();
    due_ = Differs();
    if (!std::exchange(failureTold_, true)) {
      const std::string place = folder_->PathOf("");
      const BothLanguages cause = FailureCause(fault);
      program_->machine.notices.Tell(
          {Severity::Failure,
           {"Unsaved plans cannot be kept in " + place + ": " + cause.english,
            "保存前のデータを " + place + " に保管できません: " + cause.japanese}});
    }
  }
  if (!due_) return;
  due_ = false;
  if (id_.empty()) {
    id_ = folder_->NewId();
    claim_ = folder_->Claim(id_);
  }
  kept_ = now_;
  writer_.Keep(id_, {folder_->Now(), "", PlaceOf(program_->form2), *now_}, planText_);
}

void SafetyNet::Secure() {
  Write();
  writer_.Finish();
}

void SafetyNet::End() {
  if (std::exchange(ended_, true)) return;
  if (givenUp_ && program_->endFault == 0) {
    Forget();
  } else {
    Write();
  }
  writer_.Finish();
  Release();
}

void SafetyNet::Adopt(std::optional<PlanState> ground) {
  base_ = std::move(ground);
  now_ = TakeState(*program_);
  kept_.reset();
  loaded_ = saved_ = restored_ = givenUp_ = false;
  due_ = Differs();
  Guarded([&] { planText_ = PlanText(program_->workspace, program_->form2.Text6.Text); });
}

/// The plan that was seen last is no longer on the screen.
void SafetyNet::Depart() {
  if (givenUp_ || !Differs()) {
    Forget();
  } else {
    Write();
    Release();
  }
  now_.reset();
  base_.reset();
}

void SafetyNet::Forget() {
  due_ = false;
  if (id_.empty()) return;
  writer_.Forget(id_);
  // Who starts now must not find what is about to go.
  writer_.Finish();
  Release();
}

/// What is kept, if anything, is this copy's no more.
void SafetyNet::Release() {
  if (claim_) writer_.Finish();
  claim_.reset();
  kept_.reset();
  id_.clear();
}

}  // namespace veldrin
