// A program with a plan of round numbers, whose printer and pictures keep what they are given.
#pragma once

#include "mainwin/report.h"
#include "mainwin/report_page.h"
#include "simulated/simulated_machine.h"
#include "tests/simulated/machine_with.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace veldrin {

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

}  // namespace veldrin
