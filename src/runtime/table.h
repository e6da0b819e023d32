// Tables with the program's own subscripts. Most start at 1; a subscript outside the declared range is
// fault 9, never undefined behaviour.
#pragma once

#include "runtime/fault.h"

#include <array>

namespace veldrin {

/// A row of elements with the subscripts First to Last.
template <class T, int First, int Last>
class Table {
 public:
  static constexpr int kFirst = First;
  static constexpr int kLast = Last;

  /// The element at `index`. Raises fault 9 outside First..Last.
  T& operator[](int index) { return elements_[Offset(index)]; }
  const T& operator[](int index) const { return elements_[Offset(index)]; }

  /// Every element becomes what an untouched one is: zero, or the empty text.
  void Clear() { elements_ = {}; }

 private:
  static std::size_t Offset(int index) {
    if (index < First || index > Last) Raise(kFaultSubscript);
    return static_cast<std::size_t>(index - First);
  }

  std::array<T, Last - First + 1> elements_{};
};

/// A table of two subscripts, 1..Rows and 1..Columns.
template <class T, int Rows, int Columns>
class Grid2D {
 public:
  static constexpr int kRows = Rows;
  static constexpr int kColumns = Columns;

  /// The element at (row, column). Raises fault 9 when either is outside.
  T& operator()(int row, int column) { return elements_[row][column]; }
  const T& operator()(int row, int column) const { return elements_[row][column]; }

  /// Every element becomes zero, or the empty text.
  void Clear() { elements_.Clear(); }

 private:
  Table<Table<T, 1, Columns>, 1, Rows> elements_;
};

}  // namespace veldrin
