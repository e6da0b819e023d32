// The folder of kept plans in memory, shared by several copies of the program as the real one is.
#pragma once

#include "platform/keep_folder.h"
#include "runtime/fault.h"

#include <algorithm>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <string>
#include <vector>

namespace veldrin {

class MemoryKeepFolder : public KeepFolder {
 public:
  std::map<std::string, std::string> files;
  std::string now = "2026-11-22T21:04:05";
  /// Each replacing raises this fault; 0 for none.
  int fault = 0;
  int replaced = 0;
  /// Names of files that do not go.
  std::set<std::string> keeps;

  std::vector<std::string> KeptNames() const override {
    const std::lock_guard lock(mutex_);
    std::vector<std::string> names;
    for (const auto& [name, bytes] : files) {
      if (name.ends_with(".kept")) names.push_back(name);
    }
    return names;
  }

  std::string NewId() override { return "id" + std::to_string(++ids_); }
  std::string Now() const override { return now; }

  std::unique_ptr<KeepClaim> Claim(const std::string& id) override {
    if (!claimed_.insert(id).second) return nullptr;
    return std::make_unique<Claimed>(*this, id);
  }
  bool IsClaimed(const std::string& id) const { return claimed_.count(id) != 0; }

  std::optional<std::string> Read(const std::string& name) const override {
    const std::lock_guard lock(mutex_);
    const auto found = files.find(name);
    return found == files.end() ? std::nullopt : std::optional(found->second);
  }
  void Replace(const std::string& name, const std::string& bytes) override {
    const std::lock_guard lock(mutex_);
    if (fault != 0) Raise(fault);
    ++replaced;
    files[name] = bytes;
  }
  bool Remove(const std::string& name) override {
    const std::lock_guard lock(mutex_);
    if (keeps.contains(name)) return false;
    files.erase(name);
    return true;
  }
  std::string PathOf(const std::string& name) const override { return "/state/" + name; }

 private:
  struct Claimed : KeepClaim {
    Claimed(MemoryKeepFolder& theFolder, std::string theId) : folder(&theFolder), id(std::move(theId)) {}
    ~Claimed() override { folder->claimed_.erase(id); }
    MemoryKeepFolder* folder;
    std::string id;
  };

  mutable std::mutex mutex_;
  std::set<std::string> claimed_;
  int ids_ = 0;
};

}  // namespace veldrin
