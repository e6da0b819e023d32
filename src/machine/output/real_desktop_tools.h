// The desktop's own tools, run behind the program's back: the window never waits for them, and they come to
// their end also when the program has ended before. Windows has none.
#pragma once

#include <QList>
#include <QString>
#include <QStringList>

namespace veldrin {

/// Runs commands, each a program and its arguments, one after the other and without their words. One that is
/// not installed or that fails is passed over. Whoever else runs commands on the same folder, which has to be
/// there, waits until these are done, for a minute at most. Failures are silent.
void RunBehind(const QString& folder, const QList<QStringList>& commands);

}  // namespace veldrin
