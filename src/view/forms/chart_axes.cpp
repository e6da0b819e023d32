#include "view/forms/chart_axes.h"

namespace veldrin {

ControlArray<Line>::Maker TicksAcross(const char* name, Control& panel) {
  return [name, &panel](int thousands) {
    const float x = TickAcross(thousands, kDesignThousandNe);
    return std::make_unique<Line>(name, panel, x, 5520.0F, x, 5640.0F);
  };
}

ControlArray<Line>::Maker TicksUp(const char* name, Control& panel) {
  return [name, &panel](int twenties) {
    const float y = TickUp(twenties, kDesignTwentyKmh);
    return std::make_unique<Line>(name, panel, 360.0F, y, 480.0F, y);
  };
}

std::function<Place(int)> NumeralsAcross(float unitWidth) {
  return [unitWidth](int index) {
    if (index == 4) return Place{3480, 5805, unitWidth, 195};
    return Place{NumeralLeft(index, kDesignThousandNe), 5640, 240, 195};
  };
}

std::vector<const char*> NumeralTexts() {
  return {"5", "10", "15", "20", "(x1000rpm)"};
}

}  // namespace veldrin
