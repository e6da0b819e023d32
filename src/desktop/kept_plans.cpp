#include "desktop/kept_plans.h"

#include <utility>

namespace veldrin {

namespace {

constexpr int kWriteAfter = 1000;  // ms: together with the look and the disk less than two seconds

}  // namespace

KeptPlans::KeptPlans(Program& program, KeepFolder& folder,
                     std::function<void(std::function<void()>)> runEvent, std::string wanted)
    : program_(&program),
      runEvent_(std::move(runEvent)),
      wanted_(std::move(wanted)),
      net_(program, folder),
      offers_(program, net_) {
  look_.setSingleShot(true);
  write_.setSingleShot(true);
  QObject::connect(&look_, &QTimer::timeout, [this] { Look(); });
  QObject::connect(&write_, &QTimer::timeout, [this] { net_.Write(); });
}

void KeptPlans::EventEnded() {
  if (!look_.isActive() && !program_->ended) look_.start(0);
}

void KeptPlans::Look() {
  if (program_->ended || program_->eventDepth > 0) return;
  Begin();
  net_.Look();
  if (net_.IsDue() && !write_.isActive()) write_.start(kWriteAfter);
}

/// Once, when the start has handed over to the main window.
void KeptPlans::Begin() {
  if (begun_ || !program_->form2.Visible || program_->form1.loaded) return;
  begun_ = true;
  runEvent_([this] {
    if (!wanted_.empty()) offers_.OpenAtOnce(wanted_);
    offers_.Begin();
  });
}

void KeptPlans::Closing() {
  net_.LookAtLast();
}

void KeptPlans::Secure() {
  net_.Secure();
}

void KeptPlans::End() {
  look_.stop();
  write_.stop();
  net_.End();
}

}  // namespace veldrin
