#include "icons/icon_files.h"

#include "machine/painting/icons.h"

#include <QBuffer>
#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace veldrin {

namespace {

struct Named {
  IconSubject subject;
  const char* name;
};

constexpr Named kIcons[] = {{IconSubject::Program, "apps/veldrin"},
                            {IconSubject::Plan, "mimetypes/application-x-veldrin-plan"},
                            {IconSubject::List, "mimetypes/application-x-veldrin-list"}};

QByteArray Png(const QImage& image) {
  QBuffer buffer;
  buffer.open(QIODevice::WriteOnly);
  image.convertToFormat(QImage::Format_ARGB32).save(&buffer, "PNG");
  return buffer.data();
}

}  // namespace

std::vector<IconFile> IconFiles() {
  std::vector<IconFile> files;
  for (const auto& [subject, name] : kIcons) {
    for (const int size : {16, 24, 32, 48, 64, 128, 256, 512})
      files.push_back({QString("%1x%1/%2.png").arg(size).arg(name), Png(IconImage(subject, size))});
    files.push_back({QString("scalable/%1.svg").arg(name), QByteArray::fromStdString(IconSvg(subject))});
  }
  return files;
}

bool WriteIcons(const QString& folder) {
  for (const IconFile& icon : IconFiles()) {
    QFile file(folder + "/" + icon.place);
    if (!QDir().mkpath(QFileInfo(file).path()) || !file.open(QIODevice::WriteOnly)) return false;
    if (file.write(icon.bytes) != icon.bytes.size()) return false;
  }
  return true;
}

}  // namespace veldrin
