// What damaged lists leave behind.
#include "model/list_tables.h"
#include "tests/model/small_list.h"

#include <random>
#include <string>

namespace veldrin {
namespace {

/// Reads a damaged list and everything behind it. Only that it comes to an end without a fault counts.
void ReadDamaged(const std::string& text, Workspace& workspace) {
  TextReader reader(text);
  ReadListTables(reader, workspace);
  BuildFinalTable(workspace);
  SortTables(workspace);
}

TEST_F(ListTables, EveryBeginningOfTheSampleListsIsReadWithoutAFault) {
  for (const char* name : {"NX4.RAT", "VT2.RAT"}) {
    const std::string text = Sample(name);
    for (std::size_t size = 0; size <= text.size(); ++size) {
      Workspace fresh;
      EXPECT_NO_THROW(ReadDamaged(text.substr(0, size), fresh)) << name << " cut at " << size;
      EXPECT_NO_THROW(ReadDamaged(text.substr(0, size), workspace)) << name << " cut at " << size;
    }
  }
}

TEST_F(ListTables, EveryScrambledListIsReadWithoutAFault) {
  std::mt19937 any(5);
  const std::string texts[] = {Sample("NX4.RAT"), Sample("VT2.RAT")};
  const std::string characters = "0123456789,\"\r\n-=. A\t\x82\xFF";
  for (int round = 0; round < 3000; ++round) {
    std::string text = texts[round % 2];
    for (unsigned changes = 1 + any() % 8; changes > 0; --changes) {
      const std::size_t at = any() % text.size();
      switch (any() % 3) {
        case 0:
          text[at] = characters[any() % characters.size()];
          break;
        case 1:
          text.erase(at, 1 + any() % 30);
          break;
        default:
          text.insert(at, 1, characters[any() % characters.size()]);
          break;
      }
    }
    ASSERT_NO_THROW(ReadDamaged(text, workspace)) << text;
  }
}

}  // namespace
}  // namespace veldrin
