#include "workspace/files/plan_lines.h"

#include "model/decimal.h"
#include "model/file_tags.h"
#include "model/gear_pairs.h"
#include "model/list_tables.h"
#include "runtime/conversion.h"
#include "runtime/text.h"

namespace veldrin {

namespace {

constexpr int kTeethCharacters = 2;  // of each of the two numbers of a row's text

/// A number of teeth. The two characters written of a row may hold one digit and the hyphen behind it, which
/// is then left out.
std::int16_t ReadTeeth(TextReader& reader) {
  std::string field = reader.Field();
  if (field.size() == 2 && field.back() == '-') field.pop_back();
  return ParseInt16(field);
}

/// Row 1..`count` whose text is "drive-driven" exactly; `otherwise` when there is none.
template <class Rows>
std::int16_t RowOf(const Rows& rows, int count, int drive, int driven, std::int16_t otherwise) {
  const std::string text = std::to_string(drive) + "-" + std::to_string(driven);
  for (int row = 1; row <= count; ++row) {
    if (rows[row].Text == text) return static_cast<std::int16_t>(row);
  }
  return otherwise;
}

void FindRows(Workspace& workspace) {
  workspace.PrimaryIndex = RowOf(workspace.PrimaryTable, workspace.PrimaryCount, workspace.FilePrimaryDrive,
                                 workspace.FilePrimaryDriven, workspace.PrimaryIndex);
  workspace.FinalIndex = RowOf(workspace.FinalTable, FinalRowCount(workspace), workspace.FileFinalDrive,
                               workspace.FileFinalDriven, workspace.FinalIndex);
}

}  // namespace

bool NamesLoadedMachine(const Workspace& workspace, const std::string& line) {
  return LowerCase(line) == "from:" + workspace.MachineKey + ".rat";
}

float ReadDecimal(const Workspace& workspace, TextReader& reader) {
  return RepairedSingle(workspace, reader.Line());
}

void ReadStoredSpeeds(Workspace& workspace, TextReader& reader) {
  for (int gear = 1; gear <= kGears; ++gear) workspace.SpeedBaseline[gear] = ReadDecimal(workspace, reader);
}

void ReadChoice(Workspace& workspace, TextReader& reader) {
  workspace.FilePrimaryDrive = ReadTeeth(reader);
  workspace.FilePrimaryDriven = ReadTeeth(reader);
  workspace.FileFinalDrive = ReadTeeth(reader);
  workspace.FileFinalDriven = ReadTeeth(reader);
  workspace.PlanLine = reader.Line();
  workspace.RemarkFirstLine = reader.Line();
}

void FindChoice(Workspace& workspace) {
  FindRows(workspace);
  FindGearPairs(workspace, workspace.PlanLine);
}

std::string PlanText(const Workspace& workspace, const std::string& remark) {
  std::string text;
  const auto addLine = [&](const std::string& line) { text.append(line).append(kCrLf); };
  addLine(PlanTag(workspace.MachineName));
  addLine(SingleText(workspace, workspace.TyreLength));
  addLine(std::to_string(workspace.ShiftNe));
  for (int gear = 1; gear <= kGears; ++gear) addLine(SingleText(workspace, workspace.SpeedNow[gear]));
  for (const RatioRow* row :
       {&workspace.PrimaryTable[workspace.PrimaryIndex], &workspace.FinalTable[workspace.FinalIndex]}) {
    addLine(Left(row->Text, kTeethCharacters));
    addLine(Right(row->Text, kTeethCharacters));
  }
  std::string plan;
  for (int gear = 1; gear <= kGears; ++gear) {
    if (gear > 1) plan += '-';
    plan += workspace.GearTable(gear, workspace.PlanIndex[gear]);
  }
  addLine(plan);
  addLine(remark);
  return text;
}

}  // namespace veldrin
