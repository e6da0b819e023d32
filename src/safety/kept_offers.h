// What other copies of the program have left behind, and earlier runs of this one: offered one after the
// other, the newest first, in a notice with what can be done about it.
//
// While one is offered it is this copy's, so that no other offers it as well. What nobody answered stays for
// the next start, and so does what cannot be read or has lost its list; nothing is deleted unasked.
#pragma once

#include "platform/keep_folder.h"
#include "safety/kept_plan.h"
#include "safety/safety_net.h"
#include "workspace/program.h"

#include <deque>
#include <memory>
#include <string>

namespace veldrin {

class KeptOffers {
 public:
  /// Both have to outlive the offers, and whoever shows their notices must not act on them later.
  KeptOffers(Program& program, SafetyNet& net);

  /// Looks what is there and tells the first; to be called once, when the main window is up.
  void Begin();
  /// Opens the plan with this id without a question, as its own copy of the program asked for before it
  /// ended. False when it is not there or another copy has it.
  bool OpenAtOnce(const std::string& id);

 private:
  struct Offer {
    std::string id;
    KeptPlan kept;
    std::unique_ptr<KeepClaim> claim;
  };

  bool Take(const std::string& id, bool tellsFlaws);
  void Next();
  void Tell();
  void Open();
  void KeepAsFile();
  void Forget();
  void Leave(const BothLanguages& why);
  BothLanguages NameOf(const KeptPlan& kept) const;

  Program* program_;
  SafetyNet* net_;
  std::deque<Offer> offers_;
};

/// When a plan was kept, for people: the time of day, with its date where that is not `today`'s. Both as
/// 2026-11-22T21:04:05; a text of another form is shown as it stands.
std::string SpokenTime(const std::string& when, const std::string& today);

}  // namespace veldrin
