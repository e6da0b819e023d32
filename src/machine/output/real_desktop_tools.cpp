#include "machine/output/real_desktop_tools.h"

#ifndef _WIN32

#include <QProcess>

namespace veldrin {

namespace {

/// A word of the shell that stands for itself, whatever is in it.
QString ShellWord(const QString& text) {
  return "'" + QString(text).replace("'", "'\\''") + "'";
}

/// One shell runs them all. It holds the folder's lock; its tools do not, since some leave others behind.
QString Script(const QString& folder, const QList<QStringList>& commands) {
  QString script = "{ flock -w 60 9\n";
  for (const QStringList& command : commands) {
    for (const QString& word : command) script += ShellWord(word) + " ";
    script += "9<&-\n";
  }
  return script + "} 9<" + ShellWord(folder) + "\n";
}

}  // namespace

void RunBehind(const QString& folder, const QList<QStringList>& commands) {
  QProcess shell;
  shell.setProgram("/bin/sh");
  shell.setArguments({"-c", Script(folder, commands)});
  shell.setStandardInputFile(QProcess::nullDevice());
  shell.setStandardOutputFile(QProcess::nullDevice());
  shell.setStandardErrorFile(QProcess::nullDevice());
  shell.startDetached();
}

}  // namespace veldrin

#endif
