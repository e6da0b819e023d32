#include "plan/page/chart_drawing.h"
#include "plan/page/page_output.h"
#include "runtime/conversion.h"
#include "runtime/number_format.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <variant>

namespace veldrin {

namespace {

// The window's chart panel, in twips.
constexpr double kPlotLeft = 490;
constexpr double kPlotWidth = 3975;
constexpr double kPlotHeight = 5525;
constexpr double kPanelWidth = 4620;
constexpr double kPanelHeight = 6060;
constexpr double kTick = 120;
constexpr double kPixel = 15;
constexpr double kNumeralSize = 180;
constexpr double kLegendLine = 240;

/// Nothing is measured: the chart's texts are the drawing's own.
struct NoMetrics : TextMetrics {
  TextSize Measure(const Font&, const std::string&) const override { return {0, 0}; }
};

std::string Coordinate(double value) {
  return ShortestText(std::round(value * 100) / 100);
}

std::string ColourText(Colour colour) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string text = "#";
  for (const int part : {colour.Red(), colour.Green(), colour.Blue()}) {
    text += kDigits[part >> 4];
    text += kDigits[part & 15];
  }
  return text;
}

const char* Dashes(int style) {
  switch (style) {
    case kPenDotted:
      return " stroke-dasharray=\"30 45\"";
    case kPenDashDot:
      return " stroke-dasharray=\"150 45 30 45\"";
    case kPenDashDotDot:
      return " stroke-dasharray=\"150 45 30 45 30 45\"";
    default:
      return "";
  }
}

/// Writes elements in the panel's twips; what belongs to the plot comes in its own scale.
class SvgWriter {
 public:
  SvgWriter(std::ostream& out, const Scale& scale) : out_(out), scale_(scale) {}

  double X(double ne) const { return kPlotLeft + (ne - scale_.left) / scale_.width * kPlotWidth; }
  double Y(double speed) const { return (speed - scale_.top) / scale_.height * kPlotHeight; }

  void Line(double x1, double y1, double x2, double y2, Colour colour, int style) {
    out_ << "<line x1=\"" << Coordinate(x1) << "\" y1=\"" << Coordinate(y1) << "\" x2=\"" << Coordinate(x2)
         << "\" y2=\"" << Coordinate(y2) << "\" stroke=\"" << ColourText(colour) << '"' << Dashes(style)
         << "/>\n";
  }
  void Text(double x, double y, const char* anchor, Colour colour, const std::string& text) {
    out_ << "<text x=\"" << Coordinate(x) << "\" y=\"" << Coordinate(y) << "\" text-anchor=\"" << anchor
         << "\" fill=\"" << ColourText(colour) << "\">" << MarkupText(text) << "</text>\n";
  }
  void Dot(double x, double y, bool filled) {
    out_ << "<circle cx=\"" << Coordinate(x) << "\" cy=\"" << Coordinate(y)
         << "\" r=\"45\" stroke=\"#ffff00\" fill=\"" << (filled ? "#ffff00" : "none") << "\"/>\n";
  }

 private:
  std::ostream& out_;
  Scale scale_;
};

void WriteAxes(SvgWriter& svg, const Scale& scale) {
  for (int thousands = 0; thousands * 1000 <= scale.width; ++thousands) {
    const double x = svg.X(thousands * 1000);
    svg.Line(x, kPlotHeight, x, kPlotHeight + kTick, kLightGrey, kPenSolid);
    if (thousands % 5 != 0 || thousands == 0) continue;
    svg.Text(x, kPlotHeight + kTick + kNumeralSize, "middle", kLightGrey, std::to_string(thousands));
  }
  for (int twenties = 0; twenties * 20 <= scale.top; ++twenties) {
    const double y = svg.Y(twenties * 20);
    svg.Line(kPlotLeft - kTick, y, kPlotLeft, y, kLightGrey, kPenSolid);
    if (twenties % 5 != 0) continue;
    svg.Text(kPlotLeft - kTick - 30, y + kNumeralSize / 3, "end", kLightGrey, std::to_string(twenties * 20));
  }
  svg.Text(kPlotLeft + kPlotWidth, kPanelHeight - 60, "end", kLightGrey, "(x1000rpm)");
}

void WriteLegend(SvgWriter& svg, const PageWords& words, const std::vector<PlanSheet>& sheets,
                 bool measured) {
  double y = kLegendLine;
  const double left = kPlotLeft + 165;
  const auto entry = [&](Colour colour, int style, const std::string& text) {
    svg.Line(left, y - kNumeralSize / 3, left + 465, y - kNumeralSize / 3, colour, style);
    svg.Text(left + 525, y, "start", colour, text);
    y += kLegendLine;
  };
  if (sheets.size() == 1 && sheets.front().hasStored) entry(kLightGrey, kPenDotted, words.original);
  const std::size_t named = std::min(sheets.size(), kToothColours);
  for (std::size_t k = 0; k < named; ++k) entry(ToothColour(k), kPenSolid, sheets[k].title);
  if (named < sheets.size()) {
    svg.Text(left + 525, y, "start", kLightGrey, "+ " + std::to_string(sheets.size() - named));
    y += kLegendLine;
  }
  if (!measured) return;
  svg.Dot(left + 232, y - kNumeralSize / 3, true);
  svg.Text(left + 525, y, "start", kYellow, words.measured);
}

}  // namespace

void WriteSvg(std::ostream& out, const PageWords& words, const std::vector<PlanSheet>& sheets,
              const TyreFit* tyre) {
  const NoMetrics metrics;
  Surface surface(metrics);
  surface.SetSize(kPlotWidth, kPlotHeight);
  DrawPlans(surface, sheets);
  const Scale scale = surface.UserScale();
  SvgWriter svg(out, scale);
  out << "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 " << kPanelWidth << ' ' << kPanelHeight
      << "\" width=\"" << kPanelWidth / kPixel << "\" height=\"" << kPanelHeight / kPixel
      << "\" font-family=\"sans-serif\" font-size=\"" << kNumeralSize << "\" stroke-width=\"" << kPixel
      << "\">\n"
      << "<title>" << MarkupText(sheets.front().machine) << "</title>\n"
      << "<clipPath id=\"plot\"><rect x=\"" << kPlotLeft << "\" y=\"0\" width=\"" << kPlotWidth
      << "\" height=\"" << kPlotHeight << "\"/></clipPath>\n"
      << "<rect width=\"" << kPanelWidth << "\" height=\"" << kPanelHeight << "\" fill=\""
      << ColourText(kDarkBlue) << "\"/>\n<rect x=\"" << kPlotLeft << "\" y=\"0\" width=\"" << kPlotWidth
      << "\" height=\"" << kPlotHeight << "\" fill=\"" << ColourText(kBlack) << "\"/>\n";
  WriteAxes(svg, scale);
  out << "<g clip-path=\"url(#plot)\">\n";
  for (const Primitive& primitive : surface.Drawing()) {
    const auto& line = std::get<LinePrimitive>(primitive.shape);
    svg.Line(svg.X(line.x1), svg.Y(line.y1), svg.X(line.x2), svg.Y(line.y2), line.colour, line.style);
  }
  if (tyre != nullptr) {
    for (const FittedPoint& point : tyre->points)
      svg.Dot(svg.X(point.point.ne), svg.Y(point.point.speed), point.fits);
  }
  out << "</g>\n";
  WriteLegend(svg, words, sheets, tyre != nullptr);
  out << "</svg>\n";
}

}  // namespace veldrin
