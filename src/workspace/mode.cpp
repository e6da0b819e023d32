#include "workspace/mode.h"

namespace veldrin {

bool HasPlanOnShow(const Workspace& workspace) {
  return !workspace.ModeWord.empty() && workspace.ModeWord != mode::kBasing;
}

bool EntersRequests(const Workspace& workspace) {
  return workspace.ModeWord == mode::kSpeed || workspace.ModeWord == mode::kRpm;
}

bool AwaitsLoad(const Workspace& workspace) {
  const std::string& word = workspace.ModeWord;
  return word == mode::kList || word == mode::kData || word == mode::kQuickRatio || word == mode::kReference;
}

const std::string& ModeOnShow(const Program& program) {
  const DecisionPanelState& panel = program.decisionPanel;
  if (!AwaitsLoad(program.workspace)) return program.workspace.ModeWord;
  return panel.load ? panel.load->modeBefore : panel.modeBefore;
}

bool ShowsRequests(const Program& program) {
  const std::string& word = ModeOnShow(program);
  return word == mode::kSpeed || word == mode::kRpm || word == mode::kReferenceInForce;
}

}  // namespace veldrin
