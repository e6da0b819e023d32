#include "calc/gear_errors.h"

#include "calc/gear_speed.h"

#include <algorithm>

namespace veldrin {

namespace {

constexpr float kLastPlaces = 4e-7F;  // of three roundings to 32 bits, and more
constexpr float kMostSlack = 1;       // km/h

}  // namespace

GearErrors::GearErrors(const GearPairs& pairs, const GearBounds& bounds, float request)
    : pairs_(pairs), bounds_(bounds), request_(request) {
  lowest_ = static_cast<float>(-std::min<double>(bounds.below, kFarAway / 2));
  highest_ = static_cast<float>(std::min<double>(bounds.above, kFarAway / 2));
  if (pairs.count == 0) return;
  for (std::size_t k = 0; k < kLaneBlocks * kLanes; ++k) {
    const std::size_t pair = k < static_cast<std::size_t>(pairs.count) ? k : 0;
    const auto factor = static_cast<float>(GearSpeedOf(1, pairs.drive[pair], pairs.driven[pair]));
    factors_[k / kLanes][k % kLanes] = factor;
    largestFactor_ = std::max(largestFactor_, std::fabs(factor));
  }
}

void GearErrors::Estimate(double speedBeforeGear) {
  speedBeforeGear_ = speedBeforeGear;
  if (pairs_.count == 0) return;
  const auto speed = static_cast<float>(speedBeforeGear);
  const auto request = static_cast<float>(request_);
  slack_ = kLastPlaces * (std::fabs(request) + std::fabs(speed) * largestFactor_ + 1);
  if (!(slack_ < kMostSlack)) {
    MakeExact();
    return;
  }
  for (std::size_t block = 0; block < kLaneBlocks; ++block)
    errors_[block] = factors_[block] * speed - request;
  Measure();
}

ExactPair GearErrors::Exact(int k) const {
  const auto at = static_cast<std::size_t>(k);
  const double speed = GearSpeedOf(speedBeforeGear_, pairs_.drive[at], pairs_.driven[at]);
  return {k, static_cast<float>(speed), static_cast<float>(speed - request_)};
}

ExactPair GearErrors::Nearest(bool keepsBounds) const {
  const float near = (keepsBounds ? heldMiss_ : miss_) + 2 * slack_;
  ExactPair nearest;
  for (int k = 0; k < pairs_.count; ++k) {
    if (Miss(k) > near || !MayTake(k, keepsBounds)) continue;
    const ExactPair pair = Exact(k);
    if (nearest.pair < 0 || std::fabs(pair.error) < std::fabs(nearest.error)) nearest = pair;
  }
  return nearest;
}

void GearErrors::MakeExact() {
  if (slack_ == 0) return;
  for (std::size_t k = 0; k < kLaneBlocks * kLanes; ++k) {
    const bool isPair = k < static_cast<std::size_t>(pairs_.count);
    errors_[k / kLanes][k % kLanes] = Exact(isPair ? static_cast<int>(k) : 0).error;
  }
  slack_ = 0;
  Measure();
}

void GearErrors::Measure() {
  const float maybeMet = MaybeMet();
  Lanes miss = kFarLanes;
  Lanes heldMiss = kFarLanes;
  Lanes below = kFarLanes;
  Lanes above = kFarLanes;
  LaneBits inBounds{};
  LaneBits nextToBound{};
  for (const Lanes& error : errors_) {
    const Lanes distance = Magnitude(error);
    const LaneBits within = (error >= lowest_) & (error <= highest_);
    const Lanes held = within ? distance : kFarLanes;
    const Lanes under = error <= maybeMet ? distance : kFarLanes;
    const Lanes over = error >= -maybeMet ? distance : kFarLanes;
    miss = distance < miss ? distance : miss;
    heldMiss = held < heldMiss ? held : heldMiss;
    below = under < below ? under : below;
    above = over < above ? over : above;
    inBounds |= within;
    nextToBound |= (Magnitude(error - lowest_) < slack_) | (Magnitude(error - highest_) < slack_);
  }
  if (Any(nextToBound)) {
    MakeExact();
    return;
  }
  miss_ = Least(miss);
  heldMiss_ = Least(heldMiss);
  nearestBelow_ = Least(below) - slack_;
  nearestAbove_ = Least(above) - slack_;
  inBounds_ = Any(inBounds);
}

}  // namespace veldrin
