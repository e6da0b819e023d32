#include "mainwin/report.h"

#include "mainwin/report_page.h"
#include "simulated/simulated_machine.h"
#include "tests/simulated/machine_with.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace veldrin {
namespace {

/// Every character is as wide as the test says, in twips, whatever its font.
struct EvenMetrics : TextMetrics {
  double width = 100;
  TextSize Measure(const Font&, const std::string& text) const override {
    return {width * static_cast<double>(text.size()), 240};
  }
};

/// Keeps what was handed over, surface and all.
struct KeptPictures : Pictures {
  explicit KeptPictures(const TextMetrics& metrics) : surface(metrics) {}

  std::vector<std::string> calls;
  Surface surface;
  int width = 0;
  int height = 0;

  void ClearClipboard() override { calls.push_back("clear"); }
  void PutOnClipboard(const Surface& picture, int w, int h) override { Keep("put", picture, w, h); }
  void SaveBitmap(const std::string& path, const Surface& picture, int w, int h) override {
    Keep("save " + path, picture, w, h);
  }

 private:
  void Keep(const std::string& call, const Surface& picture, int w, int h) {
    calls.push_back(call);
    surface.CopyDrawing(picture);
    width = w;
    height = h;
  }
};

/// A printer of which one call fails.
struct FailingPrinter : Printer {
  explicit FailingPrinter(const TextMetrics& metrics) : page(metrics) {}

  std::string failing;
  std::vector<std::string> calls;
  Surface page;

  bool Available() const override { return true; }
  std::vector<std::string> Fonts() const override { return {}; }
  int copies = 0;
  void SetCopies(int number) override {
    Call("copies");
    copies = number;
  }
  Surface& Page() override {
    Call("page");
    return page;
  }
  void EndDocument() override { Call("end"); }

 private:
  void Call(const std::string& call) {
    calls.push_back(call);
    if (call == failing) Raise(kFaultBadCall);
  }
};

/// A program that is not started, with a plan of round numbers.
struct Report : testing::Test {
  SimulatedMachine simulated;
  EvenMetrics metrics;
  KeptPictures pictures{metrics};
  FailingPrinter printer{metrics};
  Machine machine = MachineWith(simulated, metrics, printer, pictures);
  Program program{machine};
  Workspace& workspace = program.workspace;

  Report() {
    workspace.ModeWord = mode::kChange;
    workspace.MachineKey = "nx4";
    workspace.DataPath = "C:\\VELDRIN\\DAT";
    workspace.PrintFont = "Arial";
    workspace.MaxNe = 15000;
    workspace.MaxSpeed = 300;
    workspace.ShiftNe = 12000;
    workspace.PrimaryIndex = 1;
    workspace.FinalIndex = 1;
    for (int gear = 1; gear <= kGears; ++gear) {
      workspace.PlanIndex[gear] = 1;
      workspace.SpeedNow[gear] = static_cast<float>(gear * 40);
    }
  }
  ~Report() override { simulated.windows.Forget(); }

  const TextPrimitive* FindText(const Surface& surface, const std::string& text) const {
    for (const Primitive& primitive : surface.Drawing()) {
      const auto* found = std::get_if<TextPrimitive>(&primitive.shape);
      if (found != nullptr && found->text == text) return found;
    }
    ADD_FAILURE() << text << " is not drawn";
    return nullptr;
  }

  /// Size of a text of the picture in points; 0 when it is not there.
  float SizeOf(const std::string& text) const {
    const TextPrimitive* found = FindText(pictures.surface, text);
    return found == nullptr ? 0 : found->font.size;
  }

