// Copies of the program that share a folder of kept plans, and keep, open, save and die at random: no kept
// plan is lost, and none is offered by two of them at once. VELDRIN_TEST_MINUTES lets them go on for that
// long.
#include "machine/files/real_keep_folder.h"
#include "tests/desktop/copies.h"
#include "tests/desktop/other_half.h"
#include "tests/desktop/scratch_folder.h"
#include "tests/safety/netted_program.h"

#include <atomic>
#include <chrono>
#include <cstdlib>
#include <functional>
#include <iostream>
#include <memory>
#include <random>
#include <set>
#include <string>
#include <utility>

namespace veldrin {
namespace {

constexpr int kCopies = 2;
constexpr int kShortRun = kCopiesStartQuickly ? 60 : 30;  // copies of a run of all tests
constexpr std::size_t kMost = 1 << 20;

/// What all copies know. A plan is its number, which is its remark.
struct Ledger {
  std::atomic<int> plans;
  std::atomic<int> opened;
  std::atomic<int> heldTwice;
  std::atomic<bool> kept[kMost];
  std::atomic<bool> done[kMost];   // saved, or edited into another one
  std::atomic<int> owner[kMost];   // by the id's hash
  std::atomic<bool> dying[kMost];  // by the process's number: what it held, it holds no more
};

std::size_t PlaceOf(int process) {
  return static_cast<std::size_t>(process) % kMost;
}

/// Dies on the spot. The system frees what a dying process has locked before its number is nobody's.
void Die(Ledger& ledger) {
  ledger.dying[PlaceOf(OwnProcess())] = true;
  DieAtOnce();
}

/// The ledger is a file that all copies have in their memory.
class SharedLedger {
 public:
  explicit SharedLedger(const QString& path) : file_(path) {
    const bool opened = file_.open(QIODevice::ReadWrite) && file_.resize(sizeof(Ledger));
    if (opened) ledger_ = reinterpret_cast<Ledger*>(file_.map(0, sizeof(Ledger)));
  }
  Ledger* operator->() const { return ledger_; }
  Ledger& operator*() const { return *ledger_; }

 private:
  QFile file_;
  Ledger* ledger_ = nullptr;
};

/// The folder, and who holds which plan of it.
class WatchedFolder : public RealKeepFolder {
 public:
  WatchedFolder(const QString& folder, Ledger& ledger) : RealKeepFolder(folder), ledger_(&ledger) {}

  std::unique_ptr<KeepClaim> Claim(const std::string& id) override {
    std::unique_ptr<KeepClaim> claim = RealKeepFolder::Claim(id);
    if (!claim) return nullptr;
    std::atomic<int>& owner = ledger_->owner[std::hash<std::string>()(id) % kMost];
    const int before = owner.exchange(OwnProcess());
    const bool lives = before != 0 && !ledger_->dying[PlaceOf(before)] && IsAlive(before);
    if (lives && before != OwnProcess()) ++ledger_->heldTwice;
    return std::make_unique<Watched>(std::move(claim), owner);
  }

 private:
  struct Watched : KeepClaim {
    Watched(std::unique_ptr<KeepClaim> theClaim, std::atomic<int>& theOwner)
        : claim(std::move(theClaim)), owner(theOwner) {}
    ~Watched() override { owner = 0; }
    std::unique_ptr<KeepClaim> claim;
    std::atomic<int>& owner;
  };
  Ledger* ledger_;
};

int NumberOf(const std::string& remark) {
  return std::atoi(remark.c_str());
}

/// One copy, from its start to whatever end it comes to.
int RunCopy(const QString& folder, Ledger& ledger, unsigned seed) {
  std::mt19937 chance(seed);
  ledger.dying[PlaceOf(OwnProcess())] = false;
  WatchedFolder keepFolder(folder, ledger);
  NettedProgram p(keepFolder, kPlanPath);
  p.offers->Begin();
  if (p.Told() > 0 && !p.Last().actions.empty() && chance() % 2 == 0) {
    ++ledger.opened;
    p.Act(0);
  }
  for (unsigned edits = chance() % 4; edits > 0; --edits) {
    const int before = NumberOf(p.Main().Text6.Text);
    const int plan = ++ledger.plans;
    ledger.done[before] = true;
    p.Do([&] { user::EnterText(p.Main().Text6, std::to_string(plan)); });
    if (chance() % 8 == 0) Die(ledger);
    p.net->Secure();
    ledger.kept[plan] = true;
  }
  const unsigned end = chance() % 4;
  if (end == 0) Die(ledger);
  if (end == 1) {
    ledger.done[NumberOf(p.Main().Text6.Text)] = true;
    p.Do([&] { p.program->hooks.Saved(); });
  }
  p.net->End();
  return 0;
}

class TwoCopiesTest : public ::testing::Test, protected ScratchFolder {
 protected:
  void ExpectNothingLost() {
    RealKeepFolder keepFolder(In("state"));
    std::set<int> there;
    for (const std::string& name : keepFolder.KeptNames()) {
      const ReadKept read = ParseKept(keepFolder.Read(name).value_or(""));
      EXPECT_EQ(read.flaw, KeptFlaw::None) << name;
      EXPECT_TRUE(keepFolder.Read(read.kept.planFile)) << name;
      there.insert(NumberOf(read.kept.plan.remark));
    }
    for (int plan = 1; plan <= ledger_->plans; ++plan) {
      EXPECT_TRUE(!ledger_->kept[plan] || ledger_->done[plan] || there.contains(plan)) << "plan " << plan;
    }
  }

  SharedLedger ledger_{In("ledger")};
};

TEST(DISABLED_TwoCopiesCopy, Runs) {
  const QStringList words = OtherHalf::Words();
  const SharedLedger ledger(words[1]);
  EXPECT_EQ(RunCopy(words[0], *ledger, words[2].toUInt()), 0);
}

TEST_F(TwoCopiesTest, NoKeptPlanIsLostAndNoneIsHeldTwice) {
  const double minutes = std::atof(qgetenv("VELDRIN_TEST_MINUTES").constData());
  const auto begin = std::chrono::steady_clock::now();
  const auto goesOn = [&](int copies) {
    if (minutes == 0) return copies < kShortRun;
    return std::chrono::steady_clock::now() - begin < std::chrono::duration<double>(minutes * 60);
  };
  Copies copies;
  int started = 0;
  int killed = 0;
  while (goesOn(started) || copies.Running() > 0) {
    while (copies.Running() < kCopies && goesOn(started)) {
      const auto seed = static_cast<unsigned>(++started);
      copies.Start("DISABLED_TwoCopiesCopy.Runs", {In("state"), In("ledger"), QString::number(seed)},
                   [&] { return RunCopy(In("state"), *ledger_, seed); });
    }
    const CopyEnd end = copies.AwaitOne();
    ASSERT_NE(end, CopyEnd::Wrong);
    if (end == CopyEnd::Killed) ++killed;
  }
  ExpectNothingLost();
  EXPECT_EQ(ledger_->heldTwice, 0);
  EXPECT_GT(ledger_->opened, 0);
  EXPECT_GT(killed, 0);
  std::cout << started << " copies, " << killed << " killed, " << ledger_->plans << " plans, "
            << ledger_->opened << " opened" << std::endl;
}

}  // namespace
}  // namespace veldrin
