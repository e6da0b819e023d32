#include "desktop/windows/first_steps.h"

#include "machine/painting/fonts.h"
#include "workspace/decision_panel/decision_panel.h"

#include <QFontMetrics>
#include <QStringList>

#include <array>

namespace veldrin {

namespace {

constexpr float kFontSize = 10;
// In pixels of the program: below the buttons of the left half, and as wide as that.
constexpr double kLeft = 18;
constexpr double kTop = 120;
constexpr double kWidth = 300;
constexpr double kBetween = 18;

struct Step {
  const char* english;
  const char* japanese;
};

constexpr std::array<Step, 3> kSteps = {{
    {"Mode makes a first plan, of the lowest row of everything.",
     "「Mode」で、すべて最初の段を使ったプランを作ります。"},
    {"Load opens a plan that was saved.", "「Load」で、保存したプランを開きます。"},
    {"A plan or a machine list can also be dropped here.",
     "プランや機種ファイルをここにドロップして開くこともできます。"},
}};

}  // namespace

bool AwaitsFirstPlan(const Program& program) {
  return program.workspace.ModeWord == mode::kBasing && !program.workspace.LoadedMachine.empty() &&
         !program.form2.Text6.Visible && !QuestionStands(program);
}

void PaintFirstSteps(QPainter& painter, double zoom, bool inJapanese) {
  const QFont font = FontFor({"Arial", kFontSize, false, false}, kPixelsPerInch * zoom);
  painter.setFont(font);
  painter.setPen(QColor(0xc0, 0xc0, 0xc0));
  double top = kTop * zoom;
  for (const Step& step : kSteps) {
    const QString text = inJapanese ? step.japanese : step.english;
    QRectF drawn;
    painter.drawText(QRectF(kLeft * zoom, top, kWidth * zoom, 10 * font.pixelSize() + 1000),
                     Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, text, &drawn);
    top = drawn.bottom() + kBetween * zoom;
  }
}

}  // namespace veldrin
