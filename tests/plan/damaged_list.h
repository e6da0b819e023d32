// The sample list with a line or two damaged, and what the strict reading then has to say.
#pragma once

#include "plan/check/list_check.h"
#include "tests/plan/sample_list.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

namespace veldrin {

using Lines = std::vector<std::string>;

/// The remarks as "line: text", warnings with a "w" in front.
inline Lines Remarks(const std::string& text, const std::string& name = "TEST") {
  Lines lines;
  for (const ListRemark& remark : CheckList(text, name).InOrder()) {
    lines.push_back((remark.warning ? "w" : "") + std::to_string(remark.line) + ": " + remark.text);
  }
  return lines;
}

struct Damage {
  std::function<void(SampleList& list)> damage;
  Lines remarks;
};

inline void Expect(const std::vector<Damage>& cases) {
  for (const Damage& c : cases) {
    SampleList list;
    c.damage(list);
    for (const char* lineEnd : {"\n", "\r\n"})
      EXPECT_EQ(Remarks(list.Text(lineEnd)), c.remarks) << list.Text();
  }
}

/// A line becomes another text.
inline std::function<void(SampleList&)> Put(int line, const std::string& text) {
  return [line, text](SampleList& list) { list[line] = text; };
}
inline std::function<void(SampleList&)> Erase(int line) {
  return [line](SampleList& list) { list.Erase(line); };
}
inline std::function<void(SampleList&)> Insert(int line, const std::string& text) {
  return [line, text](SampleList& list) { list.Insert(line, text); };
}

}  // namespace veldrin