  /// The places of the remark's characters on the printed page.
  std::vector<std::pair<double, double>> RemarkPlaces(const std::string& remark) {
    program.form2.Text6.Text = remark;
    printer.page = Surface(metrics);
    PrintReport(program);
    std::vector<std::pair<double, double>> places;
    for (const Primitive& primitive : printer.page.Drawing()) {
      const auto* text = std::get_if<TextPrimitive>(&primitive.shape);
      if (text != nullptr && text->text == "x") places.emplace_back(text->x, text->y);
    }
    return places;
  }
};

using Places = std::vector<std::pair<double, double>>;

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

TEST_F(Report, SizesOfMainCellsFollowTheSizeOfThePicture) {
  program.form2.Picture9.Visible = true;
  for (int gear = 1; gear <= kGears; ++gear) program.form2.Label32[gear].Caption = "part of 10";
  // (size + 4) * 12 over 10, in whole points.
  const float expected[] = {4, 6, 7, 8, 9, 10};
  for (int size = 0; size < 6; ++size) {
    RenderPicture(program, size, PictureOutput::Clipboard);
    EXPECT_EQ(SizeOf("part of 10"), expected[size]) << size;
    EXPECT_EQ(SizeOf("COUNT"), size + 7) << size;
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

TEST_F(Report, RemarkWrapsBehindTheCharacterThatEndsAt11201) {
  metrics.width = 6340;
  EXPECT_EQ(RemarkPlaces("xxx"), (Places{{4860, 4700}, {11200, 4700}, {4860, 4950}}));
  metrics.width = 6341;
  EXPECT_EQ(RemarkPlaces("xx"), (Places{{4860, 4700}, {4860, 4950}}));
}

TEST_F(Report, RemarkRoundsItsPlacesHalfToEven) {
  metrics.width = 1.5;
  // 4861.5 goes up to 4862, 4863.5 to 4864.
  EXPECT_EQ(RemarkPlaces("xxx"), (Places{{4860, 4700}, {4862, 4700}, {4864, 4700}}));
  metrics.width = 0.5;
  // 4860.5 goes down.
  EXPECT_EQ(RemarkPlaces("xx"), (Places{{4860, 4700}, {4860, 4700}}));
  // 11200.5 goes down as well and stays below the end.
  metrics.width = 6340.5;
  EXPECT_EQ(RemarkPlaces("xx"), (Places{{4860, 4700}, {11200, 4700}}));
}

TEST_F(Report, RemarkOfManyLinesKeepsCounting) {
  std::string remark;
  for (int line = 1; line <= 40000; ++line) remark += "\r\n";
  EXPECT_EQ(RemarkPlaces(remark + "x"), (Places{{4860, 10004700}}));
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

TEST_F(Report, DrawingLeavesTheWorkspaceAndTheWindowAlone) {
  workspace.CallerWord = "as it was";
  workspace.PrintFontBold = true;
  program.form2.Text6.Text = "wet";
  RenderPicture(program, 2, PictureOutput::Clipboard);
  PrintReport(program);
  EXPECT_EQ(workspace.CallerWord, "as it was");
  EXPECT_EQ(program.form2.Text6.Text.get(), "wet");
  EXPECT_EQ(program.form2.Text6.FontBold, false);
}

TEST_F(Report, PrinterMakesTheCopiesOfItsDialog) {
  simulated.boxes.printAnswers = {{0, 3}};
  PrintReport(program);
  EXPECT_EQ(printer.copies, 3);
}

TEST_F(Report, RemarkOfAHundredThousandCharactersIsDrawnToTheLast) {
  const std::string remark(100000, 'x');
  // 6341 / 100 characters of 100 twips, so 64 a line: 1562 full lines, and 32 characters in the last.
  const Places places = RemarkPlaces(remark);
  ASSERT_EQ(places.size(), 100000U);
  EXPECT_EQ(places[63], (std::pair<double, double>{11160, 4700}));
  EXPECT_EQ(places[64], (std::pair<double, double>{4860, 4950}));
  EXPECT_EQ(places[99999], (std::pair<double, double>{4860 + 31 * 100, 4700 + 1562 * 250}));
}

}  // namespace
}  // namespace veldrin
