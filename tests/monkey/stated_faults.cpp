#include "tests/monkey/stated_faults.h"

#include "runtime/fault.h"
#include "runtime/text.h"
#include "tests/monkey/figures.h"

#include <cstdlib>

namespace veldrin::monkey {

namespace {

bool IsNumber(const Look& look, const std::string& text) {
  double number = 0;
  return ReadNumber(look.program.workspace, text, number);
}

bool Wrote(const Look& look, const char* control) {
  return look.deed.On("Form2", control);
}

// ---- Boxes of the main window ----

bool RequestIsNoNumber(const Look& look) {
  if (!Wrote(look, "Text1")) return false;
  return !IsNumber(look, look.program.form2.Text1[look.deed.index].Text);
}

/// The box was left, or took Enter, with something in it that is no number.
bool WasLeft(const Look& look, const TextBox& box) {
  return (look.before.focus == box.name || Wrote(look, box.name.c_str())) && !IsNumber(look, box.Text);
}

bool RevolutionsAreNoNumber(const Look& look) {
  return WasLeft(look, look.program.form2.Text2) || WasLeft(look, look.program.form2.Text4);
}

bool TyreIsNoNumber(const Look& look) {
  const TextBox& box = look.program.form2.Text3;
  return !box.Text.get().empty() && WasLeft(look, box);
}

// ---- Requests by revolutions ----

bool RequestedAtNoRevolutions(const Look& look) {
  return Wrote(look, "SpinButton2") && look.program.workspace.RequestNe[look.deed.index] == 0;
}

bool RevolutionsLeaveTheirWidth(const Look& look) {
  if (!Wrote(look, "SpinButton1") && !Wrote(look, "SpinButton2")) return false;
  const Workspace& workspace = look.program.workspace;
  const int gear = look.deed.index;
  constexpr int kNearTheEnd = 32767 - 50;
  return std::abs(workspace.BaseNe[gear]) >= kNearTheEnd ||
         std::abs(workspace.RequestNe[gear]) >= kNearTheEnd;
}

// ---- Divisions by speeds and revolutions ----

/// The arrows draw the requests at once, and what fills the boxes from the baseline draws what a file without
/// sense has put there. Everything else that draws them has brought them to 10 km/h before.
bool RequestIsZero(const Look& look) {
  const bool fromBaseline = Wrote(look, "Command2") || Wrote(look, "f_mode") || Wrote(look, "f_calc") ||
                            Wrote(look, "Command8") || Wrote(look, "Command10");
  for (int gear = 1; gear <= kGears; ++gear) {
    if (look.program.workspace.SpeedRequest[gear] != 0) continue;
    const bool noBaseline = std::abs(look.program.workspace.SpeedBaseline[gear]) <= 0.5F;
    if (Wrote(look, "SpinButton2") || (fromBaseline && noBaseline)) return true;
  }
  return false;
}

/// A redraw that a window's size or the colours ask for ends nothing, nor does anything without a machine.
bool PlanHasNoSpeed(const Look& look) {
  const Workspace& workspace = look.program.workspace;
  const bool plainRedraw = look.deed.Is("resize") || look.deed.Is("state") || look.deed.window == "Form9";
  if (plainRedraw || look.now.machineKey.empty()) return false;
  return workspace.ShiftNe == 0 || workspace.TyreLength == 0 || workspace.PrimaryCount == 0;
}

bool DropLeavesItsWidth(const Look& look) {
  if (!Wrote(look, "Command4") && !Wrote(look, "f_comp")) return false;
  for (int gear = 1; gear <= kGears; ++gear) {
    if (look.program.workspace.ShiftDropNe[gear] > 32767) return true;
  }
  return false;
}

// ---- Search ----

bool FoundTooManyPlans(const Look& look) {
  return look.deed.Is("advance") && look.program.workspace.PlanCount >= kPlanLimit;
}

bool ShownPlanIsEmpty(const Look& look) {
  const std::int16_t shown = look.program.planDialog.ShownPlan;
  return look.program.form4 && shown >= 1 && shown <= kPlanLimit &&
         look.program.workspace.PlanList[shown].empty();
}

// ---- Pictures ----

bool PictureBesideFullPath(const Look& look) {
  return Wrote(look, "bmp") && look.program.workspace.DataFile.find(':') != std::string::npos;
}

bool PartHasNoName(const Look& look) {
  const bool picture = Wrote(look, "clip") || Wrote(look, "bmp");
  if (!picture || !look.program.form2.Picture9.Visible) return false;
  for (const int gear : {1, 2, 3, 5, 6}) {
    if (look.program.form2.Label32[gear].Caption.get().empty()) return true;
  }
  return false;
}

// ---- Settings ----

bool StoredNumberIsNone(const Look& look) {
  if (!look.deed.Is("start") && !look.deed.Is("advance")) return false;
  constexpr char kKey[] = "Software\\Tarn Ridge\\Veldrin";
  for (const char* name : {"Tyre_l", "Check_Ne", "Shift_Ne", "Max_Speed", "Max_Ne", "His_Num", "Min Plan"}) {
    const auto stored = look.world.machine.registry.Read(RegistryRoot::CurrentUser, kKey, name);
    if (stored && !stored->empty() && !IsNumber(look, *stored)) return true;
  }
  return false;
}

bool SettingBeginsAsNumber(const Look& look) {
  if (!look.deed.On("Form7", "SAVE") || !look.program.form7) return false;
  for (int box = 0; box <= 4; ++box) {
    if (!IsNumber(look, look.program.form7->Text1[box].Text)) return true;
  }
  return false;
}

bool DriveOfSettings(const Look& look) {
  return look.deed.On("Form7", "Drive1") || look.deed.On("Form7", "Drive2");
}

}  // namespace

const std::vector<StatedFault>& StatedFaults() {
  // clang-format off
  static const std::vector<StatedFault> kFaults = {
      {kFaultTypeMismatch,   "a request that is no number fails in its conversion", RequestIsNoNumber},
      {kFaultOverflow,       "a request beyond all numbers fails in its conversion", RequestIsNoNumber},
      {kFaultTypeMismatch,   "revolutions that are empty or no number fail in their conversion", RevolutionsAreNoNumber},
      {kFaultTypeMismatch,   "a tyre length that is no number fails in its conversion", TyreIsNoNumber},
      {kFaultDivisionByZero, "the request of a speed is divided by its revolutions", RequestedAtNoRevolutions},
      {kFaultOverflow,       "no speed is divided by no revolutions", RequestedAtNoRevolutions},
      {kFaultOverflow,       "revolutions are whole numbers of 16 bits, and their arrows have no end", RevolutionsLeaveTheirWidth},
      {kFaultDivisionByZero, "the saw-tooth divides by the requests", RequestIsZero},
      {kFaultOverflow,       "the saw-tooth divides a request of 0 by another", RequestIsZero},
      {kFaultDivisionByZero, "the refresh divides by speeds and revolutions", PlanHasNoSpeed},
      {kFaultOverflow,       "the refresh divides a speed of 0 by another", PlanHasNoSpeed},
      {kFaultOverflow,       "a plan on the compare window has drops of 16 bits", DropLeavesItsWidth},
      {kFaultSubscript,      "the table of plans holds 30", FoundTooManyPlans},
      {kFaultTypeMismatch,   "removing equal plans may leave empty ones, whose numbers cannot be read", ShownPlanIsEmpty},
      {kFaultBadFileName,    "a picture's path is the data folder and a full path behind it", PictureBesideFullPath},
      {kFaultDivisionByZero, "a part without a name cannot be sized", PartHasNoName},
      {kFaultTypeMismatch,   "a stored number that is none is nobody's to handle", StoredNumberIsNone},
      {kFaultTypeMismatch,   "a setting that only begins as a number fails in its conversion", SettingBeginsAsNumber},
      {kFaultDriveNotReady,  "a drive of the settings that is not ready is nobody's to handle", DriveOfSettings},
      {kFaultPathNotFound,   "a folder of the settings that is gone is nobody's to handle", DriveOfSettings},
  };
  // clang-format on
  return kFaults;
}

const StatedFault* StatedFaultOf(const Look& look) {
  for (const StatedFault& stated : StatedFaults()) {
    if (look.now.ended && stated.fault == look.now.endFault && stated.isCase(look)) return &stated;
  }
  return nullptr;
}

}  // namespace veldrin::monkey
