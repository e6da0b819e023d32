// veldrin-icons FOLDER: draws the icons of the program and of its files into the folders of a theme below
// FOLDER. scripts/make-icons calls it.
#include "icons/icon_files.h"

#include <QGuiApplication>

#include <cstdio>
#include <cstdlib>

int main(int count, char** arguments) {
  if (count != 2) {
    std::fputs("usage: veldrin-icons FOLDER\n", stderr);
    return EXIT_FAILURE;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(count, arguments);
  if (veldrin::WriteIcons(QString::fromLocal8Bit(arguments[1]))) return EXIT_SUCCESS;
  std::fprintf(stderr, "veldrin-icons: the icons cannot be written below %s\n", arguments[1]);
  return EXIT_FAILURE;
}
