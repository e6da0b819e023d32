// The net beneath the program: while the plan on the screen differs from what the last load or save left on
// the disk, a copy of it is kept, and whatever ends the program, it is there at the next start.
//
// The net only looks. No window and no routine of the program knows of it; what they tell comes through the
// hooks that are there for it.
//
//   what happens to the plan                       what becomes of the kept copy
//   it is changed                                  kept anew
//   it is changed back                             goes
//   it is saved, restored                          goes
//   it gives way, after the user's word            goes
//   it gives way unasked                           stays, for whoever starts next
//   the program ends, after the user's word        goes
//   the program ends in any other way              stays
#pragma once

#include "platform/keep_folder.h"
#include "safety/keep_writer.h"
#include "safety/plan_state.h"
#include "workspace/program.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>

namespace veldrin {

class SafetyNet {
 public:
  /// Both have to outlive the net. Fills the program's hooks for it.
  SafetyNet(Program& program, KeepFolder& folder);
  /// Writes what is due, unless End was called.
  ~SafetyNet();
  SafetyNet(const SafetyNet&) = delete;
  SafetyNet& operator=(const SafetyNet&) = delete;

  /// Looks at the plan. To be called when an event of the program has ended; inside of one nothing happens.
  void Look();
  /// The same in the event that ends the program.
  void LookAtLast();
  /// Whether something that was seen waits to be written.
  bool IsDue() const { return due_; }
  /// Hands what is due to the disk and does not wait for it. Tells once when the disk has refused.
  void Write();
  /// Writes what is due and waits until it is on the disk.
  void Secure();
  /// The program has ended, by its own word or by a fault: settles what becomes of the kept copy.
  void End();

  /// What is now on the screen was kept by another copy: `ground`, or nothing, is what the disk has of it.
  void Adopt(std::optional<PlanState> ground);

  /// The id of the copy of what is on the screen; empty while none is kept.
  const std::string& KeptId() const { return id_; }
  KeepFolder& Folder() { return *folder_; }
  KeepWriter& Writer() { return writer_; }

 private:
  void Take();
  void Settle(const std::optional<PlanState>& now);
  bool Differs() const;
  void Depart();
  void Forget();
  void Release();

  Program* program_;
  KeepFolder* folder_;
  KeepWriter writer_;

  std::optional<PlanState> base_;  // as the disk has it, or as it was made
  std::optional<PlanState> now_;   // as it was last seen
  std::optional<PlanState> kept_;  // as it was last handed to the disk
  std::string planText_;           // of the plan that was last seen
  std::string id_;
  std::unique_ptr<KeepClaim> claim_;
  bool due_ = false;
  bool failureTold_ = false;
  bool ended_ = false;

  // What the program has told since the last look.
  bool loaded_ = false;
  bool saved_ = false;
  bool restored_ = false;
  bool givenUp_ = false;
};

}  // namespace veldrin
