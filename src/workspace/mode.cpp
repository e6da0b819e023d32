#include "workspace/mode.h"

namespace veldrin {

namespace {

bool IsRequestEntry(const std::string& word) {
  return word == mode::kSpeed || word == mode::kRpm;
}

}  // namespace

bool HasPlanOnShow(const Workspace& workspace) {
  return !workspace.ModeWord.empty() && workspace.ModeWord != mode::kBasing;
}

bool EntersRequests(const Workspace& workspace) {
  return IsRequestEntry(workspace.ModeWord);
}

bool AwaitsLoad(const Workspace& workspace) {
  const std::string& word = workspace.ModeWord;
  return word == mode::kList || word == mode::kData || word == mode::kQuickRatio || word == mode::kReference;
}

const std::string& ModeOnShow(const Program& program) {
  const DecisionPanelState& panel = program.decisionPanel;
  const std::string& word = program.workspace.ModeWord;
  if (!AwaitsLoad(program.workspace)) return word;
  if (panel.load) return panel.load->modeBefore;
  return panel.unanswered == Question::LoadWithChanges ? panel.modeBefore : word;
}

bool ShowsRequests(const Program& program) {
  const std::string& word = ModeOnShow(program);
  return IsRequestEntry(word) || word == mode::kReferenceInForce;
}

}  // namespace veldrin
