// Which gears stand in each other's way: sets of gears that no combination brings within their bounds
// together.
#pragma once

#include <array>
#include <vector>

namespace veldrin {

/// Gears that no combination brings within their bounds at the same time, though each smaller set of them can
/// be. One gear alone: no combination brings it there.
struct Conflict {
  std::vector<int> gears;  // ascending
  /// Whether there are such combinations, but only with pairs of 3rd and 4th gear that exclude each other.
  bool forbiddenPairs = false;
};

/// Told of every primary and final row which gears have a pair within their bounds.
class GearConflicts {
 public:
  static constexpr int Bit(int gear) { return 1 << (gear - 1); }

  /// `inBounds` is the sum of the gears' bits. `hasAllowedPair` tells whether 3rd and 4th gear have pairs
  /// within their bounds that can be fitted together; it is asked only where both are within them.
  template <class HasAllowedPair>
  void Note(int inBounds, const HasAllowedPair& hasAllowedPair) {
    constexpr int both = Bit(3) | Bit(4);
    if ((inBounds & both) == both && !seen_[Index(inBounds | kAllowed)] && hasAllowedPair()) {
      inBounds |= kAllowed;
    }
    seen_[Index(inBounds)] = true;
  }

  /// The smallest sets that were never within their bounds together, all of the same number of gears; none
  /// when all six were, with pairs of 3rd and 4th gear that can be fitted together.
  std::vector<Conflict> Smallest() const;

 private:
  /// Beside the gears' bits: pairs of 3rd and 4th gear that can be fitted together.
  static constexpr int kAllowed = 1 << 6;
  static constexpr int kSets = 1 << 7;

  static std::size_t Index(int set) { return static_cast<std::size_t>(set); }

  std::array<bool, kSets> seen_{};
};

}  // namespace veldrin
