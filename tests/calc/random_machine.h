// Random machines for the tests that hold a search against a plain loop: small, and rich in ties, holes,
// pairs that exclude each other and rows without teeth.
#pragma once

#include "tests/calc/plain_search.h"
#include "tests/calc/search_tables.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>

namespace veldrin {

class RandomMachine {
 public:
  explicit RandomMachine(std::uint32_t seed) : random_(seed) {}

  /// From `lowest` to `highest`, both included.
  int Pick(int lowest, int highest) {
    return lowest + static_cast<int>(random_() % static_cast<std::uint32_t>(highest - lowest + 1));
  }
  bool Chance(int percent) { return Pick(1, 100) <= percent; }

  Workspace Make() {
    Workspace workspace;
    workspace.MachineKey = "x";
    workspace.ShiftNe = static_cast<std::int16_t>(100 * Pick(50, 240));
    workspace.TyreLength = Chance(50) ? 2.0F : static_cast<float>(Pick(100, 300)) / 100;
    workspace.MinPlan = static_cast<std::int16_t>(Chance(60) ? 1 : Pick(-1, 35));
    MakeRatios(workspace);
    MakeGears(workspace);
    MakeMatrix(workspace);
    MakeRequests(workspace);
    return workspace;
  }

  /// A machine whose combinations can all be counted up: up to 8 primary and final rows, up to 3 rows a gear.
  Workspace MakeSmall() {
    Workspace workspace = Make();
    const auto atMost = [](std::int16_t& count, int limit) {
      count = static_cast<std::int16_t>(std::min<int>(count, limit));
    };
    atMost(workspace.PrimaryCount, 2);
    atMost(workspace.FinalDriveCount, 2);
    atMost(workspace.FinalDrivenCount, 2);
    atMost(workspace.GearRows, Chance(50) ? 2 : 3);
    return workspace;
  }

 private:
  void MakeRatios(Workspace& workspace) {
    workspace.PrimaryCount = static_cast<std::int16_t>(Pick(Chance(5) ? 0 : 1, 4));
    workspace.FinalDriveCount = static_cast<std::int16_t>(Pick(1, 5));
    workspace.FinalDrivenCount = static_cast<std::int16_t>(Pick(1, 8));
    // Equal ratios and whole ones are frequent, so that errors meet the tolerances exactly.
    const bool whole = Chance(40);
    for (int p = 1; p <= workspace.PrimaryCount; ++p) {
      SetRatio(workspace.PrimaryTable[p], whole ? 1 : Pick(18, 24), whole ? Pick(2, 3) : Pick(58, 64));
    }
    for (int f = 1; f <= workspace.FinalDriveCount * workspace.FinalDrivenCount; ++f) {
      SetRatio(workspace.FinalTable[f], whole ? Pick(1, 4) : Pick(13, 18), whole ? 4 : Pick(33, 46));
    }
  }

  void MakeGears(Workspace& workspace) {
    workspace.GearRows = static_cast<std::int16_t>(Chance(3) ? Pick(11, 14) : Pick(Chance(3) ? 0 : 1, 10));
    const int holes = Chance(30) ? 0 : Pick(0, 60);
    const bool ordered = Chance(50);
    const bool toothless = Chance(6);
    for (int gear = 1; gear <= kGears; ++gear) {
      int drive = Pick(12, 16);
      for (int row = 1; row <= std::min<int>(workspace.GearRows, kGearRowLimit); ++row) {
        drive = ordered ? drive + Pick(0, 2) : Pick(12, 30);
        const bool hole = Chance(holes);
        const int driven = toothless && Chance(4) ? 0 : Pick(28, 32) - 2 * gear;
        const int teeth = toothless && Chance(20) ? 0 : drive;
        SetPair(workspace, gear, row, hole ? "99" : std::to_string(row), teeth, driven);
      }
    }
  }

  void MakeMatrix(Workspace& workspace) {
    const int forbidden = Chance(50) ? 0 : Pick(0, 70);
    for (int third = 1; third <= kGearRowLimit; ++third) {
      for (int fourth = 1; fourth <= kGearRowLimit; ++fourth) {
        workspace.M34Matrix(third, fourth) = static_cast<std::int16_t>(Chance(forbidden) ? 99 : Pick(-1, 1));
      }
    }
  }

  /// Mostly near a plan that the machine can make.
  void MakeRequests(Workspace& workspace) {
    const int p = Pick(1, std::max<int>(1, workspace.PrimaryCount));
    const int f = Pick(1, workspace.FinalDriveCount * workspace.FinalDrivenCount);
    const int spread = Chance(50) ? 0 : Pick(0, 8);
    const int manyTypes = Pick(1, 100);
    for (int gear = 1; gear <= kGears; ++gear) {
      const int row = Pick(1, std::max(1, std::min<int>(workspace.GearRows, kGearRowLimit)));
      double speed = 0;
      Guarded([&] { speed = plain::GearSpeed(workspace, p, f, gear, row); });
      const double request = std::round(speed) + Pick(-spread, spread);
      workspace.SpeedRequest[gear] = static_cast<float>(manyTypes <= 4 ? Pick(10, 300) : request);
      workspace.ToleranceMinus[gear] = static_cast<std::int16_t>(Chance(60) ? 1 : Pick(1, 21));
      workspace.TolerancePlus[gear] = static_cast<std::int16_t>(Chance(60) ? 1 : Pick(1, 21));
    }
  }

  std::mt19937 random_;
};

}  // namespace veldrin
