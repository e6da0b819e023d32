#include "dialogs/reference_file.h"

#include "mainwin/chart.h"
#include "mainwin/gear_panel/gear_panel_requests.h"
#include "model/chart_room.h"
#include "model/decimal.h"
#include "platform/paths.h"
#include "runtime/conversion.h"
#include "runtime/text.h"
#include "workspace/caller.h"
#include "workspace/chooser_setup.h"
#include "workspace/title.h"

#include <string>

namespace veldrin {

namespace {

/// The file on its handle, or an empty one when it could not be opened: every read is then past the end.
class OpenedReference {
 public:
  explicit OpenedReference(Program& program) : program_(program) {
    const Workspace& workspace = program.workspace;
    const std::string path =
        JoinPath(program.machine.files.Rules(), workspace.TempDir, program.form3.File1.FileName);
    opened_ = Guarded([&] { program.files.OpenInput(Handle::Reference, path); }) == 0;
  }
  OpenedReference(const OpenedReference&) = delete;
  OpenedReference& operator=(const OpenedReference&) = delete;
  ~OpenedReference() {
    if (opened_) program_.files.Abandon(Handle::Reference);
  }

  TextReader& Reader() { return opened_ ? program_.files.Reader(Handle::Reference) : nothing_; }

 private:
  Program& program_;
  bool opened_ = false;
  TextReader nothing_{""};
};

void Append(Program& program, const std::string& text) {
  program.form2.Text6.Text = program.form2.Text6.Text + text + std::string(kCrLf);
}

void ReadRemarkLine(Program& program, TextReader& reader) {
  Guarded([&] { program.workspace.RemarkFirstLine = reader.Line(); });
  Append(program, program.workspace.RemarkFirstLine);
}

/// Kept: unlike a plan's, they do not lay out the scale anew, so the scroll bar's thumb stays at its old end.
void FollowShiftNe(Program& program) {
  Workspace& workspace = program.workspace;
  Guarded([&] { WidenRevolutions(workspace); });
  Guarded([&] { program.form2.HScroll1.Value = workspace.ShiftNe; });
}

void AppendRest(Program& program, TextReader& reader) {
  std::string rest;
  while (!reader.AtEnd()) rest += reader.Line() + std::string(kCrLf);
  program.form2.Text6.Text = program.form2.Text6.Text + rest;
}

void PutInForce(Program& program) {
  program.workspace.ModeWord = mode::kReferenceInForce;
  program.form2.Label43.Caption = kRequestsShown;
  program.form2.Caption = PlanTitle(program, program.form3.File1.FileName.get());
  program.form2.Text3.Text = "";
}

/// The running conditions go to their boxes; the tyre length's starts the search.
void ShowConditions(Program& program) {
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  Under(program, caller::kQuick, [&] {
    Guarded([&] { form2.Text2.Text = SingleText(workspace, workspace.CheckNe); });
    Guarded([&] { form2.Text4.Text = std::to_string(workspace.ShiftNe); });
    Guarded([&] { form2.Text3.Text = SingleText(workspace, workspace.TyreLength); });
  });
}

/// A field that is missing leaves both speeds as they were. Whether the baseline has its speed from the file.
bool ReadQuickRatioSpeed(Program& program, TextReader& reader, int gear) {
  Workspace& workspace = program.workspace;
  std::string field;
  Guarded([&] { field = reader.Field(); });
  const bool taken = Guarded([&] { workspace.SpeedBaseline[gear] = ParseSingle(field); }) == 0;
  Guarded([&] { workspace.SpeedRequest[gear] = ParseInt16(field); });
  Append(program, field);
  return taken;
}

/// A baseline from the file belongs to the file's revolutions; one that stays keeps its own.
void ReadQuickRatioSpeeds(Program& program, TextReader& reader) {
  bool taken = false;
  for (int gear = 1; gear <= kGears; ++gear) taken |= ReadQuickRatioSpeed(program, reader, gear);
  if (taken) program.workspace.ReferenceNe = program.workspace.ShiftNe;
}

void ReadReferenceSpeed(Program& program, TextReader& reader, int gear) {
  Workspace& workspace = program.workspace;
  std::string line;
  Guarded([&] { line = reader.Line(); });
  workspace.SpeedRequest[gear] = 0;
  Guarded([&] { workspace.SpeedBaseline[gear] = RepairedSingle(workspace, line); });
  Append(program, line);
}

}  // namespace

void LoadQuickRatioFile(Program& program) {
  Workspace& workspace = program.workspace;
  workspace.DataPath = workspace.TempDir;
  program.form2.Text6.Text = "";
  {
    OpenedReference file(program);
    TextReader& reader = file.Reader();
    ReadRemarkLine(program, reader);
    Guarded([&] { workspace.TyreLength = reader.SingleField(); });
    Append(program, SingleText(workspace, workspace.TyreLength));
    Guarded([&] { workspace.ShiftNe = reader.Int16Field(); });
    Append(program, std::to_string(workspace.ShiftNe));
    FollowShiftNe(program);
    ReadQuickRatioSpeeds(program, reader);
    RaiseTopSpeed(workspace);
    AppendRest(program, reader);
  }
  PutInForce(program);
  FillRequestBoxes(program);
  ShowConditions(program);
  program.form2.Text6.Visible = true;
  LeaveChooser(program);
}

void LoadReferenceFile(Program& program) {
  Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  workspace.DataPath = workspace.TempDir;
  workspace.RemarkChanged = dirty::kYes;
  form2.Text6.Text = "";
  {
    OpenedReference file(program);
    TextReader& reader = file.Reader();
    ReadRemarkLine(program, reader);
    Guarded([&] { workspace.TyreLength = RepairedSingle(workspace, reader.Line()); });
    Append(program, SingleText(workspace, workspace.TyreLength));
    Guarded([&] { workspace.ShiftNe = ToInt16(RepairedSingle(workspace, reader.Line())); });
    FollowShiftNe(program);
    workspace.ReferenceNe = workspace.ShiftNe;
    Append(program, std::to_string(workspace.ShiftNe));
    for (int gear = 1; gear <= kGears; ++gear) ReadReferenceSpeed(program, reader, gear);
    RaiseTopSpeed(workspace);
    AppendRest(program, reader);
  }
  PutInForce(program);
  CopyBaselineToRequests(program);
  ShowConditions(program);
  form2.Text6.Visible = true;
  form2.Picture29.Visible = true;
  form2.HScroll1.Visible = true;
  form2.HScroll2.Visible = true;
  LeaveChooser(program);
}

}  // namespace veldrin
