#include "safety/kept_offers.h"

#include "platform/paths.h"
#include "runtime/fault.h"
#include "safety/reopen.h"
#include "view/user_input.h"
#include "workspace/notice_words.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace veldrin {

namespace {

constexpr std::size_t kDateLength = 10;       // of 2026-11-22
constexpr std::size_t kTimeBegin = 11;        // behind the T
constexpr std::size_t kTimeLength = 5;        // of 21:04
constexpr std::size_t kWholeTimeLength = 19;  // of 2026-11-22T21:04:05
constexpr std::size_t kSuffixLength = 5;      // of .kept
constexpr char kFallbackName[] = "PLAN";

/// A name in the plans' folder that nothing bears.
std::string FreePath(const Program& program, const KeptPlan& kept) {
  const Files& files = program.machine.files;
  const PathRules rules = files.Rules();
  std::string name = LastPartOf(rules, kept.plan.file);
  name = name.substr(0, name.rfind('.'));
  if (name.empty()) name = kept.plan.machine.empty() ? kFallbackName : kept.plan.machine;
  const std::string folder = TrimRoot(rules, program.workspace.DataPath);
  for (int number = 1;; ++number) {
    const std::string path =
        JoinPath(rules, folder, name + "-" + std::to_string(number) + "." + kept.plan.key);
    if (!files.FileExists(path) && !files.FolderExists(path)) return path;
  }
}

void PutWindow(Window& window, const WindowPlace& place) {
  if (place.state == static_cast<int>(WindowState::Normal)) {
    user::Resize(window, place.width, place.height);
    user::Move(window, place.left, place.top);
  } else {
    user::SetState(window, place.state);
  }
}

BothLanguages Join(const BothLanguages& a, const char* english, const char* japanese) {
  return {a.english + english, a.japanese + japanese};
}

}  // namespace

std::string SpokenTime(const std::string& when, const std::string& today) {
  if (when.size() != kWholeTimeLength || when[kDateLength] != 'T') return when;
  const std::string time = when.substr(kTimeBegin, kTimeLength);
  const std::string date = when.substr(0, kDateLength);
  return today.starts_with(date) ? time : date + " " + time;
}

KeptOffers::KeptOffers(Program& program, SafetyNet& net) : program_(&program), net_(&net) {}

void KeptOffers::Begin() {
  const bool telling = !offers_.empty();
  std::vector<std::string> names = net_->Folder().KeptNames();
  std::sort(names.rbegin(), names.rend());
  for (const std::string& name : names) {
    const std::string id = name.substr(0, name.size() - kSuffixLength);
    if (id != net_->KeptId()) Take(id, true);
  }
  // By when they were kept, and not by when their editing began.
  std::stable_sort(offers_.begin() + (telling ? 1 : 0), offers_.end(),
                   [](const Offer& a, const Offer& b) { return a.kept.when > b.kept.when; });
  if (!telling) Tell();
}

bool KeptOffers::OpenAtOnce(const std::string& id) {
  if (!Take(id, false)) return false;
  std::rotate(offers_.rbegin(), offers_.rbegin() + 1, offers_.rend());
  const WindowPlace place = offers_.front().kept.place;
  PutWindow(program_->form2, place);
  Open();
  return true;
}

/// Makes what stands under an id this copy's, to be offered.
bool KeptOffers::Take(const std::string& id, bool tellsFlaws) {
  KeepFolder& folder = net_->Folder();
  std::unique_ptr<KeepClaim> claim = folder.Claim(id);
  if (!claim) return false;
  const std::string name = id + ".kept";
  const std::optional<std::string> text = folder.Read(name);
  // Another copy may have dealt with it before the claim was free.
  const std::vector<std::string> there = folder.KeptNames();
  if (!text && std::find(there.begin(), there.end(), name) == there.end()) return false;
  ReadKept read = text ? ParseKept(*text) : ReadKept{KeptFlaw::Damaged, {}};
  if (read.flaw == KeptFlaw::None) {
    offers_.push_back({id, std::move(read.kept), std::move(claim)});
    return true;
  }
  if (!tellsFlaws) return false;
  const std::string path = folder.PathOf(name);
  const bool newer = read.flaw == KeptFlaw::Newer;
  program_->machine.notices.Tell(
      {Severity::Warning,
       {path + (newer ? " was kept by a newer version of the program; it stays there."
                      : " is a kept plan that is damaged; it stays there."),
        path + (newer ? " は新しいバージョンのプログラムが保管したデータです。そのまま残します。"
                      : " は保管データですが壊れています。そのまま残します。")}});
  return false;
}

