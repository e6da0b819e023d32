#include "desktop/look.h"

#include "desktop/accessible_control.h"
#include "desktop/artwork.h"

#include <QPalette>
#include <QStyleFactory>

namespace veldrin {

namespace {

constexpr QColor kFace(226, 226, 226);
constexpr QColor kSelected(0, 90, 190);

}  // namespace

void SetUpLook(QApplication& application) {
  QApplication::setStyle(QStyleFactory::create("Fusion"));
  QPalette palette(kFace, kFace);
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Highlight, kSelected);
  palette.setColor(QPalette::HighlightedText, Qt::white);
  QApplication::setPalette(palette);
  InstallAccessibleControls();
  QApplication::setWindowIcon(ProgramIcon());
  application.setApplicationName("veldrin");
  application.setApplicationVersion(VELDRIN_VERSION);
}

}  // namespace veldrin
