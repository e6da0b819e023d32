#include "desktop/windows/look.h"

#include "desktop/accessible/accessible_control.h"
#include "machine/painting/icons.h"

#include <QLibraryInfo>
#include <QLocale>
#include <QPalette>
#include <QStyleFactory>
#include <QTranslator>

namespace veldrin {

namespace {

constexpr QColor kFace(226, 226, 226);
constexpr QColor kSelected(0, 90, 190);

/// The words of Qt's own boxes and menus, in the system's language where Qt has them in it.
void TranslateBoxes(QApplication& application) {
  auto* const words = new QTranslator(&application);
  const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
  if (words->load(QLocale(), "qtbase", "_", folder)) QApplication::installTranslator(words);
}

}  // namespace

void SetUpLook(QApplication& application) {
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QPalette palette(kFace, kFace);
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Highlight, kSelected);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  QApplication::setPalette(palette);
  InstallAccessibleControls();
  TranslateBoxes(application);
  QApplication::setWindowIcon(ProgramIcon());
  application.setApplicationName("veldrin");
  QGuiApplication::setDesktopFileName("veldrin");  // the entry whose icon the desktop shows
  application.setApplicationVersion(VELDRIN_VERSION);
}

}  // namespace veldrin
