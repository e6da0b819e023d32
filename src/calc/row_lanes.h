// The rows of a gear side by side, four to a step of the processor.
//
// What the rule asks of a row is a product, a division and a product in 64 bits. Here a row is one product of
// 32 bits with a factor computed beforehand, off by a few last places: enough to tell in which pass the
// gear's nearest row is admitted, but where that row lies next to a bound. Those are left to the rule, so
// that what comes out is the rule's.
#pragma once

#include "calc/lanes.h"
#include "calc/pairs_of_gear.h"
#include "calc/pass_rule.h"

#include <array>

namespace veldrin {

class RowLanes {
 public:
  static constexpr int kAskRule = 0;

  RowLanes() = default;
  /// The rows of a gear under its rule.
  RowLanes(const GearPairs& pairs, const PassRule& rule, double request);

  /// The largest part of the speed for which no row can be beyond 32 bits; less than 0 where that cannot be
  /// said.
  double Most() const { return most_; }

  /// The first pass that admits a row of the gear, at the part of its speed that all rows share. kAskRule
  /// where the rule has to be asked row by row: a row lies next to a bound, has no teeth, or may be beyond 32
  /// bits.
  int FirstPass(double speedBeforeGear) const {
    if (!(speedBeforeGear <= most_ && speedBeforeGear >= -most_)) return kAskRule;
    return widensAlike_ ? PassOf(NearestToMiddle(speedBeforeGear))
                        : PassOf(NearestToEitherBound(speedBeforeGear));
  }

 private:
  /// How far the bounds have to move for the nearest row, where both may move equally far.
  float NearestToMiddle(double speedBeforeGear) const {
    const float speed = static_cast<float>(speedBeforeGear);
    Lanes least = kFarLanes;
    for (std::size_t block = 0; block < kLaneBlocks; ++block) {
      const Lanes off = factors_[block] * speed - middle_;
      const Lanes distance = Magnitude(off);
      least = distance < least ? distance : least;
    }
    return Least(least) - half_;
  }

  /// The same where the upper bound may move less.
  float NearestToEitherBound(double speedBeforeGear) const {
    const float speed = static_cast<float>(speedBeforeGear);
    Lanes least = kFarLanes;
    for (std::size_t block = 0; block < kLaneBlocks; ++block) {
      const Lanes off = factors_[block] * speed - middle_;
      const Lanes under = -off - half_;
      const Lanes over = off - half_;
      const Lanes reached = over > mostOver_ ? kFarLanes : over;
      const Lanes beyond = under > reached ? under : reached;
      least = beyond < least ? beyond : least;
    }
    return Least(least);
  }

  int PassOf(float beyond) const {
    if (beyond > mostBeyond_) return kNoPass;
    if (beyond < -slack_) return 1;
    const int whole = static_cast<int>(beyond);
    const float part = beyond - static_cast<float>(whole);
    // Bounds are whole numbers.
    if (part < slack_ || part > 1 - slack_) return kAskRule;
    return whole + 2;
  }

  std::array<Lanes, kLaneBlocks> factors_{};
  bool widensAlike_ = true;
  float middle_ = 0;  // km/h, speed in the middle of the first pass's bounds
  float half_ = 0;    // km/h, from there to either bound
  // In km/h, beyond these bounds:
  float mostOver_ = 0;    // what no pass admits above
  float mostBeyond_ = 0;  // what no pass admits at all
  float slack_ = 0;       // what is too near to a bound to be told
  double most_ = -1;      // of the speed before the gear; less than 0 where the rule is to be asked
};

}  // namespace veldrin
