// bench-best: how long the best plans take, on the largest tables that a list can fill and, beside the plain
// enumeration of all combinations, on a middle one.
//
// Prints the best of several rounds in milliseconds. Exit status 1 when the two disagree.
#include "calc/plan_search.h"
#include "plan/best/best_plans.h"
#include "tests/calc/plain_combinations.h"
#include "tests/calc/search_tables.h"

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <string>

namespace {

using namespace veldrin;

/// Primary and final rows and gear rows as given; neighbouring rows differ by a few per cent, as real ones
/// do.
Workspace Machine(int primaries, int drives, int drivens, int rows, bool alike) {
  Workspace workspace;
  workspace.ShiftNe = 13000;
  workspace.TyreLength = 1.9F;
  workspace.MinPlan = 1;
  workspace.PrimaryCount = static_cast<std::int16_t>(primaries);
  workspace.FinalDriveCount = static_cast<std::int16_t>(drives);
  workspace.FinalDrivenCount = static_cast<std::int16_t>(drivens);
  for (int p = 1; p <= primaries; ++p) SetRatio(workspace.PrimaryTable[p], 20, alike ? 62 : 55 + p);
  for (int f = 1; f <= drives * drivens; ++f) {
    SetRatio(workspace.FinalTable[f], alike ? 16 : 12 + f % drives, alike ? 40 : 31 + f / drives);
  }
  workspace.GearRows = static_cast<std::int16_t>(rows);
  for (int gear = 1; gear <= kGears; ++gear) {
    for (int row = 1; row <= rows; ++row) {
      SetPair(workspace, gear, row, std::to_string(row), 10 + 3 * gear + row, 30);
    }
    workspace.SpeedRequest[gear] = static_cast<float>(70 + 20 * gear);
  }
  for (int third = 1; third <= rows; ++third) {
    for (int fourth = 1; fourth <= rows; ++fourth) {
      if ((third * 7 + fourth * 3) % 5 == 0) workspace.M34Matrix(third, fourth) = kEndMark;
    }
  }
  return workspace;
}

template <class Work>
double Milliseconds(int rounds, const Work& work) {
  double best = 1e300;
  for (int round = 0; round < rounds; ++round) {
    const auto begin = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::milli> time = std::chrono::steady_clock::now() - begin;
    best = std::min(best, time.count());
  }
  return best;
}

BestQuery Query(Rank rank, std::optional<double> within, int count) {
  BestQuery query;
  query.rank = rank;
  query.within = within;
  query.count = count;
  for (int row = 2; row <= kPrimaryLimit; ++row) query.costs.primary[row] = 1;
  for (int row = 2; row <= kFinalLimit; ++row) query.costs.final[row] = 1 + row % 2;
  for (int row = 2; row <= kGearRowLimit; ++row) {
    for (const int gear : {1, 2, 5, 6}) query.costs.gear(gear, row) = 1;
  }
  for (int third = 1; third <= kGearRowLimit; ++third) {
    for (int fourth = 1; fourth <= kGearRowLimit; ++fourth) {
      query.costs.joint(third, fourth) = (third > 1) + (fourth > 1);
    }
  }
  return query;
}

struct Case {
  const char* name;
  Rank rank;
  std::optional<double> within;
  int count;
};

// clang-format off
constexpr Case kCases[] = {
    {"miss, 20",               Rank::Miss,   {},  20},
    {"miss, 1000",             Rank::Miss,   {},  1000},
    {"sum, 20",                Rank::Sum,    {},  20},
    {"steps within 5, 20",     Rank::Steps,  5,   20},
    {"steps, 20",              Rank::Steps,  {},  20},
    {"change within 5, 20",    Rank::Change, 5,   20},
    {"change, 20",             Rank::Change, {},  20},
};
// clang-format on

void MeasureWorst(const char* name, const Workspace& workspace) {
  Workspace searched = workspace;
  // Nothing reaches this, so all passes are made.
  searched.SpeedRequest[6] = 5000;
  const double search = Milliseconds(15, [&] { SearchAuto(searched, 0, [](int) {}); });
  std::printf("%-28s %10.3f ms, the search\n", name, search);
  for (const Case& c : kCases) {
    const BestQuery query = Query(c.rank, c.within, c.count);
    std::size_t found = 0;
    const double time = Milliseconds(5, [&] { found = FindBestPlans(workspace, query).size(); });
    std::printf("  %-26s %10.3f ms, %zu plans\n", c.name, time, found);
  }
}

/// The rule of the rank "miss", by trying all.
std::vector<PlanRows> ByTrying(const Workspace& workspace, std::size_t count) {
  using Key = std::tuple<std::int64_t, std::int64_t, std::array<std::int16_t, 8>>;
  std::vector<std::pair<Key, PlanRows>> best;
  plain::ForEachCombination(workspace, [&](const plain::Combination& combination) {
    if (!plain::CanBeFitted(workspace, combination.rows)) return;
    std::int64_t miss = 0;
    std::int64_t sum = 0;
    for (int gear = 1; gear <= kGears; ++gear) {
      const std::int64_t units = MissUnits(combination.error[gear]);
      miss = std::max(miss, units);
      sum += units;
    }
    const Key key{miss, sum, WalkingOrder(combination.rows)};
    if (best.size() == count && !(key < best.back().first)) return;
    const auto place = std::upper_bound(best.begin(), best.end(), key,
                                        [](const Key& k, const auto& entry) { return k < entry.first; });
    best.insert(place, {key, combination.rows});
    if (best.size() > count) best.pop_back();
  });
  std::vector<PlanRows> plans;
  for (const auto& [key, rows] : best) plans.push_back(rows);
  return plans;
}

bool MeasureMiddle() {
  const Workspace workspace = Machine(4, 5, 12, 6, false);
  const BestQuery query = Query(Rank::Miss, {}, 20);
  std::vector<PlanRows> tried;
  std::vector<BestPlan> found;
  const double trying = Milliseconds(1, [&] { tried = ByTrying(workspace, 20); });
  const double bounds = Milliseconds(15, [&] { found = FindBestPlans(workspace, query); });
  std::printf("%-28s %10.3f ms, all tried\n", "4 x 60 x 6^6", trying);
  std::printf("  %-26s %10.3f ms, %.0f times faster\n", "miss, 20", bounds, trying / bounds);
  if (found.size() != tried.size()) return false;
  for (std::size_t k = 0; k < found.size(); ++k) {
    if (ListText(found[k].rows) != ListText(tried[k])) return false;
  }
  return true;
}

}  // namespace

int main() {
  MeasureWorst("8 x 200 x 10^6", Machine(8, 10, 20, 10, false));
  MeasureWorst("the same, ratios alike", Machine(8, 10, 20, 10, true));
  if (MeasureMiddle()) return 0;
  std::fprintf(stderr, "bench-best: the two disagree\n");
  return 1;
}
