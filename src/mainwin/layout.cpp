#include "mainwin/layout.h"

#include "mainwin/chart.h"
#include "mainwin/gear_panel/gear_panel_chart.h"
#include "runtime/conversion.h"
#include "view/bind.h"

namespace veldrin {

namespace {

constexpr float kLeastWidth = 9675;  // twips, outer
constexpr float kLeastHeight = 7390;
constexpr double kPanelPerFontSize = 550;  // twips of the chart panel's width for a point of its numerals

/// Outer and inner size of the window, in twips.
struct WindowSize {
  float width;
  float height;
  float innerWidth;
  float innerHeight;

  bool IsWide() const { return width >= kLeastWidth; }
  bool IsHigh() const { return height >= kLeastHeight; }
};

void PlaceByHeight(Form2& form2, const WindowSize& size) {
  const bool follows = size.IsHigh();
  form2.Text6.Height = follows ? size.height - 5725 : 1665;
  form2.Picture19.Height = follows ? size.height - 540 : 6855;
  form2.HScroll1.Top = follows ? size.innerHeight - 585 : 6120;
  form2.HScroll2.Top = follows ? size.innerHeight - 335 : 6370;
  form2.Picture29.Top = follows ? size.innerHeight - 630 : 6075;
}

void PlaceByWidth(Form2& form2, const WindowSize& size) {
  const bool follows = size.IsWide();
  form2.HScroll1.Width = follows ? size.innerWidth - 6465 : 3135;
  form2.HScroll2.Width = follows ? size.innerWidth - 6465 : 3135;
  form2.Picture19.Width = follows ? size.width - 5115 : 4605;
}

/// Kept: below one threshold alone the panel keeps the left or the top that it had; only below both it goes
/// back to its place.
void PlaceCombination(Picture& panel, const WindowSize& size) {
  const bool goesBack = !size.IsWide() && !size.IsHigh();
  if (size.IsWide()) panel.Left = (size.width - 5025) / 8 + 5025;
  if (size.IsHigh()) panel.Top = size.height / 6;
  if (goesBack) {
    panel.Left = 5625;
    panel.Top = 1125;
  }
}

void PlaceLine(Line& line, float x1, float y1, float x2, float y2) {
  line.X1 = x1;
  line.Y1 = y1;
  line.X2 = x2;
  line.Y2 = y2;
}

void PlaceSurface(Program& program) {
  Form2& form2 = program.form2;
  form2.Picture19.surface.SetScale({0, 0, 4605, 6855});
  Picture& chart = form2.Picture21;
  chart.Left = 490;
  chart.Top = 0;
  chart.Width = 3975;
  chart.Height = 5525;
  chart.Image = 0;
  chart.surface.Clear();
  chart.surface.SetScale(ChartUnits(program.workspace));
}

/// Kept: ticks beyond the panel are not hidden but cut off by it.
void PlaceAxes(Form2& form2, float thousandNe, float twentyKmh) {
  PlaceLine(form2.Line1, kAxesLeft, 0, kAxesLeft, kAxesFoot);
  PlaceLine(form2.Line2, kAxesLeft, kAxesFoot, kAxesRight, kAxesFoot);
  for (int i = 0; i <= kLastTickAcross; ++i) {
    const float x = TickAcross(i, thousandNe);
    PlaceLine(form2.Line4[i], x, kAxesFoot, x, kTickFoot);
  }
  for (int i = 0; i <= kLastTickUp; ++i) {
    const float y = TickUp(i, twentyKmh);
    PlaceLine(form2.Line3[i], kTickLeft, y, kAxesLeft, y);
  }
}

void PlaceNumeral(Label& numeral, float left, float top) {
  numeral.Left = left;
  numeral.Top = top;
}

void PlaceAllNumerals(Form2& form2, float thousandNe, float twentyKmh) {
  PlaceNumeral(form2.Label18, kSpeedNumeralLeft, NumeralTop(15, twentyKmh));
  PlaceNumeral(form2.Label19, kSpeedNumeralLeft, NumeralTop(10, twentyKmh));
  PlaceNumeral(form2.Label20, kSpeedNumeralLeft, NumeralTop(5, twentyKmh));
  PlaceNumeral(form2.Label21, kTickLeft, kTickFoot);
  for (int i = 0; i <= kLastNumeralAcross; ++i) {
    PlaceNumeral(form2.Label22[i], NumeralLeft(i, thousandNe), kTickFoot);
  }
  PlaceNumeral(form2.Label22[kNeUnit], kNeUnitLeft, kNeUnitTop);
  const auto fontSize = static_cast<float>(RoundHalfToEven(form2.Picture19.Width / kPanelPerFontSize));
  for (Label* numeral : {&form2.Label18, &form2.Label19, &form2.Label20, &form2.Label21, &form2.Label22[0],
                         &form2.Label22[1], &form2.Label22[2], &form2.Label22[3], &form2.Label22[4]}) {
    numeral->FontSize = fontSize;
    numeral->BringToFront();
  }
}

}  // namespace

void Form2_Resize(Program& program) {
  const Workspace& workspace = program.workspace;
  Form2& form2 = program.form2;
  if (workspace.CallerWord == caller::kForm1Timer || workspace.CallerWord == caller::kForm2Load) return;
  if (workspace.ModeWord == mode::kBasing) return;
  const WindowSize size{form2.Width, form2.Height, form2.InnerWidth(), form2.InnerHeight()};
  PlaceByHeight(form2, size);
  PlaceByWidth(form2, size);
  PlaceCombination(form2.Picture9, size);
  const float thousandNe = TwipsPerThousandNe(workspace);
  const float twentyKmh = TwipsPerTwentyKmh(workspace);
  PlaceSurface(program);
  PlaceAxes(form2, thousandNe, twentyKmh);
  PlaceAllNumerals(form2, thousandNe, twentyKmh);
  RedrawChart(program);
}

void AttachLayout(Program& program) {
  On(program, program.form2.Resize, Form2_Resize);
}

}  // namespace veldrin
