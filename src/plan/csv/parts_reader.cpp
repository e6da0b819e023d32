#include "model/list_keys.h"
#include "plan/check/list_remarks.h"
#include "plan/csv/csv_reader.h"
#include "plan/csv/list_writer.h"
#include "plan/csv/parts_csv.h"
#include "plan/csv/parts_kinds.h"
#include "plan/files/bad_input.h"
#include "runtime/conversion.h"
#include "runtime/fault.h"
#include "runtime/text.h"

#include <algorithm>
#include <optional>
#include <vector>

namespace veldrin {

namespace {

constexpr int kThird = 3;
constexpr int kFourth = 4;
constexpr Limits kTeethLimits{1, 32767};

/// Takes the lines one by one; forbidden pairs wait until all pairs are known.
class PartsReader {
 public:
  PartsReader(const std::string& path, const std::string& text)
      : path_(path), records_(ReadCsv(path, text)) {}

  PartsTable Read() {
    TakeHeading();
    for (std::size_t k = 1; k < records_.size(); ++k) {
      line_ = records_[k].line;
      Take(LineOf(records_[k]));
    }
    Finish();
    return parts_;
  }

 private:
  [[noreturn]] void Fail(const std::string& why) const { RefuseLine(path_, line_, why); }

  /// Columns may stand in any order; those that are not needed may be missing.
  void TakeHeading() {
    if (records_.empty())
      RefuseFile(path_, "the table is empty; its first line is " + std::string(kPartsHeading));
    line_ = records_.front().line;
    std::vector<std::string> known;
    std::size_t begin = 0;
    const std::string heading = kPartsHeading;
    while (begin <= heading.size()) {
      const std::size_t end = std::min(heading.find(',', begin), heading.size());
      known.push_back(heading.substr(begin, end - begin));
      begin = end + 1;
    }
    for (const std::string& name : records_.front().fields) {
      const auto found = std::find(known.begin(), known.end(), LowerCase(Trim(name)));
      if (found == known.end() && !name.empty()) {
        Fail(Quoted(name) + " is no column; the first line is " + heading);
      }
      if (found == known.end()) {
        columns_.push_back(nullptr);
      } else {
        columns_.push_back(PartsLine::Columns()[static_cast<std::size_t>(found - known.begin())]);
      }
    }
    if (std::find(columns_.begin(), columns_.end(), &PartsLine::kind) == columns_.end()) {
      Fail("the column kind is missing; the first line is " + heading);
    }
  }

  PartsLine LineOf(const CsvRecord& record) const {
    PartsLine line;
    for (std::size_t k = 0; k < record.fields.size(); ++k) {
      const bool isKnown = k < columns_.size() && columns_[k] != nullptr;
      if (isKnown) line.*columns_[k] = record.fields[k];
      if (!isKnown && !record.fields[k].empty()) Fail(Quoted(record.fields[k]) + " stands in no column");
    }
    return line;
  }

  int Whole(const char* name, const std::string& text, const Limits& limits) const {
    double value = 0;
    if (text.empty()) Fail(std::string(name) + " is missing");
    if (Guarded([&] { value = CsvNumber(text); }) != 0)
      Fail(std::string(name) + ", " + Quoted(text) + ", is no number");
    if (!limits.Holds(value) || value != static_cast<int>(value)) {
      Fail(std::string(name) + ", " + text + ", is no whole number of " + std::to_string(limits.lowest) +
           " to " + std::to_string(limits.highest));
    }
    return static_cast<int>(value);
  }

  std::int16_t Teeth(const char* name, const std::string& text) const {
    return static_cast<std::int16_t>(Whole(name, text, kTeethLimits));
  }

  /// A text that a list can hold.
  const std::string& FieldText(const char* name, const std::string& text) const {
    if (!FitsField(text))
      Fail(std::string(name) + ", " + Quoted(text) +
           ", cannot stand in a list: it needs quotation marks and holds one");
    return text;
  }

