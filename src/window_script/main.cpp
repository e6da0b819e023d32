// veldrin-window-script [--zoom PERCENT] FILE...: runs scripts against the program on a simulated machine,
// through the widgets of the desktop program. Nothing is seen of them unless QT_QPA_PLATFORM names a platform
// with a display. The exit states are those of veldrin-script.
#include "desktop/windows/look.h"
#include "script/script_runner.h"
#include "window_script/widget_hand.h"

#include <QApplication>

#include <iostream>

namespace {

/// A screen that is not there cannot raise windows or cut them out, and says so each time.
void TellGraveOnes(QtMsgType type, const QMessageLogContext& /*context*/, const QString& message) {
  if (type == QtCriticalMsg || type == QtFatalMsg) std::cerr << message.toStdString() << "\n";
}

}  // namespace

int main(int count, char** arguments) {
  qInstallMessageHandler(TellGraveOnes);
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(count, arguments);
  veldrin::SetUpLook(application);
  std::vector<std::string> files(arguments + 1, arguments + count);
  double zoom = 1;
  if (files.size() >= 2 && files[0] == "--zoom") {
    zoom = QByteArray::fromStdString(files[1]).toDouble() / 100;
    files.erase(files.begin(), files.begin() + 2);
  }
  veldrin::WidgetHand hand(zoom);
  return static_cast<int>(veldrin::RunScriptFiles(files, hand, "veldrin-window-script"));
}
