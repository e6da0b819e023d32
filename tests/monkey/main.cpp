// monkey [--sequences N] [--seed S]: random users over all windows, judged by an oracle behind every action.
// A sequence that fails prints its numbers and itself as a script for veldrin-script. The exit status is 1
// when something was found, and when a long run never came to a place that it has to judge.
//
//   --sequence K  that one alone, told whatever it comes to     --most N  goes on up to N findings
//   --shrink      what fails, as short as it goes               --tally   tells where the users have been
//   FILE          the lines of a script under the oracle; no comments, no blocks of lines
#include "tests/monkey/random_user.h"
#include "tests/monkey/shrink.h"

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>

namespace veldrin::monkey {
namespace {

/// A run of this length comes everywhere.
constexpr std::uint64_t kLongRun = 2000;

struct Orders {
  std::uint64_t sequences = kLongRun;
  std::uint64_t seed = 1;
  /// One sequence alone, which is told whatever it comes to.
  std::optional<std::uint64_t> only;
  /// How many findings are told before the run stops.
  std::uint64_t most = 1;
  bool shrink = false;
  /// Tells where the users have been.
  bool tally = false;
  std::string file;
};

std::optional<Orders> ReadOrders(int count, char** arguments) {
  Orders orders;
  for (int i = 1; i < count; ++i) {
    const std::string word = arguments[i];
    const auto number = [&] { return i + 1 < count ? std::strtoull(arguments[++i], nullptr, 10) : 0; };
    if (word == "--sequences") {
      orders.sequences = number();
    } else if (word == "--seed") {
      orders.seed = number();
    } else if (word == "--sequence") {
      orders.only = number();
    } else if (word == "--most") {
      orders.most = number();
    } else if (word == "--shrink") {
      orders.shrink = true;
    } else if (word == "--tally") {
      orders.tally = true;
    } else if (word.starts_with("--")) {
      return std::nullopt;
    } else {
      orders.file = word;
    }
  }
  return orders;
}

/// Prints the outcome as a script, with what was found.
void Tell(const Outcome& outcome, const std::string& where) {
  std::cout << "# " << where << "\n";
  if (outcome.finding) std::cout << "# " << outcome.finding->rule << ": " << outcome.finding->text << "\n";
  for (const std::string& line : outcome.lines) std::cout << line << "\n";
  std::cout << std::endl;
}

std::vector<std::string> ReadLines(const std::string& file) {
  std::vector<std::string> lines;
  std::ifstream text(file);
  for (std::string line; std::getline(text, line);) {
    if (!line.empty() && line[0] != '#') lines.push_back(line);
  }
  return lines;
}

/// What the run came to.
class Run {
 public:
  explicit Run(const Orders& orders) : orders_(orders) {}

  void Judge(const Outcome& outcome, const std::string& where) {
    ++sequences_;
    for (const auto& [name, times] : outcome.landmarks) landmarks_[name] += times;
    if (outcome.finding) ++found_;
    if (outcome.finding || orders_.only) Tell(orders_.shrink ? Shrink(outcome) : outcome, where);
  }

  bool IsOver() const { return found_ >= orders_.most; }

  /// Gives the exit status.
  int Conclude() const {
    std::uint64_t missed = 0;
    for (const std::string& name : Missing(landmarks_)) {
      if (sequences_ < kLongRun) break;
      std::cout << "never came to: " << name << "\n";
      ++missed;
    }
    if (orders_.tally) {
      for (const auto& [name, times] : landmarks_) std::cout << times << "\t" << name << "\n";
    }
    std::cout << sequences_ << " sequences, " << found_ << " findings\n";
    return found_ == 0 && missed == 0 ? 0 : 1;
  }

 private:
  const Orders& orders_;
  Landmarks landmarks_;
  std::uint64_t sequences_ = 0;
  std::uint64_t found_ = 0;
};

int Walks(const Orders& orders) {
  Run run(orders);
  if (!orders.file.empty()) {
    run.Judge(Walk(Lines(ReadLines(orders.file))), orders.file);
    return run.Conclude();
  }
  const std::uint64_t first = orders.only.value_or(0);
  const std::uint64_t end = orders.only ? first + 1 : orders.sequences;
  for (std::uint64_t sequence = first; sequence < end && !run.IsOver(); ++sequence) {
    run.Judge(Walk(RandomUser(orders.seed, sequence)),
              "--seed " + std::to_string(orders.seed) + " --sequence " + std::to_string(sequence));
  }
  return run.Conclude();
}

}  // namespace
}  // namespace veldrin::monkey

int main(int count, char** arguments) {
  const auto orders = veldrin::monkey::ReadOrders(count, arguments);
  if (orders) return veldrin::monkey::Walks(*orders);
  std::cerr << "usage: monkey [--sequences N] [--seed S] [--sequence K] [--shrink] [--tally] [FILE]\n";
  return 2;
}
