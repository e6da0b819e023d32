#include "plan/csv/parts_csv.h"

#include "model/list_keys.h"
#include "model/list_tables.h"
#include "plan/csv/parts_kinds.h"
#include "plan/output/csv_field.h"
#include "runtime/conversion.h"
#include "runtime/text_file.h"

#include <algorithm>

namespace veldrin {

namespace {

/// Writes lines of the table's columns.
class PartsWriter {
 public:
  explicit PartsWriter(const PartsTable& parts) : machine_(parts.machine), combination_(parts.combination) {}

  std::string Text() {
    Line({.kind = parts_kind::kMachine, .text = machine_.MachineName});
    for (int k = 1; k <= machine_.FinalDriveCount; ++k) {
      Line({.kind = parts_kind::kFinalDrive, .drive = std::to_string(machine_.FinalDriveList[k])});
    }
    for (int k = 1; k <= machine_.FinalDrivenCount; ++k) {
      Line({.kind = parts_kind::kFinalDriven, .driven = std::to_string(machine_.FinalDrivenList[k])});
    }
    for (int row = 1; row <= machine_.PrimaryCount; ++row) {
      const RatioRow& primary = machine_.PrimaryTable[row];
      Line({.kind = parts_kind::kPrimary,
            .drive = std::to_string(primary.Drive),
            .driven = std::to_string(primary.Driven)});
    }
    for (int gear = 1; gear <= kGears; ++gear) Pairs(gear);
    Matrix();
    for (const auto& [place, shafts] : combination_.single) {
      Line({.kind = parts_kind::kPart,
            .gear = std::to_string(place.first),
            .text = place.second,
            .main = shafts.main,
            .counter = shafts.counter});
    }
    for (const auto& [pairs, joint] : combination_.joint) {
      Line({.kind = parts_kind::kJoint,
            .text = pairs.first,
            .main = joint.main,
            .counter = joint.counterOfThird,
            .fourth = pairs.second,
            .counterOfFourth = joint.counterOfFourth});
    }
    Keys();
    return text_;
  }

 private:
  void Line(const PartsLine& line) {
    const char* separator = "";
    for (std::string PartsLine::*column : PartsLine::Columns()) {
      text_ += separator + (PartsLine::IsText(column) ? Marked(line.*column) : CsvField(line.*column));
      separator = ",";
    }
    text_ += "\r\n";
  }

  /// Texts such as 14.30 stand in marks, so that a spreadsheet can be told to leave them as they are.
  static std::string Marked(const std::string& text) {
    const std::string field = CsvField(text);
    return field.empty() || field.front() == '"' ? field : '"' + field + '"';
  }

  void Pairs(int gear) {
    for (int row = 1; row <= machine_.GearRows; ++row) {
      PartsLine line{.kind = parts_kind::kGear,
                     .gear = std::to_string(gear),
                     .text = machine_.GearTable(gear, row),
                     .drive = std::to_string(machine_.GearDriveTeeth(gear, row)),
                     .driven = std::to_string(machine_.GearDrivenTeeth(gear, row))};
      // The parts of the first pair of this text stand with it.
      const auto parts = combination_.single.find({gear, line.text});
      const bool hasParts = parts != combination_.single.end() &&
                            !(parts->second.main.empty() && parts->second.counter.empty());
      if (line.text != kNoPair && hasParts) {
        line.main = parts->second.main;
        line.counter = parts->second.counter;
        combination_.single.erase(parts);
      }
      Line(line);
    }
  }

  /// Whether the text of a row names it alone.
  bool IsNamed(int gear, int row) const {
    const std::string& text = machine_.GearTable(gear, row);
    int count = 0;
    for (int other = 1; other <= machine_.GearRows; ++other) count += machine_.GearTable(gear, other) == text;
    return text != kNoPair && count == 1;
  }

  /// Pairs that exclude each other by their texts; what cannot be said so by its rows.
  void Matrix() {
    for (int third = 1; third <= machine_.GearRows; ++third) {
      for (int fourth = 1; fourth <= machine_.GearRows; ++fourth) {
        const int value = machine_.M34Matrix(third, fourth);
        if (value == kEndMark && IsNamed(3, third) && IsNamed(4, fourth)) {
          Line({.kind = parts_kind::kForbidden,
                .text = machine_.GearTable(3, third),
                .fourth = machine_.GearTable(4, fourth)});
        } else if (value != 0) {
          Line({.kind = parts_kind::kMatrix,
                .text = std::to_string(value),
                .drive = std::to_string(third),
                .driven = std::to_string(fourth)});
        }
      }
    }
  }

  void Keys() {
    ForEachKeyed(machine_, [&](const Condition& condition, const auto& keyed, auto) {
      if (!keyed.taken) return;
      Line({.kind = parts_kind::kKey,
            .text = condition.key,
            .drive = ShortestText(static_cast<float>(keyed.set))});
    });
  }

  const Workspace& machine_;
  CombinationFile combination_;  // what is written is taken out
  std::string text_ = std::string(kPartsHeading) + "\r\n";
};

}  // namespace

PartsTable PartsOfList(const std::string& listText, const CombinationFile& combination) {
  PartsTable parts;
  TextReader reader(listText);
  reader.Field();  // the tag
  ReadListTables(reader, parts.machine);
  parts.combination = combination;
  return parts;
}

std::string PartsCsv(const PartsTable& parts) {
  return PartsWriter(parts).Text();
}

}  // namespace veldrin
