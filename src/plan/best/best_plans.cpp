#include "plan/best/best_plans.h"

#include "model/list_tables.h"
#include "plan/best/row_choices.h"
#include "plan/best/step_bounds.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace veldrin {

namespace {

using Values = std::array<std::int64_t, 3>;
using Order = std::array<std::int16_t, 8>;

/// A plan with what it is sorted by.
struct Ranked {
  Values values;
  Order order;
  Measures measures;

  friend bool operator<(const Ranked& a, const Ranked& b) {
    return std::tie(a.values, a.order) < std::tie(b.values, b.order);
  }
};

/// A primary and final row, and what no plan with them beats.
struct Spot {
  Values values;
  int primary;
  int final;

  friend bool operator<(const Spot& a, const Spot& b) {
    return std::tie(a.values, a.primary, a.final) < std::tie(b.values, b.primary, b.final);
  }
};

class BestWalk {
 public:
  BestWalk(const Workspace& workspace, const BestQuery& query)
      : workspace_(workspace), query_(query), pairs_(workspace), drops_(pairs_, workspace.ShiftNe) {}

  std::vector<BestPlan> Walk() {
    for (const Spot& spot : Spots()) {
      if (IsFull() && spot.values > best_.front().values) break;
      Visit(spot);
    }
    std::sort_heap(best_.begin(), best_.end());
    std::vector<BestPlan> plans;
    for (const Ranked& ranked : best_) {
      BestPlan& plan = plans.emplace_back();
      plan.measures = ranked.measures;
      plan.rows.primary = ranked.order[0];
      plan.rows.final = ranked.order[1];
      for (int gear = 1; gear <= kGears; ++gear) plan.rows.gear[gear] = ranked.order[Place(gear)];
    }
    return plans;
  }

 private:
  /// Where the gear's row stands in an Order.
  static std::size_t Place(int gear) { return static_cast<std::size_t>(gear) + 1; }

  bool IsFull() const { return best_.size() >= static_cast<std::size_t>(query_.count); }

  /// All primary and final rows that some plan fits, the most promising first.
  std::vector<Spot> Spots() const {
    std::vector<Spot> spots;
    const int finals = FinalRowCount(workspace_);
    for (int primary = 1; primary <= workspace_.PrimaryCount; ++primary) {
      for (int final = 1; final <= finals; ++final) {
        const RowChoices choices(workspace_, pairs_, query_, primary, final);
        if (!choices.Fit()) continue;
        Measures least = choices.Least(0);
        least.changed += query_.costs.primary[primary] + query_.costs.final[final];
        spots.push_back({RankValues(query_.rank, least), primary, final});
      }
    }
    std::sort(spots.begin(), spots.end());
    return spots;
  }

  void Visit(const Spot& spot) {
    const RowChoices choices(workspace_, pairs_, query_, spot.primary, spot.final);
    choices_ = &choices;
    std::optional<StepBounds> steps;
    if (query_.rank == Rank::Steps) steps.emplace(drops_, pairs_, choices);
    steps_ = steps ? &*steps : nullptr;
    order_ = {static_cast<std::int16_t>(spot.primary), static_cast<std::int16_t>(spot.final)};
    Measures measures;
    measures.changed = query_.costs.primary[spot.primary] + query_.costs.final[spot.final];
    Choose(1, measures);
  }

  /// Tries the rows of `gear` and of those above it; `measures` are those of the gears below.
  void Choose(int gear, const Measures& below) {
    for (const RowChoice& choice : choices_->Of(gear)) {
      if (gear == 4 && !pairs_.Allows(order_[Place(3)], choice.row)) continue;
      order_[Place(gear)] = static_cast<std::int16_t>(choice.row);
      taken_[Place(gear)] = choice.pair;
      Measures measures = below;
      measures.miss = std::max(measures.miss, choice.miss);
      measures.sum += choice.miss;
      measures.changed += gear == 4 ? query_.costs.joint(order_[Place(3)], choice.row) : choice.cost;
      if (gear > 2) {
        measures.steps += drops_.Step(gear, taken_[Place(gear - 2)], taken_[Place(gear - 1)], choice.pair);
      }
      if (!IsPromising(gear, measures)) continue;
      if (gear == kGears) {
        Keep(measures);
      } else {
        Choose(gear + 1, measures);
      }
    }
  }

  /// Whether plans with the rows chosen up to `gear` may come among the best. Where they are at best equal in
  /// rank, the walking order of what is chosen decides.
  bool IsPromising(int gear, Measures measures) const {
    if (!IsFull()) return true;
    const Measures& rest = choices_->Least(gear);
    measures.miss = std::max(measures.miss, rest.miss);
    measures.sum += rest.sum;
    measures.changed += rest.changed;
    if (steps_ != nullptr && gear >= 2) {
      measures.steps += steps_->Least(gear, taken_[Place(gear - 1)], taken_[Place(gear)]);
    }
    const Values values = RankValues(query_.rank, measures);
    const Ranked& worst = best_.front();
    if (values != worst.values) return values < worst.values;
    const auto chosen = order_.begin() + static_cast<std::ptrdiff_t>(Place(gear)) + 1;
    return !std::lexicographical_compare(worst.order.begin(), worst.order.begin() + (chosen - order_.begin()),
                                         order_.begin(), chosen);
  }

  void Keep(const Measures& measures) {
    const Ranked ranked{RankValues(query_.rank, measures), order_, measures};
    if (IsFull()) {
      if (!(ranked < best_.front())) return;
      std::pop_heap(best_.begin(), best_.end());
      best_.pop_back();
    }
    best_.push_back(ranked);
    std::push_heap(best_.begin(), best_.end());
  }

  const Workspace& workspace_;
  const BestQuery& query_;
  PairTable pairs_;
  DropTable drops_;
  /// The best so far; the worst of them stands in front.
  std::vector<Ranked> best_;
  // Of the primary and final row in work.
  const RowChoices* choices_ = nullptr;
  const StepBounds* steps_ = nullptr;
  Order order_{};
  std::array<int, 8> taken_{};
};

}  // namespace

std::vector<BestPlan> FindBestPlans(const Workspace& workspace, const BestQuery& query) {
  return BestWalk(workspace, query).Walk();
}

}  // namespace veldrin
