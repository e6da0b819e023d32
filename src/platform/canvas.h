// A drawing surface that keeps what was drawn since it was cleared.
//
// Everything is drawn in the surface's own units: a user scale of left, top, width and height laid over a
// physical size in twips (a negative height turns the y axis upward). What was drawn stays as a list of
// primitives; front ends paint from it at any resolution, and scripts read it.
#pragma once

#include "platform/colour.h"

#include <functional>
#include <string>
#include <variant>
#include <vector>

namespace veldrin {

/// Pen styles by the platform's numbers.
enum PenStyle : int { kPenSolid = 0, kPenDotted = 2, kPenDashDot = 3, kPenDashDotDot = 4 };

/// How a fill meets what is below it.
enum class DrawMode { Copy, NotXorPen };

struct Font {
  std::string name;
  float size = 9;  // points
  bool bold = false;
  bool italic = false;

  friend bool operator==(const Font&, const Font&) = default;
};

/// Size of a text on a surface, in twips.
struct TextSize {
  double width;
  double height;
};

/// What a surface asks to place texts: the machine knows its fonts.
struct TextMetrics {
  virtual ~TextMetrics() = default;
  /// Size in twips of one line of text.
  virtual TextSize Measure(const Font& font, const std::string& text) const = 0;
};

struct LinePrimitive {
  double x1, y1, x2, y2;
  Colour colour;
  int style;
  int width;  // pixels

  friend bool operator==(const LinePrimitive&, const LinePrimitive&) = default;
};

struct TextPrimitive {
  double x, y;
  std::string text;
  Colour colour;
  Font font;

  friend bool operator==(const TextPrimitive&, const TextPrimitive&) = default;
};

struct FillPrimitive {
  double x1, y1, x2, y2;
  Colour colour;
  DrawMode mode;

  friend bool operator==(const FillPrimitive&, const FillPrimitive&) = default;
};

/// A user scale: the left top corner, and the size, whose height may be negative.
struct Scale {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;

  friend bool operator==(const Scale&, const Scale&) = default;
};

/// One thing drawn, with the user scale that was in force then.
struct Primitive {
  std::variant<LinePrimitive, TextPrimitive, FillPrimitive> shape;
  Scale scale;
};

/// The surface. Its pen, font and position are plain fields; what is drawn goes through the functions.
class Surface {
 public:
  explicit Surface(const TextMetrics& metrics) : metrics_(&metrics) {}

  Colour foreColour = kBlack;
  int drawStyle = kPenSolid;
  int drawWidth = 1;
  DrawMode drawMode = DrawMode::Copy;
  Font font;
  /// Told after every change of what is drawn; the surface's painter listens here.
  std::function<void()> changed;

  /// The physical size, in twips. Without a user scale it is the scale as well.
  void SetSize(double width, double height);
  double PhysicalWidth() const { return width_; }
  double PhysicalHeight() const { return height_; }

  /// Lays a user scale over the surface. What stands on it keeps its place.
  void SetScale(const Scale& scale);
  void SetScaleWidth(double width);
  void SetScaleHeight(double height);
  Scale UserScale() const;

  /// Erases what was drawn and puts the position back to the scale's left top corner.
  void Clear();

  /// A line with the surface's pen; the position becomes its end.
  void Line(double x1, double y1, double x2, double y2, Colour colour);
  /// A filled rectangle in the surface's draw mode.
  void Fill(double x1, double y1, double x2, double y2, Colour colour);
  /// A text with its left top corner at (x, y), in the surface's font and fore colour. The position moves to
  /// the text's right top corner.
  void Print(double x, double y, const std::string& text);

  double CurrentX() const { return x_; }
  double CurrentY() const { return y_; }

  /// Width and height of a text in the surface's units, without sign.
  double TextWidth(const std::string& text) const;
  double TextHeight(const std::string& text) const;

  const std::vector<Primitive>& Drawing() const { return drawing_; }

  /// Takes over what another surface shows, its scale and size included.
  void CopyDrawing(const Surface& other);

 private:
  void Add(std::variant<LinePrimitive, TextPrimitive, FillPrimitive> shape);

  const TextMetrics* metrics_;
  double width_ = 0;
  double height_ = 0;
  bool hasUserScale_ = false;
  Scale scale_;
  double x_ = 0;
  double y_ = 0;
  std::vector<Primitive> drawing_;
};

/// A primitive in one line: its kind, coordinates with at most seven significant digits, and attributes.
std::string Describe(const Primitive& primitive);

}  // namespace veldrin
