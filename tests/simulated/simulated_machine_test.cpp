#include "simulated/simulated_machine.h"

#include "runtime/fault.h"

#include <gtest/gtest.h>

namespace veldrin {
namespace {

using Lines = std::vector<std::string>;

TEST(SimulatedBoxes, UnansweredBoxesTakeOk) {
  SimulatedMachine simulated;
  Boxes& boxes = simulated.machine.boxes;
  simulated.boxes.boxAnswers = {BoxAnswer::Cancel};
  EXPECT_EQ(boxes.Message(BoxIcon::Question, "Title", "Sure ?", BoxButtons::OkCancel), BoxAnswer::Cancel);
  EXPECT_EQ(boxes.Message(BoxIcon::None, "", "a \"b\"\r\nc", BoxButtons::Ok), BoxAnswer::Ok);
  EXPECT_EQ(simulated.log.lines, (Lines{"box question \"Title\" \"Sure ?\" Cancel",
                                        "box none \"Veldrin\" \"a \"\"b\"\"\r\nc\" OK"}));
  ASSERT_EQ(simulated.boxes.shown.size(), 2U);
  EXPECT_EQ(simulated.boxes.shown[1].icon, "none");
  EXPECT_EQ(simulated.boxes.shown[1].title, "Veldrin");
  EXPECT_EQ(simulated.boxes.shown[1].text, "a \"b\"\r\nc");
  EXPECT_EQ(simulated.boxes.shown[1].answer, "OK");
}

TEST(SimulatedBoxes, EveryIconHasItsWord) {
  SimulatedMachine simulated;
  for (const BoxIcon icon :
       {BoxIcon::None, BoxIcon::Information, BoxIcon::Exclamation, BoxIcon::Question, BoxIcon::Critical}) {
    simulated.boxes.Message(icon, "T", "", BoxButtons::Ok);
  }
  EXPECT_EQ(simulated.log.Text(),
            "box none \"T\" \"\" OK\nbox information \"T\" \"\" OK\nbox exclamation \"T\" \"\" OK\n"
            "box question \"T\" \"\" OK\nbox critical \"T\" \"\" OK");
}

TEST(SimulatedBoxes, FaultBoxIsLoggedAndNoMessageBox) {
  SimulatedMachine simulated;
  simulated.boxes.Fault(13);
  EXPECT_EQ(simulated.log.lines, (Lines{"fault 13"}));
  EXPECT_TRUE(simulated.boxes.shown.empty());
}

TEST(SimulatedBoxes, ColourDialogTellsWhatWasOfferedAndChosen) {
  SimulatedMachine simulated;
  simulated.boxes.colourAnswers = {Rgb(1, 2, 3), std::nullopt};
  EXPECT_EQ(simulated.boxes.ChooseColour(kRed), Rgb(1, 2, 3));
  EXPECT_EQ(simulated.boxes.ChooseColour(kRed), kRed);
  EXPECT_EQ(simulated.boxes.ChooseColour(kYellow), kYellow);
  EXPECT_EQ(simulated.log.lines, (Lines{"colour-dialog 255,0,0 1,2,3", "colour-dialog 255,0,0 cancel",
                                        "colour-dialog 255,255,0 cancel"}));
}

TEST(SimulatedBoxes, PrinterDialogIsAcceptedWithOneCopyUnlessToldOtherwise) {
  SimulatedMachine simulated;
  simulated.boxes.printAnswers = {{0, 3}, {kPrintCancelled, 1}, {28663, 1}};
  for (int k = 0; k < 4; ++k) simulated.boxes.ChoosePrinter();
  EXPECT_EQ(simulated.log.lines, (Lines{"print-dialog ok 3", "print-dialog cancel",
                                        "print-dialog error 28663", "print-dialog ok 1"}));
}

TEST(SimulatedSound, OnlyAFileThatIsThereSounds) {
  SimulatedMachine simulated;
  simulated.files.AddFile("C:\\VELDRIN\\rollup.wav", "");
  simulated.sound.Play("C:\\VELDRIN\\rollup.wav");
  simulated.sound.Play("C:\\VELDRIN\\unroll.wav");
  simulated.sound.Beep();
  EXPECT_EQ(simulated.log.lines, (Lines{"sound C:\\VELDRIN\\rollup.wav", "beep"}));
  EXPECT_EQ(simulated.log.beeps, 1);
}

struct RunCase {
  const char* command;
  int fault;
};

TEST(SimulatedShell, ProgramWithAPathHasToBeThere) {
  const RunCase cases[] = {
      {"explorer C:\\VELDRIN\\DAT", 0},
      {"winfile", 0},
      {"c:\\tools\\browser.exe http://x/", 0},
      {"C:\\TOOLS\\browser http://x/", 0},
      {"\"C:\\tools\\browser.exe\" http://x/", 0},
      {"c:\\tools\\other.exe http://x/", 53},
      {"c:\\progra~1\\intern~1\\iexplore.exe http://x/", 76},
      {"z:\\x.exe", 76},
  };
  SimulatedMachine simulated;
  simulated.files.AddFile("C:\\tools\\browser.exe", "");
  for (const RunCase& expected : cases) {
    EXPECT_EQ(Guarded([&] { simulated.shell.Run(expected.command); }), expected.fault) << expected.command;
    EXPECT_EQ(simulated.log.lines.back(), std::string("run ") + expected.command);
  }
  EXPECT_FALSE(simulated.shell.OpenWithDesktop("C:\\VELDRIN"));
}

TEST(SimulatedMetrics, WideCharactersAreTwiceAsWide) {
  const SimulatedMetrics metrics;
  const Font font{"Arial", 9, false, false};
  EXPECT_EQ(metrics.Measure(font, "ab").width, 180);
  EXPECT_EQ(metrics.Measure(font, "aＭé").width, 90 + 180 + 180);
  EXPECT_EQ(metrics.Measure(font, "").width, 0);
  EXPECT_EQ(metrics.Measure(font, "ab").height, 216);
}

TEST(SimulatedPrinter, KeepsAllPagesAfterTheirDocuments) {
  SimulatedMachine simulated;
  Printer& printer = simulated.machine.printer;
  EXPECT_EQ(printer.Page().PhysicalWidth(), 12240);
  EXPECT_EQ(printer.Page().PhysicalHeight(), 15840);
  printer.SetCopies(2);
  printer.Page().SetScale({0, 0, 10, -10});
  printer.Page().Line(0, 0, 1, 1, kBlack);
  printer.EndDocument();
  EXPECT_EQ(printer.Page().UserScale(), (Scale{0, 0, 12240, 15840}));
  EXPECT_TRUE(printer.Page().Drawing().empty());
  printer.Page().Line(0, 0, 2, 2, kBlack);
  ASSERT_EQ(simulated.printer.Drawing().size(), 2U);
  EXPECT_EQ(Describe(simulated.printer.Drawing()[0]), "line 0 0 1 1 0,0,0 style=0 width=1");
  EXPECT_EQ(Describe(simulated.printer.Drawing()[1]), "line 0 0 2 2 0,0,0 style=0 width=1");
  ASSERT_EQ(simulated.printer.documents.size(), 1U);
  EXPECT_EQ(simulated.printer.documents[0].copies, 2);
}

TEST(SimulatedPrinter, WithoutAPrinterThereAreNoFontsAndNoDocuments) {
  SimulatedMachine simulated;
  EXPECT_EQ(simulated.printer.Fonts(), (Lines{"Arial", "Courier New", "ＭＳ ゴシック", "ＭＳ Ｐゴシック"}));
  simulated.printer.printers = 0;
  EXPECT_FALSE(simulated.printer.Available());
  EXPECT_TRUE(simulated.printer.Fonts().empty());
  simulated.printer.Page().Line(0, 0, 1, 1, kBlack);
  simulated.printer.EndDocument();
  EXPECT_TRUE(simulated.printer.documents.empty());
  EXPECT_TRUE(simulated.printer.Drawing().empty());
}

TEST(SimulatedPictures, BitmapIsItsSizeAndThePrimitives) {
  SimulatedMachine simulated;
  Surface surface(simulated.metrics);
  surface.Fill(0, 0, 5, 5, kRed);
  simulated.pictures.PutOnClipboard(surface, 640, 480);
  ASSERT_TRUE(simulated.pictures.clipboard.has_value());
  EXPECT_EQ(simulated.pictures.clipboard->Lines(),
            (Lines{"bitmap 640 480", "fill 0 0 5 5 255,0,0 mode=copy"}));
  simulated.pictures.SaveBitmap("C:\\VELDRIN\\x.bmp", surface, 800, 600);
  EXPECT_EQ(simulated.files.ReadText("C:\\VELDRIN\\x.bmp"),
            "bitmap 800 600\r\nfill 0 0 5 5 255,0,0 mode=copy\r\n");
  EXPECT_EQ(Guarded([&] { simulated.pictures.SaveBitmap("C:\\A\\C:\\x.bmp", surface, 1, 1); }), 52);
  simulated.pictures.ClearClipboard();
  EXPECT_FALSE(simulated.pictures.clipboard.has_value());
}

TEST(SimulatedLog, EmptiedLinesKeepTheCounters) {
  SimulatedLog log;
  EXPECT_EQ(log.Text(), "");
  log.Add("a");
  log.Add("b");
  log.beeps = 2;
  EXPECT_EQ(log.Text(), "a\nb");
  log.lines.clear();
  EXPECT_EQ(log.Text(), "");
  EXPECT_EQ(log.beeps, 2);
}

}  // namespace
}  // namespace veldrin
