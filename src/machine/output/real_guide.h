// The user's guide in the desktop's browser. It is a folder with one for each language:
//
//   GUIDE/en/index.html          all of it, a heading for each section
//   GUIDE/en/at/SECTION.html     leads there; some desktops drop what stands behind "#" in the link to a file
#pragma once

#include <QString>

#include <string_view>

namespace veldrin {

/// The guide of the program in the folder `program`: guide beside it, or doc/veldrin/guide or veldrin/guide
/// in one of the folders for shared data. Empty when there is none.
QString GuideFolder(const QString& program);

/// Opens a section with the desktop; where the guide has none of that name, its beginning. False where there
/// is no guide in the folder, or nothing that opens it.
bool OpenGuide(const QString& guide, bool japanese, std::string_view section);

}  // namespace veldrin
