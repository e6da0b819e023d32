// Where the program's folder is looked for by the variables of this system.
#include "plan/files/bad_input.h"
#include "plan/present/list_finder.h"
#include "tests/plan/planner_fixture.h"

#include <cstdlib>
#include <map>
#include <optional>

namespace veldrin {
namespace {

class ListFinder : public Planner {
 protected:
  ListFinder() {
    for (const char* name : {"VELDRIN_HOME", "XDG_DATA_HOME", "HOME"}) {
      const char* const value = std::getenv(name);
      before_[name] = value == nullptr ? std::nullopt : std::optional<std::string>(value);
      unsetenv(name);
    }
  }
  ~ListFinder() override {
    for (const auto& [name, value] : before_) {
      value ? setenv(name.c_str(), value->c_str(), 1) : unsetenv(name.c_str());
    }
  }

  /// The folder by this name has a list.
  std::string WithList(const std::string& folder) {
    fs::create_directories(folder_ / folder);
    return File(folder + "/NX4.RAT", "LIST\r\n");
  }
  std::string PathIn(const std::string& folder) { return (folder_ / folder).string(); }

  const std::string plan_ = (fs::create_directories(folder_ / "a/b"), File("a/b/DRY.nx4", ""));

 private:
  std::map<std::string, std::optional<std::string>> before_;
};

TEST_F(ListFinder, LooksBesideThePlanThenWhereTheUserHasTheProgram) {
  EXPECT_THROW(FindListOf(plan_, "NX4"), BadInput);
  const std::string ofHome = WithList("home/.local/share/veldrin/LIST");
  setenv("HOME", PathIn("home").c_str(), 1);
  EXPECT_EQ(FindListOf(plan_, "NX4"), ofHome);
  const std::string ofData = WithList("data/veldrin/LIST");
  setenv("XDG_DATA_HOME", PathIn("data").c_str(), 1);
  EXPECT_EQ(FindListOf(plan_, "NX4"), ofData);
  const std::string named = WithList("named/LIST");
  setenv("VELDRIN_HOME", PathIn("named").c_str(), 1);
  EXPECT_EQ(FindListOf(plan_, "NX4"), named);
  WithList("a/LIST");
  EXPECT_TRUE(fs::equivalent(FindListOf(plan_, "NX4"), PathIn("a/LIST/NX4.RAT")));
  const std::string beside = WithList("a/b");
  EXPECT_EQ(FindListOf(plan_, "NX4"), beside);
}

}  // namespace
}  // namespace veldrin
