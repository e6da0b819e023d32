// Four numbers of 32 bits to a step of the processor, in the compiler's own spelling.
#pragma once

#include "model/limits.h"

#include <bit>
#include <cstddef>

namespace veldrin {

inline constexpr std::size_t kLanes = 4;
/// Steps for the rows of a gear.
inline constexpr std::size_t kLaneBlocks = (kGearRowLimit + kLanes - 1) / kLanes;

using Lanes [[gnu::vector_size(kLanes * sizeof(float))]] = float;
/// What comparisons of lanes give: all bits set, or none.
using LaneBits [[gnu::vector_size(kLanes * sizeof(int))]] = int;

/// Farther than any miss.
inline constexpr float kFarAway = 1e30F;
inline constexpr Lanes kFarLanes = {kFarAway, kFarAway, kFarAway, kFarAway};

/// Without the signs, whose bit is the highest.
inline Lanes Magnitude(const Lanes& lanes) {
  return std::bit_cast<Lanes>(std::bit_cast<LaneBits>(lanes) & 0x7FFFFFFF);
}

inline float Least(const Lanes& lanes) {
  const float one = lanes[0] < lanes[1] ? lanes[0] : lanes[1];
  const float other = lanes[2] < lanes[3] ? lanes[2] : lanes[3];
  return one < other ? one : other;
}

inline bool Any(const LaneBits& bits) {
  return (bits[0] | bits[1] | bits[2] | bits[3]) != 0;
}

}  // namespace veldrin
