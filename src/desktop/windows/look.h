// The look of the program, the same on every desktop: its windows say their colours themselves, so a dark
// desktop must not mix in its own.
#pragma once

#include <QApplication>

namespace veldrin {

/// Sets style, colours, icon and name of the application, and the language of Qt's own boxes.
void SetUpLook(QApplication& application);

}  // namespace veldrin