BothLanguages KeptOffers::NameOf(const KeptPlan& kept) const {
  const std::string time = SpokenTime(kept.when, net_->Folder().Now());
  return {"A plan of " + kept.plan.machine + " from " + time,
          time + " の " + kept.plan.machine + " のプラン"};
}

void KeptOffers::Tell() {
  if (offers_.empty()) return;
  const Offer& offer = offers_.front();
  program_->machine.notices.Tell({Severity::Warning,
                                  Join(NameOf(offer.kept), " was not saved.", "は保存されていません。"),
                                  {{{"Open", "開く"}, [this] { Open(); }},
                                   {{"Keep as file", "ファイルに残す"}, [this] { KeepAsFile(); }},
                                   {{"Forget", "破棄"}, [this] { Forget(); }}}});
}

void KeptOffers::Next() {
  offers_.pop_front();
  Tell();
}

/// What cannot be opened stays on the disk, and this copy says no more of it.
void KeptOffers::Leave(const BothLanguages& why) {
  const Offer& offer = offers_.front();
  const std::string path = net_->Folder().PathOf(offer.kept.planFile);
  const BothLanguages name = NameOf(offer.kept);
  program_->machine.notices.Tell(
      {Severity::Failure,
       {name.english + " was not opened: " + why.english + " It stays as " + path,
        name.japanese + "は開けません。" + why.japanese + " " + path + " に残します。"}});
  Next();
}

void KeptOffers::Open() {
  const KeptPlan kept = offers_.front().kept;
  net_->LookAtLast();  // what is on the screen gives way, and is kept as it stands now
  const Reopened reopened = ReopenKept(*program_, kept.plan);
  switch (reopened.result) {
    case Reopening::Busy:
      Tell();
      return;
    case Reopening::NoList:
      Leave({"its list " + kept.plan.list + " is gone or cannot be read.",
             "機種ファイル " + kept.plan.list + " がないか、読めません。"});
      return;
    case Reopening::NotInList:
      Leave({"the list " + kept.plan.list + " no longer has all of its parts.",
             "機種ファイル " + kept.plan.list + " に、この部品がなくなっています。"});
      return;
    case Reopening::Done:
      break;
  }
  net_->Adopt(reopened.ground);
  // The new copy is on the disk before the old one goes.
  net_->Secure();
  KeepFolder& folder = net_->Folder();
  const bool keptAnew = net_->KeptId().empty() || folder.Read(net_->KeptId() + ".kept").has_value();
  if (keptAnew) RemoveKept(folder, offers_.front().id, kept.planFile);
  Next();
}

void KeptOffers::KeepAsFile() {
  const KeptPlan& kept = offers_.front().kept;
  const std::optional<std::string> text = net_->Folder().Read(kept.planFile);
  const std::string path = FreePath(*program_, kept);
  int fault = kFaultFileNotFound;
  if (text) {
    fault = Guarded([&] {
      const std::unique_ptr<FileWriter> file = program_->machine.files.OpenForWriting(path);
      file->Write(*text);
      file->Close();
    });
  }
  if (fault != 0) {
    TellNotSaved(*program_, path, fault);
    Tell();
    return;
  }
  TellSaved(*program_, path);
  Forget();
}

void KeptOffers::Forget() {
  const Offer& offer = offers_.front();
  RemoveKept(net_->Folder(), offer.id, offer.kept.planFile);
  Next();
}

}  // namespace veldrin
