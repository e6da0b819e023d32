#include "plan/csv/list_writer.h"

#include "model/list_keys.h"
#include "runtime/conversion.h"
#include "runtime/text.h"

#include <algorithm>

namespace veldrin {

namespace {

bool NeedsMarks(const std::string& text) {
  return text.find_first_of(",\r\n") != std::string::npos || Trim(text) != text;
}

/// A text as a field. Marks are left out where it holds one itself.
std::string Field(const std::string& text) {
  return Contains(text, "\"") ? text : '"' + text + '"';
}

/// Sizes and the mark that ends them, which a full list must not have.
template <int Limit>
std::string Sizes(const Table<std::int16_t, 1, Limit>& sizes, int count) {
  std::string line;
  for (int k = 1; k <= count; ++k) line += (k > 1 ? "," : "") + std::to_string(sizes[k]);
  if (count < Limit) line += (count > 0 ? "," : "") + std::to_string(kEndMark);
  return line;
}

std::string Primaries(const Workspace& machine) {
  std::string lines;
  for (int row = 1; row <= machine.PrimaryCount; ++row) {
    const RatioRow& primary = machine.PrimaryTable[row];
    lines += std::to_string(primary.Drive) + ',' + std::to_string(primary.Driven) + "\r\n";
  }
  return lines + std::to_string(kEndMark) + "\r\n";
}

std::string GearRows(const Workspace& machine) {
  std::string lines;
  for (int row = 1; row <= machine.GearRows; ++row) {
    for (int gear = 1; gear <= kGears; ++gear) {
      lines += (gear > 1 ? ", " : "") + Field(machine.GearTable(gear, row)) + ',' +
               std::to_string(machine.GearDriveTeeth(gear, row)) + ',' +
               std::to_string(machine.GearDrivenTeeth(gear, row));
    }
    lines += "\r\n";
  }
  return lines;
}

std::string Matrix(const Workspace& machine) {
  std::string lines;
  for (int third = 1; third <= machine.GearRows; ++third) {
    for (int fourth = 1; fourth <= machine.GearRows; ++fourth) {
      lines += (fourth > 1 ? "," : "") + std::to_string(machine.M34Matrix(third, fourth));
    }
    lines += "\r\n";
  }
  return lines;
}

/// The running conditions that the list sets.
std::string Keys(const Workspace& machine) {
  std::string lines;
  ForEachKeyed(machine, [&](const Condition& condition, const auto& keyed, auto) {
    if (!keyed.taken) return;
    lines += std::string(condition.key) + '=' + ShortestText(static_cast<float>(keyed.set)) + "\r\n";
  });
  return lines;
}

}  // namespace

bool FitsField(const std::string& text) {
  return !Contains(text, "\"") || (!NeedsMarks(text) && !text.starts_with("\""));
}

std::string MachineListText(const PartsTable& parts) {
  const Workspace& machine = parts.machine;
  return "LIST\r\n" + Field(machine.MachineName) + "\r\nFINAL-DRIVE\r\n" +
         Sizes(machine.FinalDriveList, machine.FinalDriveCount) + "\r\nFINAL-DRIVEN\r\n" +
         Sizes(machine.FinalDrivenList, machine.FinalDrivenCount) + "\r\nGEAR-ROWS," +
         std::to_string(machine.GearRows) + ",PRIMARY\r\n" + Primaries(machine) +
         "; a line for each row: text, drive and driven teeth of gears 1 to 6; 99 is an empty place\r\n" +
         "; gear 1, gear 2, gear 3, gear 4, gear 5, gear 6\r\n" + GearRows(machine) + "M34-ARRAY\r\n" +
         Matrix(machine) + Keys(machine);
}

std::string CombinationText(const PartsTable& parts) {
  std::string text;
  for (const auto& [place, shafts] : parts.combination.single) {
    text += std::to_string(place.first) + ',' + Field(place.second) + ',' + Field(shafts.main) + ',' +
            Field(shafts.counter) + "\r\n";
  }
  for (const auto& [pairs, joint] : parts.combination.joint) {
    text += "3," + Field(pairs.first) + ",4," + Field(pairs.second) + ',' + Field(joint.main) + ',' +
            Field(joint.counterOfThird) + ',' + Field(joint.counterOfFourth) + "\r\n";
  }
  return text;
}

}  // namespace veldrin
