// The planner as a whole: files on the disk, what it prints, and its exit status.
#pragma once

#include "plan/planner.h"
#include "platform/system_code_pages.h"
#include "tests/plan/sample_list.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>
#include <string>
#include <vector>

namespace veldrin {

namespace fs = std::filesystem;

using Words = std::vector<std::string>;

/// What is written of the planner outside of it, such as "man/man1/veldrin-plan.1".
inline std::string Documented(const char* path) {
  std::ifstream file(fs::path(VELDRIN_SHARE) / ".." / path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

class Planner : public testing::Test {
 protected:
  Planner() { fs::create_directories(folder_); }
  ~Planner() override { fs::remove_all(folder_); }

  std::string File(const std::string& name, const std::string& text) {
    const fs::path path = folder_ / PathOf(name);
    std::ofstream(path, std::ios::binary) << text;
    return Utf8(path);
  }
  static std::string Sample(const char* name) { return (fs::path(VELDRIN_SHARE) / "LIST" / name).string(); }
  static std::string TextOf(const std::string& path) {
    std::ifstream file(PathOf(path), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
  }

  /// The planner's texts are UTF-8; not every system's paths are.
  static fs::path PathOf(const std::string& text) { return std::u8string(text.begin(), text.end()); }
  static std::string Utf8(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
  }

  /// Runs the planner; what it prints stands in `out` and `errors`.
  int Run(const Words& words) {
    std::ostringstream outStream;
    std::ostringstream errorStream;
    const int status = RunPlanner(words, pages, outStream, errorStream);
    out = outStream.str();
    errors = errorStream.str();
    return status;
  }
  int Search(const std::string& path, const std::string& speeds, const Words& more = {}) {
    Words words = {path, "--speed", speeds};
    words.insert(words.end(), more.begin(), more.end());
    return Run(words);
  }
  int ErrorLines() const { return static_cast<int>(std::count(errors.begin(), errors.end(), '\n')); }

  CodePages pages = SystemCodePages(false);
  std::string out;
  std::string errors;

  const fs::path folder_ =
      fs::path(testing::TempDir()) /
      (std::string("veldrin-plan-") + std::to_string(reinterpret_cast<std::uintptr_t>(this)) +
       testing::UnitTest::GetInstance()->current_test_info()->name());
};

}  // namespace veldrin
