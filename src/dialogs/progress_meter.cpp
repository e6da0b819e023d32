#include "dialogs/progress_meter.h"

#include "runtime/conversion.h"

namespace veldrin {

namespace {

constexpr std::int32_t kFromTheLeft = 0;
constexpr std::int32_t kFromTheBottom = 1;

}  // namespace

void clsProgressBar::SetPicture(Surface& picture) {
  picture_ = &picture;
  picture_->Clear();
  picture_->SetScaleWidth(max_);
  SetValue(0);
}

void clsProgressBar::SetValue(std::int32_t value) {
  if (value < 0) value = 0;
  if (value > max_) value = max_;
  value_ = value;
  if (picture_ != nullptr) Draw();
}

void clsProgressBar::SetBarColor(Colour colour) {
  barColor_ = colour;
  Refresh();
}

void clsProgressBar::SetBackColor(Colour colour) {
  backColor_ = colour;
  Refresh();
}

void clsProgressBar::SetMax(std::int32_t max) {
  max_ = max;
  if (picture_ != nullptr) {
    picture_->SetScaleWidth(max_);
    picture_->SetScaleHeight(max_);
  }
  Refresh();
}

void clsProgressBar::SetText(const std::string& text) {
  text_ = text;
  Refresh();
}

void clsProgressBar::SetShowNumber(bool show) {
  showNumber_ = show;
  Refresh();
}

void clsProgressBar::SetDirection(std::int32_t direction) {
  direction_ = direction;
  SetMax(max_);
  Refresh();
}

void clsProgressBar::Refresh() {
  SetValue(value_);
}

void clsProgressBar::Draw() {
  const Scale scale = picture_->UserScale();
  const double width = ToInt32(scale.width);
  const double height = ToInt32(scale.height);
  picture_->drawMode = DrawMode::Copy;
  picture_->Fill(0, 0, width, height, kWhite);
  picture_->drawMode = DrawMode::NotXorPen;
  picture_->foreColour = barColor_;
  DrawText(width, height);
  DrawParts(width, height);
  if (picture_->changed) picture_->changed();
}

void clsProgressBar::DrawText(double width, double height) {
  const std::string text = showNumber_ ? std::to_string(value_) + text_ : text_;
  if (text.empty()) return;
  const double x = width / 2 - picture_->TextWidth(text) / 2;
  const double y = (height - picture_->TextHeight(text)) / 2;
  picture_->Print(x, y, text);
}

void clsProgressBar::DrawParts(double width, double height) {
  if (direction_ == kFromTheLeft) {
    picture_->Fill(0, 0, value_, height, barColor_);
    picture_->Fill(value_, 0, width, picture_->UserScale().height, backColor_);
  } else if (direction_ == kFromTheBottom) {
    picture_->Fill(0, height, width, height - value_, barColor_);
    // Kept: taken from the value and not from what is left of the height, so the parts overlap or leave a gap
    // away from the middle.
    picture_->Fill(0, 0, width, value_, backColor_);
  }
}

}  // namespace veldrin
