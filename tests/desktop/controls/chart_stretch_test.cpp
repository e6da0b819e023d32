// The chart stretches with its panel, whatever sizes the window came by.
#include "tests/desktop/main_window.h"
#include "window_script/shown_check.h"

#include <QSizeF>

namespace veldrin {
namespace {

// Twips; the panel's own units are those of the window at 9720 by 7395, and of every window that is small.
constexpr QSizeF kSizes[] = {{9720, 7400}, {9720, 7395},   {9000, 7000},
                             {9000, 9000}, {13000, 10000}, {15000, 7395}};
constexpr int kSmallSteps = 16;

class ChartStretchTest : public MainWindowTest {
 protected:
  void Resize(const QSizeF& size) {
    stage.input.Do([&] {
      return user::Resize(program->form2, static_cast<float>(size.width()),
                          static_cast<float>(size.height()));
    });
  }

  void ResizeSlowly(const QSizeF& from, const QSizeF& to) {
    for (int step = 1; step <= kSmallSteps; ++step) Resize(from + (to - from) * step / kSmallSteps);
  }

  /// The places of all that stands on the chart panel.
  std::vector<QRect> Picture() {
    std::vector<QRect> places;
    for (const QWidget* widget : WidgetOf(program->form2.Picture19).findChildren<QWidget*>()) {
      places.push_back(widget->geometry());
    }
    return places;
  }

  std::string Differences() {
    std::string names;
    for (const Mismatch& mismatch : DifferencesIn(Widget(), stage)) names += mismatch.name + " ";
    return names;
  }
};

TEST_F(ChartStretchTest, OneStepBetweenAnyTwoSizesShowsWhatSmallStepsShow) {
  for (const double zoom : {1.0, 1.75}) {
    stage.zoom.Set(zoom);
    for (const QSizeF& from : kSizes) {
      for (const QSizeF& to : kSizes) {
        Resize(from);
        ResizeSlowly(from, to);
        const std::vector<QRect> slowly = Picture();
        Resize(from);
        Resize(to);
        EXPECT_EQ(Picture(), slowly) << from.width() << " " << from.height() << " to " << to.width() << " "
                                     << to.height() << " at " << zoom;
        EXPECT_EQ(Differences(), "");
      }
    }
  }
}

TEST_F(ChartStretchTest, TheFrameIsAsManyTimesLargerAsItsPanel) {
  const Form2& form2 = program->form2;
  Resize({9720, 7395});
  const QRect before = WidgetOf(form2.Picture21).geometry();
  Resize({9720 + 4605, 7395 + 6855});
  const QRect twice = WidgetOf(form2.Picture21).geometry();
  EXPECT_NEAR(twice.x(), before.x() * 2, 1);
  EXPECT_NEAR(twice.width(), before.width() * 2, 2);
  EXPECT_NEAR(twice.height(), before.height() * 2, 2);
}

TEST_F(ChartStretchTest, ANumeralAtTheTopEdgeIsWholeOrNotThere) {
  Label& numeral = program->form2.Label18;
  numeral.Top = -90;  // its tick is the edge
  EXPECT_EQ(WidgetOf(numeral).y(), 0);
  EXPECT_EQ(WidgetOf(numeral).height(), 13);
  numeral.Top = -120;  // its tick lies above
  EXPECT_LE(WidgetOf(numeral).geometry().bottom(), 0);
  numeral.Top = 30;
  EXPECT_EQ(WidgetOf(numeral).y(), 2);
}

}  // namespace
}  // namespace veldrin
