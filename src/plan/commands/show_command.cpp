#include "model/file_tags.h"
#include "plan/commands/call_files.h"
#include "plan/commands/commands.h"
#include "plan/files/bad_input.h"
#include "plan/page/page_output.h"
#include "plan/present/list_finder.h"
#include "plan/sheet/plan_sheet.h"
#include "plan/sheet/sheet_output.h"
#include "plan/tyre/tyre_output.h"
#include "platform/disk.h"
#include "runtime/fault.h"

namespace veldrin {

namespace {

/// The machine of plans and what belongs to it.
struct PlansMachine {
  std::string listPath;
  Workspace machine;
  std::optional<CombinationFile> combination;
};

PlansMachine MachineOfPlans(const Call& call, const std::string& listPath, const std::string& firstPlan) {
  PlansMachine of;
  of.listPath = listPath;
  if (listPath.empty())
    of.listPath = FindListOf(firstPlan, MachineOfPlan(firstPlan, TextOfFile(call, firstPlan)));
  of.machine = MachineOfList(call, of.listPath);
  of.combination = CombinationBeside(call, of.listPath, of.machine);
  return of;
}

PlanSheet SheetOfPlan(const PlansMachine& of, const PlanAtHand& plan) {
  PlanSheet sheet;
  const int fault = Guarded([&] {
    sheet = SheetOf(plan.workspace, TextOfPath(PathOfText(plan.path).filename()),
                    of.combination ? &*of.combination : nullptr);
  });
  if (fault != 0) RefuseFile(plan.path, "a speed of 0 divides in its figures");
  sheet.remark = plan.remark;
  return sheet;
}

std::vector<TyrePoint> MeasuredPoints(const Call& call) {
  std::vector<TyrePoint> points = call.arguments.tyrePoints;
  for (const std::string& path : call.arguments.tyreFiles) {
    for (const TyrePoint& point : ReadTyrePoints(path, TextOfFile(call, path))) points.push_back(point);
  }
  return points;
}

void WriteShown(const Call& call, const PlanSheet& sheet, const TyreFit* tyre) {
  switch (call.arguments.format) {
    case PlanFormat::Table:
      WriteSheetTable(call.out, sheet);
      if (tyre != nullptr) WriteTyreTable(call.out, *tyre);
      break;
    case PlanFormat::Csv:
      if (tyre != nullptr) {
        WriteTyreCsv(call.out, *tyre);
      } else {
        WriteSheetCsv(call.out, {sheet});
      }
      break;
    case PlanFormat::Json:
      WriteSheetJson(call.out, {sheet}, tyre);
      break;
    case PlanFormat::Svg:
    case PlanFormat::Html:
      WritePage(call.out, call.arguments.format == PlanFormat::Html, call.arguments.japanese, {sheet}, tyre);
      break;
  }
}

/// Whether the file is a machine list, by its first line.
bool IsList(const Call& call, const std::string& path) {
  return IsListTag(TextOfFile(call, path));
}

}  // namespace

int ShowPlan(const Call& call) {
  const std::string& path = call.arguments.planPaths.front();
  const PlansMachine of = MachineOfPlans(call, call.arguments.listPath, path);
  const PlanAtHand plan = PlanOnMachine(call, path, of.machine);
  const std::vector<TyrePoint> points = MeasuredPoints(call);
  std::optional<TyreFit> tyre;
  if (!points.empty()) tyre = FitTyre(plan.workspace, points);
  WriteShown(call, SheetOfPlan(of, plan), tyre ? &*tyre : nullptr);
  return kDone;
}

int ComparePlans(const Call& call) {
  std::string listPath;
  std::vector<std::string> paths;
  for (const std::string& path : call.arguments.planPaths) {
    if (!IsList(call, path)) {
      paths.push_back(path);
    } else if (listPath.empty()) {
      listPath = path;
    } else {
      RefuseFile(path, "a second list beside " + listPath);
    }
  }
  if (paths.size() < 2) throw BadInput{"veldrin-plan: --compare needs two plans or more"};
  const PlansMachine of = MachineOfPlans(call, listPath, paths.front());
  std::vector<PlanSheet> sheets;
  std::optional<PartChanges> changes;
  for (const std::string& path : paths) {
    const PlanAtHand plan = PlanOnMachine(call, path, of.machine);
    sheets.push_back(SheetOfPlan(of, plan));
    if (changes) {
      sheets.back().changes = changes->To(RowsOf(plan.workspace));
    } else {
      changes.emplace(of.machine, RowsOf(plan.workspace), of.combination);
    }
  }
  switch (call.arguments.format) {
    case PlanFormat::Table:
      WriteComparison(call.out, sheets);
      break;
    case PlanFormat::Csv:
      WriteSheetCsv(call.out, sheets);
      break;
    case PlanFormat::Json:
      WriteSheetJson(call.out, sheets, nullptr);
      break;
    case PlanFormat::Svg:
    case PlanFormat::Html:
      WritePage(call.out, call.arguments.format == PlanFormat::Html, call.arguments.japanese, sheets,
                nullptr);
      break;
  }
  return kDone;
}

}  // namespace veldrin
