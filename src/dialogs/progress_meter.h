// A bar meter with a text in its middle, drawn on a surface that somebody else owns.
//
// Every refresh draws the bar anew on top of what is there: white over everything, the text, and over that
// the full and the empty part in the inverted draw mode, which lets the text stand out on both sides of the
// bar's edge.
#pragma once

#include "platform/canvas.h"

#include <cstdint>
#include <string>

namespace veldrin {

class clsProgressBar {
 public:
  /// Takes the surface: clears it, makes `Max` its scale's width and sets the value to 0. Until then a meter
  /// only keeps what it is told. Raises fault 6 for a scale beyond 32 bits.
  void SetPicture(Surface& picture);

  /// 0 to `Max`; what lies outside is held within. Setting draws the bar.
  std::int32_t Value() const { return value_; }
  void SetValue(std::int32_t value);

  /// Colours of the full and of the empty part.
  Colour BarColor() const { return barColor_; }
  void SetBarColor(Colour colour);
  Colour BackColor() const { return backColor_; }
  void SetBackColor(Colour colour);

  /// The value of a full bar. Setting it makes it the surface's scale in both directions.
  std::int32_t Max() const { return max_; }
  void SetMax(std::int32_t max);

  /// What stands on the bar, behind the value where `ShowNumber` holds.
  const std::string& Text() const { return text_; }
  void SetText(const std::string& text);
  bool ShowNumber() const { return showNumber_; }
  void SetShowNumber(bool show);

  /// 0 fills from the left, 1 from the bottom, any other draws no bar. Setting it resets the scale to `Max`.
  std::int32_t Direction() const { return direction_; }
  void SetDirection(std::int32_t direction);

  /// Draws the bar anew.
  void Refresh();

 private:
  void Draw();
  void DrawText(double width, double height);
  void DrawParts(double width, double height);

  Surface* picture_ = nullptr;
  std::int32_t value_ = 0;
  Colour barColor_{0x800000};
  Colour backColor_{0xFFFFFF};
  std::int32_t max_ = 100;
  std::string text_ = "%";
  bool showNumber_ = true;
  std::int32_t direction_ = 0;
};

}  // namespace veldrin
