#include "script/variables.h"

#include "script/script_error.h"
#include "script/script_suggest.h"
#include "script/script_values.h"
#include "simulated/printed_values.h"

#include <limits>
#include <optional>

namespace veldrin {

namespace {

/// Shows every variable to `visit(name, field)`.
template <class Visitor>
void VisitVariables(Program& program, Visitor& visit) {
  Workspace& w = program.workspace;
  visit("MachineName", w.MachineName);
  visit("MachineKey", w.MachineKey);
  visit("FinalDriveList", w.FinalDriveList);
  visit("FinalDriveCount", w.FinalDriveCount);
  visit("FinalDrivenList", w.FinalDrivenList);
  visit("FinalDrivenCount", w.FinalDrivenCount);
  visit("FinalTable", w.FinalTable);
  visit("PrimaryTable", w.PrimaryTable);
  visit("PrimaryCount", w.PrimaryCount);
  visit("GearRows", w.GearRows);
  visit("GearTable", w.GearTable);
  visit("GearDriveTeeth", w.GearDriveTeeth);
  visit("GearDrivenTeeth", w.GearDrivenTeeth);
  visit("M34Matrix", w.M34Matrix);
  visit("GearFirstRow", w.GearFirstRow);
  visit("FinalRow7Text", w.FinalRow7Text);
  visit("FinalRow1Text", w.FinalRow1Text);

  visit("PrimaryIndex", w.PrimaryIndex);
  visit("FinalIndex", w.FinalIndex);
  visit("PlanIndex", w.PlanIndex);
  visit("FilePrimaryDrive", w.FilePrimaryDrive);
  visit("FilePrimaryDriven", w.FilePrimaryDriven);
  visit("FileFinalDrive", w.FileFinalDrive);
  visit("FileFinalDriven", w.FileFinalDriven);

  visit("TyreLength", w.TyreLength);
  visit("ShiftNe", w.ShiftNe);
  visit("CheckNe", w.CheckNe);
  visit("ReferenceNe", w.ReferenceNe);
  visit("MaxSpeed", w.MaxSpeed);
  visit("MaxNe", w.MaxNe);

  visit("SpeedNow", w.SpeedNow);
  visit("SpeedBaseline", w.SpeedBaseline);
  visit("SpeedRequest", w.SpeedRequest);
  visit("SpeedStepNow", w.SpeedStepNow);
  visit("SpeedStepBaseline", w.SpeedStepBaseline);
  visit("ShiftDropNe", w.ShiftDropNe);
  visit("NeDeviation", w.NeDeviation);

  visit("ToleranceMinus", w.ToleranceMinus);
  visit("TolerancePlus", w.TolerancePlus);
  visit("BaseNe", w.BaseNe);
  visit("RequestNe", w.RequestNe);
  visit("GearChoiceCount", w.GearChoiceCount);
  visit("PlanList", w.PlanList);
  visit("PlanCount", w.PlanCount);

  visit("AppPath", w.AppPath);
  visit("ListPath", w.ListPath);
  visit("DataPath", w.DataPath);
  visit("InitialDataPath", w.InitialDataPath);
  visit("ListFile", w.ListFile);
  visit("DataFile", w.DataFile);
  visit("OpenFile", w.OpenFile);
  visit("PlanLine", w.PlanLine);
  visit("WorkFile", w.WorkFile);
  visit("CommandFile", w.CommandFile);
  visit("TempDir", w.TempDir);
  visit("ChosenDir", w.TempDir);  // the chooser's name for it
  visit("SaveName", w.SaveName);
  visit("RemarkFirstLine", w.RemarkFirstLine);

  visit("TitlePrefix", w.TitlePrefix);
  visit("ChangedMark", w.ChangedMark);
  visit("IsJapanese", w.IsJapanese);
  visit("Language", w.Language);
  visit("MessageTable", w.MessageTable);

  visit("CallerWord", w.CallerWord);
  visit("ModeWord", w.ModeWord);
  visit("ResultWord", w.ResultWord);
  visit("PendingAction", w.PendingAction);
  visit("DataChanged", w.DataChanged);
  visit("RemarkChanged", w.RemarkChanged);
  visit("WorkFileStale", w.WorkFileStale);

  visit("HistoryMax", w.HistoryMax);
  visit("HistoryCount", w.HistoryCount);
  visit("PendingHistoryIndex", w.PendingHistoryIndex);
  visit("MinPlan", w.MinPlan);
  visit("QuickQuit", w.QuickQuit);
  visit("PrintFont", w.PrintFont);
  visit("PrintFontBold", w.PrintFontBold);
  visit("PrintFontItalic", w.PrintFontItalic);
  visit("Separate34", w.Separate34);
  visit("GearColour", w.GearColour);
  visit("NumExtReg", w.NumExtReg);
  visit("MenuRegCount", w.MenuRegCount);
  visit("ExtSlot", w.ExtSlot);
  visit("LastTop", w.LastTop);
  visit("LastLeft", w.LastLeft);
  visit("DecimalSep", w.DecimalSep);
  visit("ThousandSep", w.ThousandSep);
  visit("FirstInstance", w.FirstInstance);
  visit("TempCleaned", w.TempCleaned);
  visit("ReportSizeIndex", w.ReportSizeIndex);

  PlanDialogState& plan = program.planDialog;
  visit("ShownPlan", plan.ShownPlan);
  visit("ShownPrimary", plan.ShownPrimary);
  visit("ShownFinal", plan.ShownFinal);
  visit("ShownRow", plan.ShownRow);
  visit("ShownSpeed", plan.ShownSpeed);
  visit("ShownStep", plan.ShownStep);
  visit("ShownDrop", plan.ShownDrop);

  visit("CompareCount", program.compare.CompareCount);
  visit("CompareIndex", program.compare.CompareIndex);
  visit("CompareSlot", program.compare.CompareSlot);
  visit("ValidationResult", program.settingsDialog.ValidationResult);
}

template <class Visitor>
void VisitFields(RatioRow& row, Visitor& visit) {
  FixedText text{&row.Text, static_cast<std::size_t>(kRatioTextLength)};
  visit("Drive", row.Drive);
  visit("Driven", row.Driven);
  visit("Text", text);
  visit("Ratio", row.Ratio);
}

template <class Visitor>
void VisitFields(CompareSlotRecord& slot, Visitor& visit) {
  visit("Filename", slot.Filename);
  visit("Title", slot.Title);
  visit("Primary", slot.Primary);
  visit("Final", slot.Final);
  visit("Tyre", slot.Tyre);
  visit("ShiftNe", slot.ShiftNe);
  visit("Speed", slot.Speed);
  visit("DropNe", slot.DropNe);
  visit("Plan", slot.Plan);
  visit("Step", slot.Step);
}

int CheckedIndex(const NamePart& part, std::size_t which, int first, int last) {
  const int index = part.indices[which];
  if (index >= first && index <= last) return index;
  throw ScriptError{NameText(part) + " is outside of the table: " + std::to_string(first) + " to " +
                    std::to_string(last)};
}

/// Follows a name from one of its parts into the fields.
class Finder {
 public:
  Finder(const ScriptName& name, std::size_t part) : name_(name), part_(part) {}

