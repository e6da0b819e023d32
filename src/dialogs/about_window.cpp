#include "dialogs/about_window.h"

#include "dialogs/other_captions.h"
#include "dialogs/progress_meter.h"
#include "platform/paths.h"
#include "runtime/conversion.h"
#include "runtime/fault.h"
#include "runtime/number_format.h"
#include "view/bind.h"
#include "workspace/settings.h"

#include <string>

namespace veldrin {

namespace {

constexpr float kHeightOpen = 4830;  // twips
constexpr float kHeightRolled = 330;
constexpr float kHighestRolled = 1000;  // up to here the window counts as rolled up

constexpr char kProcessorKey[] = "hardware\\DESCRIPTION\\System\\CentralProcessor\\0";
constexpr char kBoardKey[] = "Enum\\Root\\*PNP0C01\\0000";
constexpr char kSwapFile[] = "win386.swp";
constexpr char kDiskRoot[] = "C:\\";
constexpr char kFirstBrowser[] = "c:\\progra~1\\intern~1\\iexplore.exe ";
constexpr char kSecondBrowser[] = "c:\\progra~1\\netscape\\commun~1\\program\\netscape.exe ";

constexpr double kKilo = 1024;
constexpr std::int32_t kValueBeforeMeasuring = 10;

// ---- Load ----

std::string ProcessorText(const Program& program) {
  return ReadSetting(program, RegistryRoot::LocalMachine, kProcessorKey, "VendorIdentifier") + " " +
         ReadSetting(program, RegistryRoot::LocalMachine, kBoardKey, "CPU");
}

std::string WholeText(double value) {
  return std::to_string(static_cast<std::int64_t>(RoundHalfToEven(value)));
}

/// Kept: one more than the machine tells, since machines tell a little less than what is fitted.
std::string MemoryText(const MemoryFigures& memory) {
  return WholeText(static_cast<double>(memory.total) / kKilo / kKilo + 1) + "MB";
}

std::string SwapFileText(const Program& program) {
  Files& files = program.machine.files;
  const std::string path = JoinPath(files.Rules(), program.machine.environment.Variable("windir"), kSwapFile);
  if (!files.FileExists(path)) return "No Using";
  const std::int64_t size = files.Size(path);
  const double kilobytes = static_cast<double>(size) / kKilo;
  if (kilobytes <= kKilo) return std::to_string(size / 1024) + "KB";
  return std::to_string(static_cast<std::int64_t>(RoundHalfToEven(kilobytes)) / 1024) + "MB";
}

std::string ScreenText(const Program& program) {
  const Screen& screen = program.machine.screen;
  return std::to_string(screen.PixelsAcross()) + " x " + std::to_string(screen.PixelsDown());
}

/// Free and total bytes, in 64-bit floats.
struct DiskSpace {
  double free;
  double total;
};

DiskSpace SpaceOf(const DiskFigures& disk) {
  const double cluster =
      static_cast<double>(disk.sectorsPerCluster) * static_cast<double>(disk.bytesPerSector);
  return {cluster * static_cast<double>(disk.freeClusters), cluster * static_cast<double>(disk.allClusters)};
}

/// Kept: the format leaves the separator behind a whole number, as in "2.GB".
std::string DiskText(const Workspace& workspace, const DiskSpace& disk) {
  const double megabytes = disk.free / kKilo / kKilo;
  if (megabytes <= kKilo) return WholeText(megabytes) + "MB";
  return FormatNumber(megabytes / kKilo, "###.##", DecimalSeparator(workspace)) + "GB";
}

std::int32_t Percent(double part, double whole) {
  return ToInt32(Divide(part, whole) * 100);
}

void ShowFigures(Program& program) {
  Form10& form10 = *program.form10;
  const MemoryFigures memory = program.machine.figures.Memory();
  form10.Label_CPU.Caption = ProcessorText(program);
  form10.Label_Ram.Caption = MemoryText(memory);
  form10.Label_VirRam.Caption = SwapFileText(program);
  form10.Label_Res.Caption = ScreenText(program);
  clsProgressBar memoryMeter;
  clsProgressBar diskMeter;
  memoryMeter.SetPicture(form10.Picture1.surface);
  diskMeter.SetPicture(form10.Picture2.surface);
  memoryMeter.SetValue(Percent(static_cast<double>(memory.available), static_cast<double>(memory.total)));
  form10.Label_Free.Caption = std::to_string(memoryMeter.Value()) + "%";
  diskMeter.SetValue(kValueBeforeMeasuring);
  for (clsProgressBar* meter : {&memoryMeter, &diskMeter}) {
    meter->SetText("");
    meter->SetShowNumber(false);
  }
  // Kept: drive C, whatever drive the program stands on.
  const DiskSpace disk = SpaceOf(program.machine.figures.Disk(kDiskRoot));
  form10.Label_HDD.Caption = DiskText(program.workspace, disk);
  diskMeter.SetValue(Percent(disk.free, disk.total));
}

/// Raises fault 6 or 11 where the machine tells no memory or no disk space at all.
void Form10_Load(Program& program) {
  const Workspace& workspace = program.workspace;
  Form10& form10 = *program.form10;
  form10.Centre();
  form10.Picture_Close.Image = kCloseImage;
  form10.Picture_Roll.Image = kRollImage;
  ShowFigures(program);
  form10.Label41.Visible = ReadsJapanese(workspace);
  form10.Label_Version.Caption = VELDRIN_VERSION;
}

// ---- The window by its own means ----

void Form10_MouseDown(Program& program, int button) {
  if (button == kLeftButton) program.machine.windows.StartDrag(*program.form10);
}

void Picture_Close_MouseDown(Program& program) {
  program.form10->Picture_Close.Image = kClosePressedImage;
}

void Picture_Close_MouseUp(Program& program) {
  program.form10->Picture_Close.Image = kCloseImage;
}

void Picture_Close_Click(Program& program) {
  program.form10->UnloadWindow();
}

void Picture_Roll_MouseDown(Program& program) {
  program.form10->Picture_Roll.Image = kRollPressedImage;
}

void Picture_Roll_MouseUp(Program& program) {
  program.form10->Picture_Roll.Image = kRollImage;
}

void PlayBeside(Program& program, const char* sound) {
  program.machine.sound.Play(JoinPath(program.machine.files.Rules(), program.workspace.AppPath, sound));
}

/// The height alone tells whether the window is rolled up.
void Picture_Roll_Click(Program& program) {
  Form10& form10 = *program.form10;
  const bool rolled = form10.Height <= kHighestRolled;
  PlayBeside(program, rolled ? "unroll.wav" : "rollup.wav");
  form10.Height = rolled ? kHeightOpen : kHeightRolled;
  form10.Line1.Visible = !rolled;
  form10.Line2.Visible = !rolled;
}

// ---- The link ----

/// The second browser is tried only where the first one's folder is missing. Where neither is there the
/// desktop is asked. Failures are silent.
void Label3_Click(Program& program) {
  const std::string link = program.form10->Label3.Caption;
  Shell& shell = program.machine.shell;
  int fault = Guarded([&] { shell.Run(kFirstBrowser + link); });
  if (fault == kFaultPathNotFound) fault = Guarded([&] { shell.Run(kSecondBrowser + link); });
  if (fault != kFaultPathNotFound && fault != kFaultFileNotFound) return;
  Guarded([&] { shell.OpenWithDesktop(link); });
}

}  // namespace

void AttachAboutWindow(Program& program) {
  program.form10.attach = [&program](Form10& form10) {
    On(program, form10.Load, Form10_Load);
    On(program, form10.MouseDown, Form10_MouseDown);
    On(program, form10.Picture_Close.MouseDown, Picture_Close_MouseDown);
    On(program, form10.Picture_Close.MouseUp, Picture_Close_MouseUp);
    On(program, form10.Picture_Close.Click, Picture_Close_Click);
    On(program, form10.Picture_Roll.MouseDown, Picture_Roll_MouseDown);
    On(program, form10.Picture_Roll.MouseUp, Picture_Roll_MouseUp);
    On(program, form10.Picture_Roll.Click, Picture_Roll_Click);
    On(program, form10.Label3.Click, Label3_Click);
  };
}

}  // namespace veldrin
