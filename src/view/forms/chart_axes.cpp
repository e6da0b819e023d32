#include "view/forms/chart_axes.h"

namespace veldrin {

namespace {

std::unique_ptr<Line> DesignedTickAcross(const char* name, Control& panel, int thousands) {
  const float x = TickAcross(thousands, kDesignThousandNe);
  return std::make_unique<Line>(name, panel, x, kAxesFoot, x, kTickFoot);
}

std::unique_ptr<Line> DesignedTickUp(const char* name, Control& panel, int twenties) {
  const float y = TickUp(twenties, kDesignTwentyKmh);
  return std::make_unique<Line>(name, panel, kTickLeft, y, kAxesLeft, y);
}

Place DesignedNumeral(int index, float unitWidth) {
  if (index == kNeUnit) return {kNeUnitLeft, kNeUnitTop, unitWidth, 195};
  return {NumeralLeft(index, kDesignThousandNe), kTickFoot, 240, 195};
}

}  // namespace

ControlArray<Line>::Maker TicksAcross(const char* name, Control& panel) {
  return [name, &panel](int thousands) { return DesignedTickAcross(name, panel, thousands); };
}

ControlArray<Line>::Maker TicksUp(const char* name, Control& panel) {
  return [name, &panel](int twenties) { return DesignedTickUp(name, panel, twenties); };
}

std::function<Place(int)> NumeralsAcross(float unitWidth) {
  return [unitWidth](int index) { return DesignedNumeral(index, unitWidth); };
}

std::vector<const char*> NumeralTexts() {
  return {"5", "10", "15", "20", "(x1000rpm)"};
}

}  // namespace veldrin
