#include "platform/canvas.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

namespace veldrin {

namespace {

/// At most seven significant digits, never in exponent form, no zeros at the end.
std::string SevenDigits(double value) {
  if (value == 0) return "0";
  const int before = static_cast<int>(std::floor(std::log10(std::fabs(value)))) + 1;
  const int decimals = std::max(0, 7 - before);
  std::array<char, 400> room{};
  const auto end =
      std::to_chars(room.data(), room.data() + room.size(), value, std::chars_format::fixed, decimals);
  std::string text(room.data(), end.ptr);
  if (text.find('.') != std::string::npos) {
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') text.pop_back();
  }
  return text == "-0" ? "0" : text;
}

std::string ColourText(Colour colour) {
  return std::to_string(colour.Red()) + "," + std::to_string(colour.Green()) + "," +
         std::to_string(colour.Blue());
}

std::string Quoted(const std::string& text) {
  std::string quoted = "\"";
  for (const char c : text) {
    quoted += c;
    if (c == '"') quoted += c;
  }
  return quoted + "\"";
}

std::string Corners(double x1, double y1, double x2, double y2) {
  return SevenDigits(x1) + " " + SevenDigits(y1) + " " + SevenDigits(x2) + " " + SevenDigits(y2);
}

struct Describer {
  std::string operator()(const LinePrimitive& line) const {
    return "line " + Corners(line.x1, line.y1, line.x2, line.y2) + " " + ColourText(line.colour) +
           " style=" + std::to_string(line.style) + " width=" + std::to_string(line.width);
  }
  std::string operator()(const TextPrimitive& text) const {
    return "text " + SevenDigits(text.x) + " " + SevenDigits(text.y) + " " + Quoted(text.text) + " " +
           ColourText(text.colour) + " font=" + Quoted(text.font.name) +
           " size=" + SevenDigits(text.font.size) + " bold=" + (text.font.bold ? "True" : "False") +
           " italic=" + (text.font.italic ? "True" : "False");
  }
  std::string operator()(const FillPrimitive& fill) const {
    return "fill " + Corners(fill.x1, fill.y1, fill.x2, fill.y2) + " " + ColourText(fill.colour) +
           " mode=" + (fill.mode == DrawMode::Copy ? "copy" : "notxor");
  }
};

}  // namespace

void Surface::SetSize(double width, double height) {
  width_ = width;
  height_ = height;
}

void Surface::SetScale(const Scale& scale) {
  hasUserScale_ = true;
  scale_ = scale;
  if (changed) changed();
}

void Surface::SetScaleWidth(double width) {
  Scale scale = UserScale();
  scale.width = width;
  SetScale(scale);
}

void Surface::SetScaleHeight(double height) {
  Scale scale = UserScale();
  scale.height = height;
  SetScale(scale);
}

Scale Surface::UserScale() const {
  return hasUserScale_ ? scale_ : Scale{0, 0, width_, height_};
}

void Surface::Clear() {
  drawing_.clear();
  const Scale scale = UserScale();
  x_ = scale.left;
  y_ = scale.top;
  if (changed) changed();
}

void Surface::Line(double x1, double y1, double x2, double y2, Colour colour) {
  Add(LinePrimitive{x1, y1, x2, y2, colour, drawStyle, drawWidth});
  x_ = x2;
  y_ = y2;
}

void Surface::Fill(double x1, double y1, double x2, double y2, Colour colour) {
  Add(FillPrimitive{x1, y1, x2, y2, colour, drawMode});
  x_ = x2;
  y_ = y2;
}

void Surface::Print(double x, double y, const std::string& text) {
  Add(TextPrimitive{x, y, text, foreColour, font});
  x_ = x + TextWidth(text);
  y_ = y;
}

double Surface::TextWidth(const std::string& text) const {
  const double twips = metrics_->Measure(font, text).width;
  return width_ == 0 ? twips : twips * std::fabs(UserScale().width) / width_;
}

double Surface::TextHeight(const std::string& text) const {
  const double twips = metrics_->Measure(font, text).height;
  return height_ == 0 ? twips : twips * std::fabs(UserScale().height) / height_;
}

void Surface::Add(std::variant<LinePrimitive, TextPrimitive, FillPrimitive> shape) {
  drawing_.push_back({std::move(shape), UserScale()});
  if (changed) changed();
}

void Surface::CopyDrawing(const Surface& other) {
  width_ = other.width_;
  height_ = other.height_;
  hasUserScale_ = other.hasUserScale_;
  scale_ = other.scale_;
  drawing_ = other.drawing_;
  if (changed) changed();
}

std::string Describe(const Primitive& primitive) {
  return std::visit(Describer{}, primitive.shape);
}

}  // namespace veldrin
