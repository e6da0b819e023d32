// Pictures of a surface on the clipboard and in Windows bitmap files: its left top part at 15 twips a pixel,
// whatever the zoom of the windows, on white.
#pragma once

#include "machine/files/real_files.h"
#include "platform/screen.h"

#include <QImage>
#include <QSizeF>

#include <vector>

namespace veldrin {

/// The picture itself. A size of nothing gives a picture of nothing.
QImage PictureOf(const Surface& surface, int width, int height);
/// The same of what was drawn on a surface of this size in twips.
QImage PictureOf(const std::vector<Primitive>& drawing, const QSizeF& surface, int width, int height);

/// The bytes of a Windows bitmap file, 24 bits a pixel.
QByteArray BitmapBytes(const QImage& image);

class RealPictures : public Pictures {
 public:
  explicit RealPictures(RealFiles& files) : files_(&files) {}

  void ClearClipboard() override;
  void PutOnClipboard(const Surface& surface, int width, int height) override;
  void SaveBitmap(const std::string& path, const Surface& surface, int width, int height) override;

 private:
  RealFiles* files_;
};

}  // namespace veldrin
