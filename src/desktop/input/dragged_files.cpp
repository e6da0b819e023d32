#include "desktop/input/dragged_files.h"

#include "machine/files/real_path.h"

#include <QUrl>

#include <algorithm>

namespace veldrin {

bool CarriesFiles(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  return std::any_of(urls.begin(), urls.end(), [](const QUrl& url) { return url.isLocalFile(); });
}

std::string DroppedPath(const QMimeData& data) {
  const QList<QUrl> urls = data.urls();
  if (urls.size() != 1) return "";
  return BytesOfLocalFile(urls[0]);
}

}  // namespace veldrin
