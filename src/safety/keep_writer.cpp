#include "safety/keep_writer.h"

#include "runtime/fault.h"

#include <algorithm>
#include <exception>
#include <utility>

namespace veldrin {

namespace {

/// A machine's key may hold what names of files may not.
std::string ExtensionFor(const std::string& key) {
  const auto isPlain = [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' || c == '_';
  };
  return !key.empty() && std::all_of(key.begin(), key.end(), isPlain) ? key : "plan";
}

}  // namespace

KeepWriter::KeepWriter(KeepFolder& folder) : folder_(&folder), thread_([this] { Run(); }) {}

KeepWriter::~KeepWriter() {
  {
    const std::lock_guard lock(mutex_);
    ending_ = true;
  }
  told_.notify_one();
  thread_.join();
}

void KeepWriter::Keep(const std::string& id, KeptPlan kept, std::string planText) {
  Queue({id, std::move(kept), std::move(planText)});
}

void KeepWriter::Forget(const std::string& id) {
  Queue({id, std::nullopt, {}});
}

void KeepWriter::Queue(Job job) {
  {
    const std::lock_guard lock(mutex_);
    std::erase_if(jobs_, [&](const Job& waiting) { return waiting.id == job.id; });
    jobs_.push_back(std::move(job));
  }
  told_.notify_one();
}

void KeepWriter::Finish() {
  std::unique_lock lock(mutex_);
  done_.wait(lock, [this] { return jobs_.empty() && !busy_; });
}

int KeepWriter::TakeFault() {
  const std::lock_guard lock(mutex_);
  return std::exchange(fault_, 0);
}

void KeepWriter::Run() {
  std::unique_lock lock(mutex_);
  while (true) {
    told_.wait(lock, [this] { return !jobs_.empty() || ending_; });
    if (jobs_.empty()) return;
    Job job = std::move(jobs_.front());
    jobs_.pop_front();
    busy_ = true;
    lock.unlock();
    Do(std::move(job));
    lock.lock();
    busy_ = false;
    if (jobs_.empty()) done_.notify_all();
  }
}

void KeepWriter::Do(Job job) {
  int fault = 0;
  try {
    fault = Guarded([&] { job.kept ? Write(job) : Remove(job.id); });
  } catch (const std::exception&) {
    fault = kFaultOutOfMemory;
  }
  if (fault == 0) return;
  const std::lock_guard lock(mutex_);
  if (fault_ == 0) fault_ = fault;
}

void KeepWriter::Write(const Job& job) {
  KeptPlan kept = *job.kept;
  kept.planFile = job.id + "-" + std::to_string(++times_[job.id]) + "." + ExtensionFor(kept.plan.key);
  folder_->Replace(kept.planFile, job.planText);
  try {
    folder_->Replace(job.id + ".kept", KeptText(kept));
  } catch (const RuntimeFault&) {
    folder_->Remove(kept.planFile);
    throw;
  }
  const std::string before = std::exchange(planFiles_[job.id], kept.planFile);
  if (!before.empty()) folder_->Remove(before);
}

void KeepWriter::Remove(const std::string& id) {
  std::string planFile;
  const auto own = planFiles_.find(id);
  if (own != planFiles_.end()) {
    planFile = own->second;
    planFiles_.erase(own);
  } else if (const auto text = folder_->Read(id + ".kept")) {
    planFile = ParseKept(*text).kept.planFile;
  }
  RemoveKept(*folder_, id, planFile);
}

void RemoveKept(KeepFolder& folder, const std::string& id, const std::string& planFile) {
  const bool gone = folder.Remove(id + ".kept");
  if (gone && !planFile.empty()) folder.Remove(planFile);
}

}  // namespace veldrin
