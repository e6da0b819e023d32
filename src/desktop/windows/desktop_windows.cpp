#include "desktop/windows/desktop_windows.h"

#include "runtime/fault.h"

#include <QApplication>
#include <QWindow>

#include <algorithm>
#include <utility>

namespace veldrin {

namespace {

constexpr int kRepaintGap = 33;  // ms
constexpr int kFlashTime = 300;  // ms

}  // namespace

DesktopWindows::DesktopWindows(Stage& stage) : stage_(&stage) {
  stage.zoom.changed = [this] {
    for (const auto& form : forms_) form->Rescale();
  };
  stage.input.afterEvent = [this] { Settle(); };
}

DesktopWindows::~DesktopWindows() = default;

FormWidget* DesktopWindows::FormOf(const Window& window) const {
  const auto found =
      std::find_if(forms_.begin(), forms_.end(), [&](const auto& form) { return form->Shows() == &window; });
  return found == forms_.end() ? nullptr : found->get();
}

void DesktopWindows::Settle() {
  const Program* served = stage_->input.Served();
  if (served != nullptr && served->ended) {
    for (const ModalLoop& modal : loops_) modal.loop->quit();
  }
  for (const auto& form : forms_) form->Settle();
  if (served != nullptr && served->eventDepth > 0) return;
  // A handler of one of its widgets may be on its way back through Qt still.
  for (auto& form : retired_) form.release()->deleteLater();
  retired_.clear();
}

void DesktopWindows::Forget() {
  waiting_.clear();
  while (!forms_.empty()) Retire(*forms_.back()->Shows());
}

void DesktopWindows::Retire(const Window& window) {
  const auto found =
      std::find_if(forms_.begin(), forms_.end(), [&](const auto& form) { return form->Shows() == &window; });
  if (found == forms_.end()) return;
  (*found)->LetGo();
  retired_.push_back(std::move(*found));
  forms_.erase(found);
}

void DesktopWindows::Prepare(Window& window) {
  if (FormOf(window) == nullptr) Build(window);
}

void DesktopWindows::Loaded(Window& window) {
  if (FormOf(window) != nullptr) return;
  const auto isTimer = [](const Control* control) { return control->kind == ControlKind::Timer; };
  const bool timed = std::any_of(window.controls.begin(), window.controls.end(), isTimer);
  if (timed || stage_->buildsAtOnce) {
    Build(window);
  } else {
    waiting_.push_back(&window);
  }
}

void DesktopWindows::Build(Window& window) {
  const auto formOf = [this](const Window& other) { return FormOf(other); };
  forms_.push_back(std::make_unique<FormWidget>(window, *stage_, formOf));
}

void DesktopWindows::Unloaded(Window& window) {
  std::erase(waiting_, &window);
  Retire(window);
}

void DesktopWindows::SlotWritten(Control& control, const char* slot, bool changed) {
  if (!changed) return;
  const bool shows = &control == &control.window && control.Visible;
  if (shows && std::erase(waiting_, &control.window) > 0) Build(control.window);
  FormWidget* const form = FormOf(control.window);
  if (form == nullptr) return;
  form->Take(control, slot);
  if (&control != &control.window || control.Visible) return;
  for (const ModalLoop& modal : loops_) {
    if (modal.window == &control.window) modal.loop->quit();
  }
}

void DesktopWindows::ContentChanged(Control& control) {
  if (FormWidget* form = FormOf(control.window)) form->TakeContent(control);
}

void DesktopWindows::RunModal(Window& window) {
  Program& program = *stage_->input.Served();
  if (FormWidget* form = FormOf(window)) form->BecomeModal();
  while (window.Visible && !program.ended) {
    QEventLoop loop;
    loops_.push_back({&window, &loop});
    loop.exec();
    loops_.pop_back();
  }
  if (program.ended) throw EndOfProgram{};
}

void DesktopWindows::Repaint(Control& control) {
  if (sinceRepaint_.isValid() && sinceRepaint_.elapsed() < kRepaintGap) return;
  FormWidget* const form = FormOf(control.window);
  if (form == nullptr) return;
  ControlView* const view = form->ViewOf(control);
  QWidget* const widget = view == nullptr ? form : view->Widget();
  if (widget == nullptr) return;
  widget->repaint();
  sinceRepaint_.start();
}

void DesktopWindows::Flash(Window& window) {
  if (FormWidget* form = FormOf(window)) QApplication::alert(form, kFlashTime);
}

void DesktopWindows::SetEllipticRegion(Window& window, int left, int top, int right, int bottom) {
  if (FormWidget* form = FormOf(window)) form->CutToEllipse(QRect(left, top, right - left, bottom - top));
}

void DesktopWindows::StartDrag(Window& window) {
  FormWidget* const form = FormOf(window);
  if (form != nullptr && form->windowHandle() != nullptr) form->windowHandle()->startSystemMove();
}

}  // namespace veldrin
