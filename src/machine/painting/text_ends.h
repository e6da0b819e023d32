// Line ends: CR LF in the program's texts, LF in widgets.
#pragma once

#include <QString>

#include <string>

namespace veldrin {

/// A text of the program for a widget. A lone CR or LF ends a line as well.
inline QString ToWidgetText(const std::string& text) {
  QString shown = QString::fromStdString(text);
  shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  shown.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return shown;
}

/// The text of a widget for the program.
inline std::string ToSlotText(QString text) {
  text.replace(QLatin1Char('\n'), QStringLiteral("\r\n"));
  return text.toStdString();
}

}  // namespace veldrin
