// Names in scripts: parts joined by points, each with subscripts where it has some.
//
//   Form2.Label9(1..3).Caption   GearTable(3,2)   Form2.Picture21.Drawing(-1)
//
// A range of subscripts, in any place, stands for each in turn, the last place running fastest.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace veldrin {

struct NamePart {
  std::string name;
  std::vector<int> indices;
};

/// A name without ranges.
using ScriptName = std::vector<NamePart>;

/// All names that `text` stands for, in their turn. Throws ScriptError for a text that is none.
std::vector<ScriptName> ParseNames(std::string_view text);

/// The one name that `text` is. Throws ScriptError for a range as well.
ScriptName ParseName(std::string_view text);

/// The name as it is written, without blanks.
std::string NameText(const ScriptName& name);
std::string NameText(const NamePart& part);

}  // namespace veldrin
