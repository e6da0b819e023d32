// How far the pairs of a gear lie from its request, at one primary and final row: estimated for all pairs at
// once, and by the rule where somebody has to know exactly.
#pragma once

#include "calc/lanes.h"
#include "calc/pairs_of_gear.h"
#include "calc/search_bounds.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace veldrin {

/// A pair by its place, and its error by the rule.
struct ExactPair {
  int pair = -1;  // -1 for none
  float speed = 0;
  float error = 0;  // km/h, speed less request
};

class GearErrors {
 public:
  GearErrors() = default;
  GearErrors(const GearPairs& pairs, const GearBounds& bounds, float request);

  /// Looks at the pairs anew: `speedBeforeGear` is the part of their speeds that they share.
  void Estimate(double speedBeforeGear);
  /// From here to the next estimate all is by the rule.
  void MakeExact();

  const GearPairs& Pairs() const { return pairs_; }
  bool Holds() const { return bounds_.held; }

  /// What the misses below may be off, in km/h; 0 where they are exact.
  float Slack() const { return slack_; }
  /// The smallest miss of a pair, and of one that keeps the bounds where the gear is held; kFarAway for none.
  float Miss() const { return miss_; }
  float HeldMiss() const { return bounds_.held ? heldMiss_ : miss_; }
  /// Whether a pair keeps the bounds, by the rule.
  bool InBounds() const { return inBounds_; }

  /// A pair, 0 and up, by the rule.
  ExactPair Exact(int k) const;
  /// The nearest pair, by the rule; of equal ones the first. There is one that may be taken.
  ExactPair Nearest(bool keepsBounds) const;

  // Of a single pair; by the rule after MakeExact.
  float Error(int k) const {
    return errors_[static_cast<std::size_t>(k) / kLanes][static_cast<std::size_t>(k) % kLanes];
  }
  float Miss(int k) const { return std::fabs(Error(k)); }
  /// Whether the pair's error is a number of use, and within the bounds where these are to be kept.
  bool MayTake(int k, bool keepsBounds) const {
    return Miss(k) < kFarAway && (!keepsBounds || bounds_.Hold(Error(k)));
  }

  /// Whether a pair may lie nearer to the request than these misses, by which it was reached from below and
  /// above.
  bool MayReachNearer(float below, float above) const {
    return nearestBelow_ < below || nearestAbove_ < above;
  }
  /// Whether this pair may.
  bool MayReachNearer(int k, float below, float above) const {
    const float nearest = Miss(k) - slack_;
    return (Error(k) <= MaybeMet() && nearest < below) || (Error(k) >= -MaybeMet() && nearest < above);
  }

 private:
  void Measure();
  /// Speeds that equal the request in 32 bits are both below and above it.
  float MaybeMet() const { return slack_ + 1e-3F; }

  GearPairs pairs_;
  GearBounds bounds_;
  double request_ = 0;
  float lowest_ = 0;   // the bounds as errors
  float highest_ = 0;  //
  std::array<Lanes, kLaneBlocks> factors_{};
  float largestFactor_ = 0;

  double speedBeforeGear_ = 0;
  /// Places behind the last pair repeat the first.
  std::array<Lanes, kLaneBlocks> errors_{};
  float slack_ = 0;
  float miss_ = kFarAway;
  float heldMiss_ = kFarAway;
  float nearestBelow_ = kFarAway;
  float nearestAbove_ = kFarAway;
  bool inBounds_ = false;
};

}  // namespace veldrin
