#include "mainwin/report.h"

#include "mainwin/report_page.h"
#include "platform/paths.h"
#include "runtime/text.h"
#include "view/bind.h"
#include "workspace/notice_words.h"

#include <array>
#include <cstdint>
#include <string>

namespace veldrin {

namespace {

constexpr Scale kPicturePage{0, 0, 11500, 8000};
constexpr int kFirstOfferedSize = 2;

/// Outer size of the surface in twips, and size of the picture in pixels.
struct PictureSize {
  float surfaceWidth;
  float surfaceHeight;
  float pictureWidth;
  float pictureHeight;
};

/// The sizes that the menus offer; those before them leave `Form6` as it is designed.
constexpr std::array<PictureSize, 4> kPictureSizes{{
    {9720, 7400, 640, 480},
    {12120, 9200, 800, 600},
    {15480, 11720, 1024, 768},
    {19440, 14800, 1280, 960},
}};

constexpr float kPrinterRemarkSize = 10;  // points
constexpr ReportStyle kPrinterStyle{.tyreLabel = "Tyer 1round Length",
                                    .shiftLabel = "Shift-up Eng-Rev.",
                                    .textSize = 12,
                                    .speedNumeralSize = 10,
                                    .neNumeralSize = 8,
                                    .mainCellRoom = 90,
                                    .chartHeight = 3,
                                    .chartLineWidth = 2,
                                    .skipsFaults = true};

float PictureTextSize(int sizeIndex) {
  return static_cast<float>(sizeIndex + 7);
}

ReportStyle PictureStyle(int sizeIndex) {
  const float numeralSize = static_cast<float>(sizeIndex + 6);
  return {.tyreLabel = "Tyer 1round",
          .shiftLabel = "Shift-up Rev.",
          .textSize = PictureTextSize(sizeIndex),
          .speedNumeralSize = numeralSize,
          .neNumeralSize = numeralSize,
          .mainCellRoom = (sizeIndex + 4) * 12.0,
          .chartHeight = 1.5,
          .chartLineWidth = 1,
          .skipsFaults = false};
}

void SizeCanvas(Form6& form6, int sizeIndex) {
  if (sizeIndex < kFirstOfferedSize) return;
  const PictureSize& size = kPictureSizes.at(static_cast<std::size_t>(sizeIndex - kFirstOfferedSize));
  form6.SetSize(size.surfaceWidth, size.surfaceHeight);
  form6.surface.SetSize(size.surfaceWidth, size.surfaceHeight);
  form6.Picture1.Width = size.pictureWidth;
  form6.Picture1.Height = size.pictureHeight;
}

/// In `DataPath`, `DataFile` up to its first point, which need not be that of its extension, and "BMP".
/// Kept: after a load `DataFile` is a full path, and the system refuses a name with a second drive in it.
std::string PicturePath(const Program& program) {
  const Workspace& workspace = program.workspace;
  const std::string& dataFile = workspace.DataFile;
  const std::string name = Left(dataFile, Find(dataFile, ".")) + "BMP";
  return JoinPath(program.machine.files.Rules(), workspace.DataPath, name);
}

void HandOver(Program& program, const Picture& picture, PictureOutput output) {
  Pictures& pictures = program.machine.pictures;
  const int width = static_cast<int>(picture.Width.get());
  const int height = static_cast<int>(picture.Height.get());
  if (output == PictureOutput::Clipboard) {
    pictures.ClearClipboard();
    pictures.PutOnClipboard(picture.surface, width, height);
    Inform(program, {"The picture is on the clipboard", "画像をクリップボードにコピーしました"});
  } else {
    const std::string path = PicturePath(program);
    pictures.SaveBitmap(path, picture.surface, width, height);
    TellSaved(program, path);
  }
}

bool IsBasing(const Program& program) {
  return program.workspace.ModeWord == mode::kBasing;
}

void clip_Click(Program& program, int index) {
  if (!IsBasing(program)) RenderPicture(program, index, PictureOutput::Clipboard);
}

void bmp_Click(Program& program, int index) {
  if (!IsBasing(program) && !program.workspace.DataFile.empty()) {
    RenderPicture(program, index, PictureOutput::File);
  }
}

void menu_print_Click(Program& program) {
  if (!IsBasing(program)) PrintReport(program);
}

}  // namespace

void RenderPicture(Program& program, int sizeIndex, PictureOutput output) {
  program.workspace.ReportSizeIndex = static_cast<std::int16_t>(sizeIndex);
  Form6& form6 = program.form6.Load();
  SizeCanvas(form6, sizeIndex);
  form6.surface.SetScale(kPicturePage);
  form6.surface.font.size = PictureTextSize(sizeIndex);
  DrawReport(program, form6.surface, PictureStyle(sizeIndex));
  form6.Picture1.surface.CopyDrawing(form6.surface);
  HandOver(program, form6.Picture1, output);
  form6.UnloadWindow();
}

void PrintReport(Program& program) {
  const Workspace& workspace = program.workspace;
  Printer& printer = program.machine.printer;
  PrintChoice choice;
  Guarded([&] { choice = program.machine.boxes.ChoosePrinter(); });
  // Kept: after any other error of the dialog the page is printed all the same.
  if (choice.error == kPrintCancelled) return;
  Guarded([&] { printer.SetCopies(choice.copies); });
  Guarded([&] {
    Surface& page = printer.Page();
    page.font = {workspace.PrintFont, kPrinterRemarkSize, workspace.PrintFontBold, workspace.PrintFontItalic};
    DrawReport(program, page, kPrinterStyle);
  });
  const int fault = Guarded([&] { printer.EndDocument(); });
  if (fault == 0) Inform(program, {"The page has been sent to the printer", "プリンターへ送りました"});
}

void AttachReport(Program& program) {
  Form2& form2 = program.form2;
  OnEach(program, form2.clip, &Menu::Click, clip_Click);
  OnEach(program, form2.bmp, &Menu::Click, bmp_Click);
  On(program, form2.menu_print.Click, menu_print_Click);
}

}  // namespace veldrin
