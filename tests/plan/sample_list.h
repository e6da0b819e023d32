// Small lists without faults for the tests of the planner; one of them to be damaged line by line.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace veldrin {

/// At 5000 rev/min and 1 m gear g of this list runs 20 + 20 g km/h with its one pair.
inline constexpr char kPlainList[] =
    "LIST\nPLAIN\nFINAL-DRIVE\n20,99\nFINAL-DRIVEN\n20,99\nROWS,1,PRIMARY\n20,60\n99\n-\n-\n"
    "1A,40,100,\"2,A\",60,100,3\"A,80,100,変速,100,100,5A,120,100,6A,140,100\nM34-ARRAY\n0\n"
    "TYRE_L=1\nSHIFT_NE=5000\n";

/// A list by its lines, counted from 1.
class SampleList {
 public:
  std::string& operator[](int line) { return lines_.at(static_cast<std::size_t>(line - 1)); }
  void Erase(int line) { lines_.erase(lines_.begin() + (line - 1)); }
  void Insert(int line, const std::string& text) { lines_.insert(lines_.begin() + (line - 1), text); }

  /// A gear row whose pairs bear the number `row` (2..9): the higher, the taller.
  static std::string GearRow(int row) {
    std::string text;
    const char* const driven[] = {"130", "100", "86", "76", "68", "62"};
    for (int gear = 1; gear <= 6; ++gear) {
      const std::string number = std::to_string(gear) + "." + std::to_string(row);
      text += (gear > 1 ? "," : "") + number + ",7" + std::to_string(row) + "," + driven[gear - 1];
    }
    return text;
  }

  std::string Text(const std::string& lineEnd = "\n") const {
    std::string text;
    for (const std::string& line : lines_) text += line + lineEnd;
    return text;
  }

 private:
  std::vector<std::string> lines_ = {
      "LIST",                                                        // 1
      "TEST",                                                        // 2
      "FINAL-DRIVE",                                                 // 3
      "14,15,99",                                                    // 4
      "FINAL-DRIVEN",                                                // 5
      "36,40,99",                                                    // 6
      "GEAR-ROWS,2,PRIMARY",                                         // 7
      "20,60",                                                       // 8
      "99",                                                          // 9
      "a heading",                                                   // 10
      "another",                                                     // 11
      "1A,14,29,2A,17,26,3A,19,24,4A,22,24,5A,26,25,6A,23,21",       // 12
      "1B,15,28,99,99,99,3B,20,25,\"4B\", 25,27,5B,24,23,6B,27,24",  // 13
      "M34-ARRAY",                                                   // 14
      " 0, 0",                                                       // 15
      " 0,99",                                                       // 16
      "TYRE_L=1.95",                                                 // 17
      "SHIFT_NE=12500",                                              // 18
  };
};

/// Eleven gear rows are announced, and the ten that the tables hold are there.
inline SampleList TallList() {
  SampleList list;
  list[7] = "GEAR-ROWS,11,PRIMARY";
  list.Erase(16);
  list[15] = "0,0,0,0,0,0,0,0,0,0";
  for (int row = 2; row <= 10; ++row) list[15] += "\n0,0,0,0,0,0,0,0,0,0";
  for (int row = 9; row >= 2; --row) list.Insert(14, SampleList::GearRow(row));
  return list;
}

}  // namespace veldrin
