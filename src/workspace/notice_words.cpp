#include "workspace/notice_words.h"

#include "workspace/failure_texts.h"

#include <iterator>
#include <utility>

namespace veldrin {

namespace {

struct ConditionWords {
  BothLanguages name;
  const char* unit;
};

/// In the order of kConditions.
const ConditionWords kConditionWords[] = {
    {{"Tyre length", "タイヤ周長"}, "m"},
    {{"Check revolutions", "チェック回転数"}, "rpm"},
    {{"Shift revolutions", "シフト回転数"}, "rpm"},
    {{"Top speed of the chart", "グラフの最高速度"}, "km/h"},
    {{"Highest revolutions of the chart", "グラフの最高回転数"}, "rpm"},
};
static_assert(std::size(kConditionWords) == std::size(kConditions));

}  // namespace

void Inform(Program& program, BothLanguages text) {
  program.machine.notices.Tell({Severity::Information, std::move(text)});
}

void TellRefusedNumber(Program& program, const BothLanguages& name, const Limits& limits, const char* unit) {
  const std::string low = std::to_string(limits.lowest);
  const std::string high = std::to_string(limits.highest);
  Inform(program, {name.english + ": " + low + " to " + high + " " + unit,
                   name.japanese + ": " + low + "～" + high + " " + unit});
}

BothLanguages ForbiddenPairWords(const Workspace& workspace) {
  const std::string& third = workspace.GearTable(kThirdGear, workspace.PlanIndex[kThirdGear]);
  const std::string& fourth = workspace.GearTable(kFourthGear, workspace.PlanIndex[kFourthGear]);
  return {third + " and " + fourth + " cannot be fitted together",
          third + " と " + fourth + " は同時に組み付けられません"};
}

const BothLanguages& ConditionName(int condition) {
  return kConditionWords[condition].name;
}

const char* ConditionUnit(int condition) {
  return kConditionWords[condition].unit;
}

void TellSaved(Program& program, const std::string& path) {
  Inform(program, {"Saved as " + path, path + " に保存しました"});
}

void TellNotSaved(Program& program, const std::string& path, int fault) {
  const BothLanguages cause = FailureCause(fault);
  program.machine.notices.Tell(
      {Severity::Failure,
       {path + " was not saved: " + cause.english, path + " は保存されていません: " + cause.japanese}});
}

}  // namespace veldrin
