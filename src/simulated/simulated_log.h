// What the simulated machine was asked, one line each, and how often it beeped and flashed.
//
//   beep                               print-dialog ok COPIES | cancel | error N
//   box ICON "TITLE" "TEXT" ANSWER     colour-dialog R,G,B R,G,B | R,G,B cancel
//   sound PATH                         run COMMAND
//   flash WINDOW                       fault NUMBER
//
// Texts stand in it with their own line ends, so a line of the log may hold several lines of text.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace veldrin {

struct SimulatedLog {
  std::vector<std::string> lines;
  /// Since the machine's start; emptying the lines does not touch them.
  int beeps = 0;
  int flashes = 0;

  void Add(std::string line) { lines.push_back(std::move(line)); }

  /// All lines, joined by LF.
  std::string Text() const {
    std::string text;
    for (const std::string& line : lines) text += (&line == &lines.front() ? "" : "\n") + line;
    return text;
  }
};

}  // namespace veldrin
