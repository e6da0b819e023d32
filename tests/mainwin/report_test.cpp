// The outputs of the report: printer, clipboard, picture files.
#include "mainwin/report.h"

#include "tests/mainwin/kept_report.h"

#include <string>
#include <vector>

namespace veldrin {
namespace {

TEST_F(Report, ClaimsEachOfItsEventsOnce) {
  AttachReport(program);
  for (const Control* control : program.form2.controls) {
    for (const Event* event : control->events) {
      const bool mine = control->name == "clip" || control->name == "bmp" || control->name == "menu_print";
      EXPECT_EQ(event->Claims(), mine ? 1 : 0) << control->FullName() << '.' << event->Name();
    }
  }
}

TEST_F(Report, EverySizeHasItsSurfacePictureAndTexts) {
  struct Case {
    double surfaceWidth;
    double surfaceHeight;
    int width;
    int height;
    float textSize;
  };
  // The first two keep the canvas as it is designed.
  const Case cases[] = {
      {9720, 7400, 640, 480, 7},   {9720, 7400, 640, 480, 8},     {9720, 7400, 640, 480, 9},
      {12120, 9200, 800, 600, 10}, {15480, 11720, 1024, 768, 11}, {19440, 14800, 1280, 960, 12},
  };
  for (int size = 0; size < 6; ++size) {
    const Case& c = cases[size];
    RenderPicture(program, size, PictureOutput::Clipboard);
    EXPECT_EQ(workspace.ReportSizeIndex, size);
    EXPECT_EQ(pictures.surface.PhysicalWidth(), c.surfaceWidth) << size;
    EXPECT_EQ(pictures.surface.PhysicalHeight(), c.surfaceHeight) << size;
    EXPECT_EQ(pictures.width, c.width) << size;
    EXPECT_EQ(pictures.height, c.height) << size;
    EXPECT_EQ(SizeOf("Remark:"), c.textSize) << size;
    EXPECT_EQ(SizeOf("Machine"), c.textSize) << size;
    EXPECT_EQ(SizeOf("PLAN"), c.textSize) << size;
    EXPECT_EQ(SizeOf(" 300 "), c.textSize - 1) << size;
    EXPECT_EQ(SizeOf(" 15000 "), c.textSize - 1) << size;
  }
}

TEST_F(Report, PictureLaysThePageAndThenTheChartOverItsSurface) {
  RenderPicture(program, 3, PictureOutput::Clipboard);
  const auto& drawing = pictures.surface.Drawing();
  EXPECT_EQ(drawing.front().scale, (Scale{0, 0, 11500, 8000}));
  EXPECT_EQ(drawing.back().scale, (Scale{-225, 330, 4500, -450}));
}

TEST_F(Report, PrinterHasTwipsAndThenTheChart) {
  printer.page.SetSize(11000, 16000);
  PrintReport(program);
  EXPECT_EQ(printer.page.Drawing().front().scale, (Scale{0, 0, 11000, 16000}));
  EXPECT_EQ(printer.page.Drawing().back().scale, (Scale{-225, 330, 4500, -900}));
}

TEST_F(Report, ClipboardIsEmptiedBeforeItTakesThePicture) {
  RenderPicture(program, 2, PictureOutput::Clipboard);
  EXPECT_EQ(pictures.calls, (std::vector<std::string>{"clear", "put"}));
  EXPECT_FALSE(program.form6);
}

TEST_F(Report, PictureFileTakesTheNameUpToItsFirstPoint) {
  struct Case {
    const char* dataFile;
    const char* path;
  };
  const Case cases[] = {
      {"RAIN.NX4", "C:\\VELDRIN\\DAT\\RAIN.BMP"},
      {"RAIN.2.NX4", "C:\\VELDRIN\\DAT\\RAIN.BMP"},
      {"RAIN", "C:\\VELDRIN\\DAT\\BMP"},
      {"雨.NX4", "C:\\VELDRIN\\DAT\\雨.BMP"},
      {"C:\\D.1\\RAIN.NX4", "C:\\VELDRIN\\DAT\\C:\\D.BMP"},
  };
  for (const Case& c : cases) {
    workspace.DataFile = c.dataFile;
    RenderPicture(program, 2, PictureOutput::File);
    EXPECT_EQ(pictures.calls.back(), "save " + std::string(c.path));
  }
}

TEST_F(Report, MenuEntriesChooseOutputAndSize) {
  AttachReport(program);
  workspace.DataFile = "A.NX4";
  program.form2.clip[1].Click();
  EXPECT_EQ(workspace.ReportSizeIndex, 1);
  program.form2.bmp[5].Click();
  EXPECT_EQ(workspace.ReportSizeIndex, 5);
  EXPECT_EQ(pictures.calls, (std::vector<std::string>{"clear", "put", "save C:\\VELDRIN\\DAT\\A.BMP"}));
  program.form2.menu_print.Click();
  EXPECT_EQ(printer.calls.back(), "end");
}

TEST_F(Report, PrinterIsAskedStepByStepWhateverFails) {
  for (const char* failing : {"", "copies", "page", "end"}) {
    printer.failing = failing;
    printer.calls.clear();
    printer.page = Surface(metrics);
    EXPECT_NO_THROW(PrintReport(program)) << failing;
    EXPECT_EQ(printer.calls, (std::vector<std::string>{"copies", "page", "end"})) << failing;
    EXPECT_EQ(printer.page.Drawing().empty(), std::string(failing) == "page") << failing;
  }
}

TEST_F(Report, PrinterSkipsWhatFailsAndAPictureDoesNot) {
  struct Case {
    const char* what;
    void (*breakIt)(Workspace&);
    int fault;
    std::size_t missing;  // primitives
  };
  const Case cases[] = {
      {"all is well", [](Workspace&) {}, 0, 0},
      {"no shift revolutions", [](Workspace& w) { w.ShiftNe = 0; }, kFaultDivisionByZero, 7},
      {"no shift revolutions, no speed",
       [](Workspace& w) {
         w.ShiftNe = 0;
         w.SpeedNow[1] = 0;
       },
       kFaultOverflow, 7},
      {"a speed of 0", [](Workspace& w) { w.SpeedNow[6] = 0; }, kFaultDivisionByZero, 1},
      {"no primary row", [](Workspace& w) { w.PrimaryIndex = 0; }, kFaultSubscript, 1},
      {"a final row too many", [](Workspace& w) { w.FinalIndex = 201; }, kFaultSubscript, 1},
      // Its text stands in the block and in the table.
      {"a gear row too many", [](Workspace& w) { w.PlanIndex[2] = 11; }, kFaultSubscript, 2},
  };
  PrintReport(program);
  const std::size_t whole = printer.page.Drawing().size();
  const Workspace sound = workspace;
  for (const Case& c : cases) {
    workspace = sound;
    c.breakIt(workspace);
    printer.page = Surface(metrics);
    PrintReport(program);
    EXPECT_EQ(whole - printer.page.Drawing().size(), c.missing) << c.what;
    pictures.calls.clear();
    EXPECT_EQ(Guarded([&] { RenderPicture(program, 2, PictureOutput::Clipboard); }), c.fault) << c.what;
    EXPECT_EQ(pictures.calls.empty(), c.fault != 0) << c.what;
    if (program.form6) program.form6->UnloadWindow();
  }
}

TEST_F(Report, PrinterMakesTheCopiesOfItsDialog) {
  simulated.boxes.printAnswers = {{0, 3}};
  PrintReport(program);
  EXPECT_EQ(printer.copies, 3);
}

}  // namespace
}  // namespace veldrin
