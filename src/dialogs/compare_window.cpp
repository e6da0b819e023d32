#include "dialogs/compare_window.h"

#include "dialogs/other_captions.h"
#include "mainwin/chart.h"
#include "model/decimal.h"
#include "model/gear_pairs.h"
#include "platform/paths.h"
#include "runtime/conversion.h"
#include "runtime/text.h"
#include "view/bind.h"
#include "workspace/captions.h"
#include "workspace/chooser_setup.h"
#include "workspace/control_states.h"

namespace veldrin {

namespace {

constexpr float kOuterWidth = 7690;  // twips
constexpr float kOuterHeight = 7300;
constexpr int kLastSlot = kCompareSlots - 1;
constexpr int kPatternCharacters = 3;  // of the machine's key in the name box

// ---- Drawing and showing a slot ----

/// Raises fault 11 or 6 for a slot without revolutions.
void DrawSlot(Program& program, int index) {
  const Workspace& workspace = program.workspace;
  const CompareSlotRecord& slot = program.compare.CompareSlot[index];
  Surface& surface = program.form5->Picture21[index].surface;
  for (int gear = 1; gear <= kGears; ++gear) {
    DrawRay(surface, workspace.MaxNe, slot.Speed[gear], slot.ShiftNe, workspace.GearColour[gear]);
  }
  DrawMarkLine(surface, slot.ShiftNe, workspace.MaxSpeed, kPenDotted, kWhite);
  surface.drawStyle = kPenSolid;
  const auto speed = [&](int gear) { return static_cast<double>(slot.Speed[gear]); };
  const auto drop = [&](int gear) { return static_cast<double>(slot.DropNe[gear]); };
  const SawTooth tooth{static_cast<double>(slot.ShiftNe), static_cast<double>(workspace.MaxNe), speed, drop};
  DrawSawTooth(surface, tooth, kWhite);
}

void ShowConditions(Program& program, const CompareSlotRecord& slot) {
  Form5& form5 = *program.form5;
  form5.Label1.Caption = slot.Title;
  form5.Label2.Caption = slot.Filename;
  form5.Label6[0].Caption = slot.Primary;
  form5.Label8[0].Caption = slot.Final;
  form5.Label15.Caption = SingleText(program.workspace, slot.Tyre);
  form5.Label16.Caption = std::to_string(slot.ShiftNe);
}

/// Raises fault 6 for speeds too far apart for a 32-bit step.
void ShowSlot(Program& program) {
  const Workspace& workspace = program.workspace;
  CompareSlotRecord& slot = program.compare.CompareSlot[program.compare.CompareIndex];
  Form5& form5 = *program.form5;
  ShowConditions(program, slot);
  for (int gear = 1; gear <= kGears; ++gear) {
    ShowSpeed(workspace, form5.Label9[gear], slot.Speed[gear]);
    form5.Label12[gear].Caption = slot.Plan[gear];
    form5.Label11[gear].Caption = std::to_string(slot.DropNe[gear]);
  }
  for (int gear = 2; gear <= kGears; ++gear) {
    slot.Step[gear - 1] = ToSingle(static_cast<double>(slot.Speed[gear]) - slot.Speed[gear - 1]);
    ShowStep(workspace, form5.Label39[gear - 1], slot.Step[gear - 1]);
  }
  form5.Picture21[program.compare.CompareIndex].BringToFront();
}

// ---- Opening and closing ----

void PlaceWindow(Program& program) {
  Form5& form5 = *program.form5;
  form5.Centre(kOuterWidth, kOuterHeight);
  form5.Height = kOuterHeight;
  form5.Width = kOuterWidth;
}

void SetScales(Program& program) {
  const Workspace& workspace = program.workspace;
  Form5& form5 = *program.form5;
  const float thousandNe = TwipsPerThousandNe(workspace);
  const float twentyKmh = TwipsPerTwentyKmh(workspace);
  PlaceTicks(form5, thousandNe, twentyKmh);
  PlaceNumerals(form5, thousandNe, twentyKmh);
  for (int index = 0; index <= kLastSlot; ++index) {
    form5.Picture21[index].surface.SetScale(ChartUnits(workspace));
  }
}

/// The plan of the main window.
/// Kept: a drop beyond 16 bits is a fault here, and ends the program.
void FillFromWorkspace(Program& program, CompareSlotRecord& slot) {
  const Workspace& workspace = program.workspace;
  slot.Filename = workspace.IsJapanese == 1 ? "処理中のデータ" : "Process Data";
  slot.Title = program.form2.Text6.Text;
  for (int gear = 1; gear <= kGears; ++gear) {
    slot.Speed[gear] = workspace.SpeedNow[gear];
    slot.DropNe[gear] = ToInt16(workspace.ShiftDropNe[gear]);
    slot.Plan[gear] = workspace.GearTable(gear, workspace.PlanIndex[gear]);
  }
  slot.ShiftNe = workspace.ShiftNe;
  slot.Tyre = workspace.TyreLength;
  slot.Primary = workspace.PrimaryTable[workspace.PrimaryIndex].Text;
  slot.Final = workspace.FinalTable[workspace.FinalIndex].Text;
  slot.Speed[0] = slot.Speed[1];
}

void Form5_Load(Program& program) {
  const Workspace& workspace = program.workspace;
  Form5& form5 = *program.form5;
  TakeJapaneseCaptions(workspace, form5);
  PlaceWindow(program);
  SetScales(program);
  for (int gear = 1; gear <= kGears; ++gear) ShowGearColour(workspace, gear, {&form5.Label3, &form5.Label9});
  form5.Spin1.Enabled = false;
  FillFromWorkspace(program, program.compare.CompareSlot[0]);
  program.compare.CompareIndex = 0;
  program.compare.CompareCount = 1;
  DrawSlot(program, 0);
  ShowSlot(program);
}

void Form5_Unload(Program& program) {
  program.compare.CompareCount = 0;
  program.compare.CompareSlot.Clear();
  program.form2.Show();
}

void Command2_Click(Program& program) {
  program.form5->UnloadWindow();
}

// ---- Flipping ----

void Spin1_SpinDown(Program& program) {
  CompareState& compare = program.compare;
  const int before = compare.CompareIndex > 0 ? compare.CompareIndex : compare.CompareCount;
  compare.CompareIndex = static_cast<std::int16_t>(before - 1);
  ShowSlot(program);
}

void Spin1_SpinUp(Program& program) {
  CompareState& compare = program.compare;
  const int next = compare.CompareIndex + 1;
  compare.CompareIndex = static_cast<std::int16_t>(next < compare.CompareCount ? next : 0);
  ShowSlot(program);
}

// ---- The picker of files ----

/// Append. Where the data folder cannot be had, the boxes stay where they are, or go to its drive as far as
/// that is there; a drive's root is gone to as such, for its letter alone would be the drive's current
/// folder. The pattern goes over "*.*", so that the list is read anew even where it is the same as before.
/// Kept: the name box gets its item anew each time, and shows three characters of a longer key.
void Command1_Click(Program& program) {
  const Workspace& workspace = program.workspace;
  Form5& form5 = *program.form5;
  const std::string pattern = "*." + Left(workspace.MachineKey, kPatternCharacters);
  form5.Combo1.AddItem(pattern);
  form5.Combo1.Text = pattern;
  form5.Command4.Enabled = false;
  const std::string folder = WithRoot(program.machine.files.Rules(), workspace.DataPath);
  Guarded([&] { form5.Drive1.Drive = folder; });
  Guarded([&] { form5.Dir1.Path = folder; });
  Guarded([&] { form5.File1.Path = form5.Dir1.Path; });
  form5.File1.Pattern = kAnyPattern;
  form5.File1.Pattern = DataPattern(workspace);
  form5.Picture3.Visible = true;
}

void Command5_Click(Program& program) {
  program.form5->Picture3.Visible = false;
}

/// A drive that is not ready leaves the folder box where it is.
void Drive1_Change(Program& program) {
  Guarded([&] { program.form5->Dir1.Path = program.form5->Drive1.Drive; });
}

void Dir1_Change(Program& program) {
  program.form5->File1.Path = program.form5->Dir1.Path;
}

void File1_Click(Program& program) {
  Form5& form5 = *program.form5;
  form5.Command4.Enabled = true;
  form5.Combo1.Text = form5.File1.FileName;
}

/// Kept: a typed name enables the button as well, but what is loaded is the file picked in the list.
void Combo1_Change(Program& program) {
  program.form5->Command4.Enabled = true;
}

// ---- Reading a file ----

/// The next line's number, in the system's spelling or another.
float ReadDecimal(Program& program) {
  return RepairedSingle(program.workspace, program.files.Reader(Handle::Compare).Line());
}

std::string ReadRatio(Program& program) {
  TextReader& reader = program.files.Reader(Handle::Compare);
  const std::string drive = reader.Field();
  return drive + "-" + reader.Field();
}

std::string ReadLine(Program& program) {
  return program.files.Reader(Handle::Compare).Line();
}

/// The lines of a plan file; of the remark only the first. A line that fails leaves its field as it was, and
/// so do all of them for a file that is not there.
/// Kept: what the file's tag says of its machine is not looked at.
void ReadPlan(Program& program, const std::string& name, CompareSlotRecord& slot) {
  const PathRules rules = program.machine.files.Rules();
  Guarded(
      [&] { program.files.OpenInput(Handle::Compare, JoinPath(rules, program.workspace.TempDir, name)); });
  slot.Filename = UpperCase(name);
  Guarded([&] { ReadLine(program); });
  Guarded([&] { slot.Tyre = ReadDecimal(program); });
  Guarded([&] { slot.ShiftNe = ToInt16(ReadDecimal(program)); });
  for (int gear = 1; gear <= kGears; ++gear) {
    Guarded([&] { slot.Speed[gear] = ReadDecimal(program); });
  }
  Guarded([&] { slot.Primary = ReadRatio(program); });
  Guarded([&] { slot.Final = ReadRatio(program); });
  Guarded([&] { SplitPairs(ReadLine(program), slot.Plan); });
  Guarded([&] { slot.Title = ReadLine(program); });
  Guarded([&] { program.files.Close(Handle::Compare); });
}

/// The revolutions after the changes up; one that cannot be computed stays 0.
void ComputeDrops(CompareSlotRecord& slot) {
  slot.Speed[0] = slot.Speed[1];
  for (int gear = 1; gear <= kGears; ++gear) {
    const double reached = static_cast<double>(slot.ShiftNe) * slot.Speed[gear - 1];
    Guarded([&] { slot.DropNe[gear] = ToInt16(Divide(reached, slot.Speed[gear])); });
  }
}

/// Kept: a file of which little or nothing could be read takes its slot all the same.
void TakeFile(Program& program) {
  CompareState& compare = program.compare;
  Form5& form5 = *program.form5;
  const int index = compare.CompareCount;
  CompareSlotRecord& slot = compare.CompareSlot[index];
  ReadPlan(program, form5.File1.FileName, slot);
  ComputeDrops(slot);
  if (index == kLastSlot) form5.Command1.Enabled = false;
  Guarded([&] { DrawSlot(program, index); });
  compare.CompareIndex = static_cast<std::int16_t>(index);
  Guarded([&] { ShowSlot(program); });
  compare.CompareCount = static_cast<std::int16_t>(index + 1);
}

/// Load, and a double click on a file.
void Command4_Click(Program& program) {
  Form5& form5 = *program.form5;
  program.workspace.TempDir = TrimRoot(program.machine.files.Rules(), form5.File1.Path);
  TakeFile(program);
  form5.Spin1.Enabled = true;
  form5.Command4.Enabled = false;
  form5.Picture3.Visible = false;
}

}  // namespace

void AttachCompareWindow(Program& program) {
  program.form5.attach = [&program](Form5& form5) {
    On(program, form5.Load, Form5_Load);
    On(program, form5.Unload, Form5_Unload);
    On(program, form5.Spin1.SpinDown, Spin1_SpinDown);
    On(program, form5.Spin1.SpinUp, Spin1_SpinUp);
    On(program, form5.Command1.Click, Command1_Click);
    On(program, form5.Command2.Click, Command2_Click);
    On(program, form5.Command4.Click, Command4_Click);
    On(program, form5.Command5.Click, Command5_Click);
    On(program, form5.Drive1.Change, Drive1_Change);
    On(program, form5.Dir1.Change, Dir1_Change);
    On(program, form5.File1.Click, File1_Click);
    On(program, form5.File1.DblClick, Command4_Click);
    On(program, form5.Combo1.Change, Combo1_Change);
  };
}

}  // namespace veldrin