  void Take(const PartsLine& line) {
    const std::string& kind = line.kind;
    Workspace& machine = parts_.machine;
    if (kind == parts_kind::kMachine) {
      if (!machine.MachineName.empty()) Fail("a second machine, " + Quoted(line.text));
      if (line.text.empty()) Fail("the machine's name is missing in the column text");
      machine.MachineName = FieldText("text", line.text);
      machine.MachineKey = LowerCase(line.text);
    } else if (kind == parts_kind::kFinalDrive) {
      AddSize(machine.FinalDriveList, machine.FinalDriveCount, Teeth("drive", line.drive));
    } else if (kind == parts_kind::kFinalDriven) {
      AddSize(machine.FinalDrivenList, machine.FinalDrivenCount, Teeth("driven", line.driven));
    } else if (kind == parts_kind::kPrimary) {
      AddPrimary(line);
    } else if (kind == parts_kind::kGear) {
      AddPair(line);
    } else if (kind == parts_kind::kForbidden || kind == parts_kind::kMatrix) {
      waiting_.emplace_back(line_, line);
    } else if (kind == parts_kind::kPart) {
      AddPart(Whole("gear", line.gear, Limits{1, kGears}), line);
    } else if (kind == parts_kind::kJoint) {
      parts_.combination.joint[{FieldText("text", line.text), FieldText("fourth", line.fourth)}] = {
          FieldText("main", line.main), FieldText("counter", line.counter),
          FieldText("counter_of_fourth", line.counterOfFourth)};
      joint_ = line_;
    } else if (kind == parts_kind::kKey) {
      AddKey(line);
    } else {
      Fail(Quoted(kind) +
           " is no kind of part: machine, final-drive, final-driven, primary, gear, forbidden, matrix, part, "
           "joint, key");
    }
  }

  template <int Limit>
  void AddSize(Table<std::int16_t, 1, Limit>& sizes, std::int16_t& count, std::int16_t teeth) {
    if (teeth == kEndMark) Fail("99 teeth cannot stand in a list, where 99 ends the sizes");
    if (count >= Limit) Fail("a list holds " + std::to_string(Limit) + " of them at most");
    sizes[++count] = teeth;
  }

  void AddPrimary(const PartsLine& line) {
    std::int16_t& count = parts_.machine.PrimaryCount;
    if (count >= kPrimaryFileLimit)
      Fail("a list holds " + std::to_string(kPrimaryFileLimit) + " primary pairs at most");
    const std::int16_t drive = Teeth("drive", line.drive);
    if (drive == kEndMark) Fail("99 teeth cannot drive a primary pair in a list, where 99 ends them");
    RatioRow& row = parts_.machine.PrimaryTable[++count];
    row.Drive = drive;
    row.Driven = Teeth("driven", line.driven);
    row.Text = RatioText(row.Drive, row.Driven);
    row.Ratio = Divide(row.Drive, row.Driven);
  }

  void AddPair(const PartsLine& line) {
    const int gear = Whole("gear", line.gear, Limits{1, kGears});
    int& row = rows_[gear];
    if (row >= kGearRowLimit) Fail("a gear has " + std::to_string(kGearRowLimit) + " rows at most");
    ++row;
    Workspace& machine = parts_.machine;
    if (line.text.empty()) Fail("the pair's text is missing; 99 is an empty place");
    machine.GearTable(gear, row) = FieldText("text", line.text);
    const bool isPair = line.text != kNoPair;
    const auto teeth = [&](const char* name, const std::string& text) {
      if (isPair) return Teeth(name, text);
      return static_cast<std::int16_t>(text.empty() ? kEndMark : Whole(name, text, Limits{-32768, 32767}));
    };
    machine.GearDriveTeeth(gear, row) = teeth("drive", line.drive);
    machine.GearDrivenTeeth(gear, row) = teeth("driven", line.driven);
    machine.GearRows = static_cast<std::int16_t>(std::max<int>(machine.GearRows, row));
    if (!line.main.empty() || !line.counter.empty()) AddPart(gear, line);
  }

  void AddPart(int gear, const PartsLine& line) {
    if (gear == kThird) partOfThird_ = line_;
    parts_.combination.single[{gear, FieldText("text", line.text)}] = {FieldText("main", line.main),
                                                                       FieldText("counter", line.counter)};
  }

