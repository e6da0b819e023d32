#include "model/list_tables.h"

#include "model/list_keys.h"
#include "model/ratio_sort.h"
#include "runtime/conversion.h"
#include "runtime/text.h"

#include <algorithm>
#include <string>

namespace veldrin {

namespace {

/// Reads one field and tells whether it is the section's keyword. A missing one is not.
bool Keyword(TextReader& reader, const char* word) {
  std::string field;
  Guarded([&] { field = reader.Field(); });
  return field == word;
}

/// Sizes up to the end mark 99, or until the list is full.
/// Kept: a full list ends without a mark, so a 99 behind the last size is taken for the next keyword.
template <int Limit>
void ReadSizes(TextReader& reader, Table<std::int16_t, 1, Limit>& sizes, std::int16_t& count) {
  count = 0;
  for (int i = 1; i <= Limit; ++i) {
    Guarded([&] { sizes[i] = reader.Int16Field(); });
    if (sizes[i] == kEndMark) return;
    count = static_cast<std::int16_t>(i);
  }
}

/// Pairs up to the end mark.
/// Kept: behind eight full pairs one more field is consumed as the mark, whatever it holds.
void ReadPrimaries(TextReader& reader, Workspace& workspace) {
  workspace.PrimaryCount = 0;
  for (int i = 1; i <= kPrimaryFileLimit; ++i) {
    RatioRow& row = workspace.PrimaryTable[i];
    Guarded([&] { row.Drive = reader.Int16Field(); });
    if (row.Drive == kEndMark) return;
    Guarded([&] { row.Driven = reader.Int16Field(); });
    row.Text = RatioText(row.Drive, row.Driven);
    Guarded([&] { row.Ratio = Divide(row.Drive, row.Driven); });
    workspace.PrimaryCount = static_cast<std::int16_t>(i);
  }
  Guarded([&] { reader.Field(); });
}

/// The gear rows. The first row of a gear that holds a pair is its lowest usable row; row 1 always leaves
/// the plan at 1.
/// Kept: a gear whose only pair is in the very last row keeps the plan's row at 1, since the lowest row
/// starts there and only a row below it counts as a find.
void ReadGears(TextReader& reader, Workspace& workspace) {
  for (int gear = 1; gear <= kGears; ++gear) workspace.GearFirstRow[gear] = workspace.GearRows;
  const int rows = std::min<int>(workspace.GearRows, kGearRowLimit);
  for (int row = 1; row <= rows; ++row) {
    for (int gear = 1; gear <= kGears; ++gear) {
      std::string& text = workspace.GearTable(gear, row);
      Guarded([&] { text = reader.Field(); });
      Guarded([&] { workspace.GearDriveTeeth(gear, row) = reader.Int16Field(); });
      Guarded([&] { workspace.GearDrivenTeeth(gear, row) = reader.Int16Field(); });
      if (text != kNoPair && workspace.GearFirstRow[gear] > row) {
        workspace.GearFirstRow[gear] = static_cast<std::int16_t>(row);
        workspace.PlanIndex[gear] = static_cast<std::int16_t>(row);
      }
      if (row == 1) workspace.PlanIndex[gear] = 1;
    }
  }
}

void ReadMatrix(TextReader& reader, Workspace& workspace) {
  const int rows = std::min<int>(workspace.GearRows, kGearRowLimit);
  for (int third = 1; third <= rows; ++third) {
    for (int fourth = 1; fourth <= rows; ++fourth) {
      Guarded([&] { workspace.M34Matrix(third, fourth) = reader.Int16Field(); });
    }
  }
}

}  // namespace

bool ReadListTables(TextReader& reader, Workspace& workspace) {
  Guarded([&] { workspace.MachineName = reader.Field(); });
  workspace.MachineKey = LowerCase(workspace.MachineName);
  if (!Keyword(reader, "FINAL-DRIVE")) return false;
  ReadSizes(reader, workspace.FinalDriveList, workspace.FinalDriveCount);
  if (!Keyword(reader, "FINAL-DRIVEN")) return false;
  ReadSizes(reader, workspace.FinalDrivenList, workspace.FinalDrivenCount);
  Guarded([&] { reader.Field(); });
  Guarded([&] { workspace.GearRows = reader.Int16Field(); });
  if (!Keyword(reader, "PRIMARY")) return false;
  ReadPrimaries(reader, workspace);
  Guarded([&] { reader.Line(); });
  Guarded([&] { reader.Line(); });
  ReadGears(reader, workspace);
  if (!Keyword(reader, "M34-ARRAY")) return false;
  ReadMatrix(reader, workspace);
  ReleaseListKeys(workspace);
  ReadListKeys(reader, workspace);
  return true;
}

int FinalRowCount(const Workspace& workspace) {
  return workspace.FinalDriveCount * workspace.FinalDrivenCount;
}

void BuildFinalTable(Workspace& workspace) {
  int row = 0;
  for (int i = 1; i <= workspace.FinalDriveCount; ++i) {
    for (int j = 1; j <= workspace.FinalDrivenCount; ++j) {
      RatioRow& final = workspace.FinalTable[++row];
      final.Drive = workspace.FinalDriveList[i];
      final.Driven = workspace.FinalDrivenList[j];
      final.Text = RatioText(final.Drive, final.Driven);
      final.Ratio = 0;
      Guarded([&] { final.Ratio = Divide(final.Drive, final.Driven); });
    }
  }
}

void SortTables(Workspace& workspace) {
  const auto finalRow = [&](int row) -> RatioRow& { return workspace.FinalTable[row]; };
  const auto primaryRow = [&](int row) -> RatioRow& { return workspace.PrimaryTable[row]; };
  SortRatioRows(finalRow, 1, FinalRowCount(workspace), workspace.sortRandom);
  SortRatioRows(primaryRow, 1, workspace.PrimaryCount, workspace.sortRandom);
  workspace.FinalRow7Text = workspace.FinalTable[7].Text;
  workspace.FinalRow1Text = workspace.FinalTable[1].Text;
}

void ClearMachine(Workspace& workspace) {
  workspace.SpeedRequest.Clear();
  workspace.SpeedNow.Clear();
  workspace.SpeedBaseline.Clear();
  workspace.PrimaryTable.Clear();
  workspace.FinalTable.Clear();
  workspace.M34Matrix.Clear();
  workspace.GearDrivenTeeth.Clear();
  workspace.GearDriveTeeth.Clear();
  workspace.GearTable.Clear();
  workspace.FinalDrivenList.Clear();
  workspace.FinalDriveList.Clear();
  workspace.MachineKey.clear();
  workspace.LoadedMachine.clear();
}

}  // namespace veldrin
