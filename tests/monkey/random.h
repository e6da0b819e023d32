// The one source of chance of a sequence: the same numbers give the same sequence on every system. Bytes can
// take the place of chance, two for each decision, so that a fuzzer leads the user.
#pragma once

#include <cstddef>
#include <cstdint>
#include <numeric>
#include <random>
#include <utility>
#include <vector>

namespace veldrin::monkey {

class Random {
 public:
  Random(std::uint64_t seed, std::uint64_t sequence) : engine_(seed * 0x9E3779B97F4A7C15U + sequence) {}
  /// Where the bytes are at their end, chance goes on, always the same.
  explicit Random(std::vector<std::uint8_t> bytes) : bytes_(std::move(bytes)) {}

  /// From 0 to `count` - 1.
  int Below(int count) { return static_cast<int>(Next() % static_cast<std::uint64_t>(count)); }
  /// From `lowest` to `highest`, both included.
  int Between(int lowest, int highest) { return lowest + Below(highest - lowest + 1); }
  /// True in `percent` of 100 cases.
  bool Chance(int percent) { return Below(100) < percent; }

  /// One of the choices, each as likely as the others.
  template <class T>
  const T& Pick(const std::vector<T>& choices) {
    return choices[static_cast<std::size_t>(Below(static_cast<int>(choices.size())))];
  }

  /// A subscript of `weights`, as likely as its weight; -1 where all are 0.
  int Weighted(const std::vector<int>& weights) {
    const int total = std::accumulate(weights.begin(), weights.end(), 0);
    if (total == 0) return -1;
    int left = Below(total);
    int place = 0;
    while (left >= weights[static_cast<std::size_t>(place)]) {
      left -= weights[static_cast<std::size_t>(place)];
      ++place;
    }
    return place;
  }

 private:
  std::uint64_t Next() {
    if (bytes_.size() - at_ < 2) return engine_();
    at_ += 2;
    return bytes_[at_ - 2] * 256U + bytes_[at_ - 1];
  }

  std::mt19937_64 engine_;
  std::vector<std::uint8_t> bytes_;
  std::size_t at_ = 0;
};

}  // namespace veldrin::monkey
