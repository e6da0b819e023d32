#include "tests/desktop/opened_links.h"
#include "tests/desktop/running_program.h"

namespace veldrin {
namespace {

class GuideRoadTest : public RunningProgramTest {
 protected:
  void TearDown() override {
    RunningProgramTest::TearDown();
    QDir(Beside()).removeRecursively();
  }

  /// Where a guide of the test's own goes before the one that was built.
  static QString Beside() { return QCoreApplication::applicationDirPath() + "/guide"; }

  void PressHelp() {
    FormWidget& form = *Desktop().windows.FormOf(Main().form2);
    QWidget* const target = form.focusWidget() != nullptr ? form.focusWidget() : &form;
    QKeyEvent event(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    QApplication::sendEvent(target, &event);
  }

  OpenedLinks links;
};

TEST_F(GuideRoadTest, HelpShowsTheSectionInTheLanguageInForce) {
  for (const char* language : {"en", "ja"}) {
    const QString folder = Beside() + "/" + language;
    QDir().mkpath(folder + "/at");
    for (const char* page : {"/index.html", "/at/header.html"})
      QFile(folder + page).open(QIODevice::WriteOnly);
  }
  Run(PlanFile(), [this] {
    SetFocus(Main().form2.Command3);
    PressHelp();
    Main().workspace.Language = kJapanese;
    PressHelp();
    Desktop().EndAtOnce();
  });
  EXPECT_EQ(links.opened, (QStringList{QUrl::fromLocalFile(Beside() + "/en/at/header.html").toString(),
                                       QUrl::fromLocalFile(Beside() + "/ja/at/header.html").toString()}));
}

}  // namespace
}  // namespace veldrin
