#include "machine/output/real_shell.h"

#include "machine/files/real_path.h"
#include "machine/output/real_association.h"
#include "runtime/fault.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

namespace veldrin {

namespace {

/// A command line cut behind its program: what stands in the quotes it begins with, else up to the first
/// blank.
struct CommandLine {
  std::string program;
  std::string arguments;
};

CommandLine CutCommand(const std::string& command) {
  const bool quoted = command.starts_with('"');
  const std::size_t begin = quoted ? 1 : 0;
  const std::size_t end = std::min(command.find(quoted ? '"' : ' ', begin), command.size());
  return {command.substr(begin, end - begin), end < command.size() ? command.substr(end + 1) : ""};
}

/// The program's file. Raises faults 53 and 76.
QString FindProgram(const Files& files, const std::string& program) {
  const std::size_t cut = program.find_last_of("\\/");
  if (cut == std::string::npos) {
    const QString found = QStandardPaths::findExecutable(QString::fromStdString(program));
    if (found.isEmpty()) Raise(kFaultFileNotFound);
    return found;
  }
  const char separator = files.Rules().separator;
  const bool foreign = program[cut] != separator;
  if (foreign || !files.FolderExists(program.substr(0, cut + 1))) Raise(kFaultPathNotFound);
  const std::string folder = files.ResolveFolder(program.substr(0, cut + 1));
  const QString found = QStandardPaths::findExecutable(
      QString::fromStdString(files.FileExists(program) ? files.LongName(program) : program.substr(cut + 1)),
      {QDir::fromNativeSeparators(QString::fromStdString(folder))});
  if (found.isEmpty()) Raise(kFaultFileNotFound);
  return found;
}

}  // namespace

void RealShell::Run(const std::string& command) {
  const CommandLine line = CutCommand(command);
  const QString arguments = QString::fromStdString(line.arguments);
  QProcess process;
  process.setProgram(FindProgram(*files_, line.program));
#ifdef _WIN32
  process.setNativeArguments(arguments);
#else
  process.setArguments(QProcess::splitCommand(arguments));
#endif
  if (!process.startDetached()) Raise(kFaultFileNotFound);
}

bool RealShell::OpenWithDesktop(const std::string& target) {
  const bool link = target.find("://") != std::string::npos;
  if (link) return QDesktopServices::openUrl(QUrl(QString::fromStdString(target)));
  if (!files_->FolderExists(target)) return false;
  std::string folder;
  Guarded([&] { folder = files_->ResolveFolder(target); });
  return !folder.empty() && QDesktopServices::openUrl(LocalFileUrl(folder));
}

void RealShell::AssociateExtension(const std::string& extension) {
  AssociateOnDesktop(QString::fromStdString(extension));
}

void RealShell::DropExtension(const std::string& extension) {
  DropOnDesktop(QString::fromStdString(extension));
}

}  // namespace veldrin
