#include "model/ratio_sort.h"

#include <cmath>
#include <random>
#include <utility>

namespace veldrin {

namespace {

/// The next number of the generator, in [0, 1).
double NextRandom(std::uint32_t& state) {
  std::minstd_rand generator(state);
  state = static_cast<std::uint32_t>(generator());
  return static_cast<double>(state - std::minstd_rand::min()) /
         (static_cast<double>(std::minstd_rand::max() - std::minstd_rand::min()) + 1);
}

float Key(const RatioRow& row) {
  return static_cast<float>(row.Ratio);
}

/// Puts the rows above the pivot behind those that are not, and gives the place of the border.
int Partition(const RowAt& rowAt, int first, int last, std::uint32_t& random) {
  const int pivot = static_cast<int>(std::floor(NextRandom(random) * (last - first + 1) + first));
  SwapRatioRows(rowAt(last), rowAt(pivot));
  const float key = Key(rowAt(last));
  while (true) {
    int i = first;
    int j = last;
    while (i < j && Key(rowAt(i)) <= key) ++i;
    while (i < j && Key(rowAt(j)) >= key) --j;
    if (i >= j) {
      SwapRatioRows(rowAt(i), rowAt(last));
      return i;
    }
    SwapRatioRows(rowAt(i), rowAt(j));
  }
}

}  // namespace

void SwapRatioRows(RatioRow& a, RatioRow& b) {
  std::swap(a.Ratio, b.Ratio);
  std::swap(a.Drive, b.Drive);
  std::swap(a.Driven, b.Driven);
  std::swap(a.Text, b.Text);
}

void SortRatioRows(const RowAt& rowAt, int first, int last, std::uint32_t& random) {
  if (first >= last) return;
  if (last - first == 1) {
    if (rowAt(first).Ratio > rowAt(last).Ratio) SwapRatioRows(rowAt(first), rowAt(last));
    return;
  }
  const int border = Partition(rowAt, first, last, random);
  // The shorter side first keeps the nesting shallow.
  if (border - first >= last - border) {
    SortRatioRows(rowAt, border + 1, last, random);
    SortRatioRows(rowAt, first, border - 1, random);
  } else {
    SortRatioRows(rowAt, first, border - 1, random);
    SortRatioRows(rowAt, border + 1, last, random);
  }
}

}  // namespace veldrin
