#include "tests/monkey/landmarks.h"

#include "tests/monkey/stated_faults.h"

namespace veldrin::monkey {

namespace {

// clang-format off
constexpr const char* kToBeSeen[] = {
    "mode BASING", "mode CHANGE", "mode SPEED", "mode RPM", "mode REF_QR",
    "mode LIST", "mode DATA", "mode QR", "mode REF",
    "question 13", "question 14", "question 15", "question 16", "question 17",
    "role 1", "role 2", "role 3", "role 4", "role 5", "role 27",
    "window Form2", "window Form3", "window Form4", "window Form5", "window Form7", "window Form9",
    "window Form10",
    "plan saved", "plan saved over another", "forbidden pair", "combination", "pick list", "printed",
    "clipboard", "extension", "history entry", "ended", "killed", "started again",
};
// clang-format on

/// The windows that are shown, by their names.
void NoteWindows(const Look& look, Landmarks& landmarks) {
  for (const Window* window : look.program.desk.shown) ++landmarks["window " + window->name];
}

void NoteDone(const Look& look, Landmarks& landmarks) {
  const auto done = [&](const char* control) { return look.deed.On("Form2", control) && !look.blocked; };
  if (WasSaved(look)) ++landmarks[look.before.prompt.empty() ? "plan saved" : "plan saved over another"];
  if (look.program.form2.Label12[3].BackColor == kRed) ++landmarks["forbidden pair"];
  if (look.program.form2.Picture9.Visible) ++landmarks["combination"];
  if (done("Grid1") || done("Grid2")) ++landmarks["pick list"];
  if (!look.world.machine.printer.documents.empty()) ++landmarks["printed"];
  if (look.world.machine.pictures.clipboard) ++landmarks["clipboard"];
  if (look.program.workspace.NumExtReg > 0) ++landmarks["extension"];
  if (done("menu_files")) ++landmarks["history entry"];
}

void NoteEnd(const Look& look, Landmarks& landmarks) {
  if (look.deed.Is("kill")) ++landmarks["killed"];
  if (look.deed.Is("start") && look.before.ended) ++landmarks["started again"];
  if (!look.now.ended || look.before.ended) return;
  const StatedFault* const fault = StatedFaultOf(look);
  ++landmarks[fault == nullptr ? "ended" : "fault " + std::to_string(fault->fault) + ": " + fault->reason];
}

}  // namespace

void Note(const Look& look, Landmarks& landmarks) {
  NoteEnd(look, landmarks);
  if (look.now.ended) return;
  ++landmarks["mode " + look.now.mode];
  if (look.now.question > 0) ++landmarks["question " + std::to_string(look.now.question)];
  if (look.now.chooserUp) ++landmarks["role " + std::to_string(static_cast<int>(look.now.role))];
  NoteWindows(look, landmarks);
  NoteDone(look, landmarks);
}

std::vector<std::string> Missing(const Landmarks& landmarks) {
  std::vector<std::string> missing;
  for (const char* name : kToBeSeen) {
    if (landmarks.count(name) == 0) missing.emplace_back(name);
  }
  return missing;
}

}  // namespace veldrin::monkey
