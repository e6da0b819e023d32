#include "platform/paths.h"

#include "runtime/text.h"

namespace veldrin {

std::string JoinPath(const PathRules& rules, const std::string& folder, const std::string& name) {
  return folder + rules.separator + name;
}

std::string TrimRoot(const PathRules& rules, const std::string& folder) {
  if (folder.empty() || folder.back() != rules.separator) return folder;
  return Left(folder, rules.rootLength);
}

std::string WithRoot(const PathRules& rules, const std::string& folder) {
  const std::string whole = JoinPath(rules, folder, "");
  return TrimRoot(rules, whole) == folder ? whole : folder;
}

std::string FolderOf(const PathRules& rules, const std::string& path) {
  const std::size_t at = path.rfind(rules.separator);
  return at == std::string::npos ? "" : path.substr(0, at);
}

std::string LastPartOf(const PathRules& rules, const std::string& path) {
  const std::size_t at = path.rfind(rules.separator);
  return at == std::string::npos ? path : path.substr(at + 1);
}

bool IsRoot(const PathRules& rules, const std::string& folder) {
  return Length(folder) == rules.rootLength + 1;
}

std::string ParentFolder(const PathRules& rules, const std::string& folder) {
  const std::string parent = FolderOf(rules, folder);
  return Length(parent) == rules.rootLength ? parent + rules.separator : parent;
}

std::string StoredFolder(const PathRules& rules, const std::string& folder) {
  return rules.caseCounts ? folder : UpperCase(folder);
}

}  // namespace veldrin
