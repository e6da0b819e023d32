// monkey [--sequences N] [--seed S] [--sequence K] [--shrink]: random users over all windows, judged by an
// oracle behind every action. A sequence that fails prints its numbers and itself as a script for
// veldrin-script;
// --sequence K repeats that one alone, and --shrink makes it as short as it goes. "monkey FILE" walks the
// lines of a script under the oracle. The exit status is 1 when something was found.
#include "tests/monkey/random_user.h"
#include "tests/monkey/shrink.h"

#include <chrono>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <map>

namespace veldrin::monkey {
namespace {

struct Orders {
  std::uint64_t sequences = 2000;
  std::uint64_t seed = 1;
  std::optional<std::uint64_t> only;
  bool shrink = false;
  /// How many findings are told before the run stops.
  std::uint64_t most = 1;
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
    } else if (word.starts_with("--")) {
      return std::nullopt;
    } else {
      orders.file = word;
    }
  }
  return orders;
}

void Tell(const Outcome& outcome, const std::string& where) {
  std::cout << "# " << where << "\n# " << outcome.finding->rule << ": " << outcome.finding->text << "\n";
  for (const std::string& line : outcome.lines) std::cout << line << "\n";
  std::cout << std::endl;
}

/// Tells the outcome where something was found.
bool Judge(const Outcome& outcome, const Orders& orders, const std::string& where) {
  if (!outcome.finding) return true;
  Tell(orders.shrink ? Shrink(outcome) : outcome, where);
  return false;
}

std::vector<std::string> ReadLines(const std::string& file) {
  std::vector<std::string> lines;
  std::ifstream text(file);
  for (std::string line; std::getline(text, line);) {
    if (!line.empty() && line[0] != '#') lines.push_back(line);
  }
  return lines;
}

int Run(const Orders& orders) {
  if (!orders.file.empty()) return Judge(Walk(Lines(ReadLines(orders.file))), orders, orders.file) ? 0 : 1;
  const std::uint64_t first = orders.only.value_or(0);
  const std::uint64_t end = orders.only ? first + 1 : orders.sequences;
  std::uint64_t found = 0;
  std::uint64_t lines = 0;
  for (std::uint64_t sequence = first; sequence < end && found < orders.most; ++sequence) {
    const Outcome outcome = Walk(RandomUser(orders.seed, sequence));
    lines += outcome.lines.size();
    const std::string where =
        "--seed " + std::to_string(orders.seed) + " --sequence " + std::to_string(sequence);
    if (!Judge(outcome, orders, where)) ++found;
  }
  std::cout << end - first << " sequences, " << lines << " lines, " << found << " findings\n";
  return found == 0 ? 0 : 1;
}

}  // namespace
}  // namespace veldrin::monkey

int main(int count, char** arguments) {
  const auto orders = veldrin::monkey::ReadOrders(count, arguments);
  if (orders) return veldrin::monkey::Run(*orders);
  std::cerr << "usage: monkey [--sequences N] [--seed S] [--sequence K] [--shrink] [FILE]\n";
  return 2;
}
