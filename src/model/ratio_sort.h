// The sort of the primary and of the final table.
#pragma once

#include "model/workspace.h"

#include <cstdint>
#include <functional>

namespace veldrin {

/// A row of the table being sorted, by its subscript.
using RowAt = std::function<RatioRow&(int row)>;

/// Exchanges all fields of the two rows.
void SwapRatioRows(RatioRow& a, RatioRow& b);

/// Sorts the rows `first` to `last` by `Ratio` ascending: a quicksort whose pivots come from `random`, the
/// state of a generator that is never seeded. Ratios that are equal as 32-bit floats count as equal, and
/// such rows end up in no defined order. Raises what `rowAt` raises.
void SortRatioRows(const RowAt& rowAt, int first, int last, std::uint32_t& random);

}  // namespace veldrin