  void AddKey(const PartsLine& line) {
    const auto isKey = [&](const Condition& condition) { return line.text == condition.key; };
    const auto* condition = std::find_if(std::begin(kConditions), std::end(kConditions), isKey);
    if (condition == std::end(kConditions)) {
      Fail(Quoted(line.text) + " is no key: TYRE_L, CHECK_NE, SHIFT_NE, MAX_SPEED, MAX_NE");
    }
    double value = 0;
    if (Guarded([&] { value = CsvNumber(line.drive); }) != 0 || !condition->limits.Holds(value)) {
      Fail(line.text + ", " + Quoted(line.drive) + ", is no number of " +
           std::to_string(condition->limits.lowest) + " to " + std::to_string(condition->limits.highest));
    }
    keys_ += line.text + '=' + ShortestText(value) + "\r\n";
  }

  /// The only row of the gear with this text.
  int RowOf(int gear, const std::string& text) const {
    int found = 0;
    for (int row = 1; row <= rows_[gear]; ++row) {
      if (text == kNoPair || parts_.machine.GearTable(gear, row) != text) continue;
      if (found != 0) Fail(Quoted(text) + " names two pairs of gear " + std::to_string(gear));
      found = row;
    }
    if (found == 0) Fail("gear " + std::to_string(gear) + " has no pair " + Quoted(text));
    return found;
  }

  void TakeMatrixLine(const PartsLine& line) {
    Workspace& machine = parts_.machine;
    if (line.kind == parts_kind::kForbidden) {
      machine.M34Matrix(RowOf(kThird, line.text), RowOf(kFourth, line.fourth)) = kEndMark;
      return;
    }
    const Limits rows{1, machine.GearRows};
    const int third = Whole("drive", line.drive, rows);
    const int fourth = Whole("driven", line.driven, rows);
    machine.M34Matrix(third, fourth) =
        static_cast<std::int16_t>(Whole("text", line.text, Limits{-32768, 32767}));
  }

  void Finish() {
    Workspace& machine = parts_.machine;
    for (const auto& [line, waiting] : waiting_) {
      line_ = line;
      TakeMatrixLine(waiting);
    }
    if (machine.MachineName.empty()) RefuseFile(path_, "there is no line of kind machine");
    if (machine.FinalDriveCount == 0) RefuseFile(path_, "there is no line of kind final-drive");
    if (machine.FinalDrivenCount == 0) RefuseFile(path_, "there is no line of kind final-driven");
    if (machine.PrimaryCount == 0) RefuseFile(path_, "there is no line of kind primary");
    for (int gear = 1; gear <= kGears; ++gear) {
      if (rows_[gear] == 0)
        RefuseFile(path_, "there is no line of kind gear for gear " + std::to_string(gear));
      // Gears with fewer pairs than others have empty places behind them.
      for (int row = rows_[gear] + 1; row <= machine.GearRows; ++row) {
        machine.GearTable(gear, row) = kNoPair;
        machine.GearDriveTeeth(gear, row) = kEndMark;
        machine.GearDrivenTeeth(gear, row) = kEndMark;
      }
    }
    const bool separate = HasSeparateParts(machine.MachineKey);
    line_ = separate ? joint_ : partOfThird_;
    if (line_ != 0) {
      Fail(separate ? "3rd and 4th gear of this machine have parts of their own; type lines part for them"
                    : "3rd and 4th gear share a part of the main shaft; type lines joint for them");
    }
    TextReader reader(keys_);
    ReadListKeys(reader, machine);
  }

  const std::string& path_;
  std::vector<CsvRecord> records_;
  std::vector<std::string PartsLine::*> columns_;
  int line_ = 0;
  PartsTable parts_;
  Table<int, 1, kGears> rows_;
  std::vector<std::pair<int, PartsLine>> waiting_;
  int joint_ = 0;
  int partOfThird_ = 0;
  std::string keys_;
};

}  // namespace

PartsTable ReadPartsCsv(const std::string& path, const std::string& text) {
  return PartsReader(path, text).Read();
}

}  // namespace veldrin