  std::optional<VariablePlace> found;
  std::vector<std::string> known;

  template <class Field>
  void operator()(const char* label, Field& field) {
    known.emplace_back(label);
    if (part_ < name_.size() && name_[part_].name == label) Enter(field);
  }

 private:
  const NamePart& Part() const { return name_[part_]; }

  void Subscripts(std::size_t count) const {
    if (Part().indices.size() == count) return;
    throw ScriptError{Part().name + (count == 0   ? " is no table"
                                     : count == 1 ? " needs one subscript"
                                                  : " needs two subscripts")};
  }

  template <class Value>
  void Enter(Value& value) {
    Subscripts(0);
    Element(value);
  }
  template <class T, int first, int last>
  void Enter(Table<T, first, last>& table) {
    Subscripts(1);
    Element(table[CheckedIndex(Part(), 0, first, last)]);
  }
  template <class T, int rows, int columns>
  void Enter(Grid2D<T, rows, columns>& table) {
    Subscripts(2);
    const int row = CheckedIndex(Part(), 0, 1, rows);
    Element(table(row, CheckedIndex(Part(), 1, 1, columns)));
  }

  template <class Value>
  void Element(Value& value) {
    if (part_ + 1 < name_.size()) throw ScriptError{NameText(name_) + ": " + Part().name + " has no fields"};
    if constexpr (std::is_same_v<Value, FixedText>) {
      found = value;
    } else {
      found = &value;
    }
  }
  void Element(RatioRow& row) { Field(row); }
  void Element(CompareSlotRecord& slot) { Field(slot); }

  template <class Record>
  void Field(Record& record) {
    Finder inner(name_, part_ + 1);
    VisitFields(record, inner);
    if (part_ + 1 >= name_.size())
      throw ScriptError{NameText(name_) + " needs one of its fields" + List(inner)};
    if (!inner.found) {
      throw ScriptError{NameText(name_) + " is unknown" + Suggestion(name_[part_ + 1].name, inner.known)};
    }
    found = inner.found;
  }

  static std::string List(const Finder& finder) {
    std::string list;
    for (const std::string& field : finder.known) list += (list.empty() ? ": " : ", ") + field;
    return list;
  }

  const ScriptName& name_;
  std::size_t part_;
};

struct Setter {
  const std::string& word;

  void operator()(std::string* text) const { *text = word; }
  void operator()(const FixedText& fixed) const {
    *fixed.text = word;
    fixed.text->resize(fixed.length, ' ');
  }
  void operator()(std::int16_t* number) const {
    using Limits = std::numeric_limits<std::int16_t>;
    *number = static_cast<std::int16_t>(WholeNumber(word, Limits::min(), Limits::max()));
  }
  void operator()(float* number) const { *number = SingleNumber(word); }
  void operator()(double* number) const { *number = Number(word); }
  void operator()(bool* truth) const { *truth = TrueOrFalse(word); }
  void operator()(Colour* colour) const { *colour = ColourOf(word); }
};

struct Reader {
  std::string operator()(const FixedText& fixed) const { return *fixed.text; }
  std::string operator()(const std::int16_t* number) const { return ValueText(static_cast<int>(*number)); }
  template <class Value>
  std::string operator()(const Value* value) const {
    return ValueText(*value);
  }
};

}  // namespace

bool IsVariable(Program& program, const std::string& name) {
  for (const std::string& known : VariableNames(program)) {
    if (known == name) return true;
  }
  return false;
}

VariablePlace FindVariable(Program& program, const ScriptName& name) {
  Finder finder(name, 0);
  VisitVariables(program, finder);
  if (!finder.found)
    throw ScriptError{NameText(name) + " is unknown" + Suggestion(name[0].name, finder.known)};
  return *finder.found;
}

std::string VariableText(const VariablePlace& place) {
  return std::visit(Reader{}, place);
}

void SetVariable(const VariablePlace& place, const std::string& text) {
  std::visit(Setter{text}, place);
}

std::vector<std::string> VariableNames(Program& program) {
  const ScriptName none;
  Finder finder(none, 0);
  VisitVariables(program, finder);
  return finder.known;
}

}  // namespace veldrin
