#include "machine/files/real_path.h"

#include "platform/disk.h"
#include "runtime/fault.h"
#include "runtime/text.h"

#include <QDir>
#include <QFile>
#include <QSysInfo>

#include <algorithm>
#include <system_error>

#ifdef _WIN32
#include <windows.h>
#endif

namespace veldrin {

namespace fs = std::filesystem;

namespace {

/// `name` as it stands in `folder`; as it came where nothing of the kind is there.
fs::path Entry(const fs::path& folder, const fs::path& name) {
#ifndef _WIN32
  std::error_code failure;
  if (fs::exists(fs::symlink_status(folder / name, failure))) return name;
#endif
  return ListedName(folder, name).value_or(name);
}

/// Where ".." leads from a folder.
fs::path Around(const fs::path& folder) {
#ifndef _WIN32
  std::error_code failure;
  if (fs::is_symlink(fs::symlink_status(folder, failure))) {
    const fs::path end = fs::canonical(folder, failure);
    if (!failure) return end.parent_path();
  }
#endif
  return folder.parent_path();
}

/// A whole path cut behind its root.
struct CutPath {
  fs::path root;
  fs::path rest;
};

#ifdef _WIN32
CutPath CutRoot(const fs::path& whole) {
  const std::wstring text = whole.wstring();
  // A share of a machine in the network, which the library takes for two folders.
  if (!text.starts_with(L"\\\\")) {
    return {PathOfText(UpperCase(TextOfPath(whole.root_path()))), whole.relative_path()};
  }
  const std::size_t share = std::min(text.find(L'\\', 2), text.size() - 1) + 1;
  const std::size_t end = std::min(text.find(L'\\', share), text.size() - 1) + 1;
  return {text.substr(0, end), text.substr(end)};
}
#else
CutPath CutRoot(const fs::path& whole) {
  return {whole.root_path(), whole.relative_path()};
}
#endif

/// A whole path part by part, without "." and ".."; `name` tells how a part of a folder is called.
template <class Name>
fs::path Walked(const CutPath& path, Name name) {
  fs::path found = path.root;
  for (const fs::path& part : path.rest) {
    if (part.empty() || part == ".") continue;
    found = part == ".." ? Around(found) : found / name(found, part);
  }
  return found;
}

}  // namespace

fs::path NativePath(const std::string& text) {
  if (text.empty() || text.find('\0') != std::string::npos) Raise(kFaultBadFileName);
#ifdef _WIN32
  constexpr std::size_t kDrive = 2;  // characters of a letter and its colon
  const bool refused = text.find_first_of("<>|\"*?") != std::string::npos;
  if (refused || text.find(':', kDrive) != std::string::npos) Raise(kFaultBadFileName);
#endif
  return PathOfText(text);
}

QString PathString(const fs::path& path) {
#ifdef _WIN32
  return QString::fromStdWString(path.generic_wstring());
#else
  return QFile::decodeName(path.c_str());
#endif
}

#ifdef _WIN32

std::string BytesOfLocalFile(const QUrl& url) {
  return url.isLocalFile() ? QDir::toNativeSeparators(url.toLocalFile()).toStdString() : "";
}

QUrl LocalFileUrl(const std::string& path) {
  return QUrl::fromLocalFile(QString::fromStdString(path));
}

#else

std::string BytesOfLocalFile(const QUrl& url) {
  // Some desktops name the machine.
  const QString host = url.host();
  const bool here = host.isEmpty() || host == "localhost" ||
                    host.compare(QSysInfo::machineHostName(), Qt::CaseInsensitive) == 0;
  if (!url.isLocalFile() || !here) return "";
  // A text of Qt's holds characters only; the encoded form has the bytes still.
  return QByteArray::fromPercentEncoding(url.path(QUrl::FullyEncoded).toLatin1()).toStdString();
}

QUrl LocalFileUrl(const std::string& path) {
  return QUrl::fromEncoded("file://" + QByteArray::fromStdString(path).toPercentEncoding("/"));
}

#endif

fs::path WholePath(const fs::path& path) {
  std::error_code failure;
  const fs::path wanted = WholeOnDisk(path, failure);
  if (failure) return path;
  const auto asWritten = [](const fs::path& /*folder*/, const fs::path& part) { return part; };
  return Walked(CutRoot(wanted), asWritten).make_preferred();
}

fs::path PathOnDisk(const std::string& text) {
  std::error_code failure;
  const fs::path wanted = WholeOnDisk(NativePath(text), failure);
  if (failure) Raise(kFaultBadFileName);
  return Walked(CutRoot(wanted), Entry);
}

#ifdef _WIN32

std::optional<fs::path> ListedName(const fs::path& folder, const fs::path& name) {
  // Wildcards would find something else.
  if (name.wstring().find_first_of(L"*?") != std::wstring::npos) return std::nullopt;
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW(OpenablePath(folder / name).c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return std::nullopt;
  FindClose(search);
  return fs::path(found.cFileName);
}

#else

std::optional<fs::path> ListedName(const fs::path& folder, const fs::path& name) {
  const std::string wanted = LowerCase(name.string());
  std::optional<fs::path> best;
  std::error_code failure;
  for (const FolderEntry& entry : EntriesOnDisk(folder, failure)) {
    if (entry.name == name) return entry.name;
    if (LowerCase(entry.name.string()) == wanted && (!best || entry.name < *best)) best = entry.name;
  }
  return best;
}

#endif

}  // namespace veldrin
