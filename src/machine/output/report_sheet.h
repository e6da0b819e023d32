// The sheet that the report is laid out for, and how it comes onto the paper.
#pragma once

#include <QSizeF>

namespace veldrin {

struct Sheet {
  QSizeF size;        // twips
  double factor = 1;  // how many times larger it is printed
};

/// The sheet for a printable area in twips. An upright area with room for the report is the sheet itself; any
/// other shows the report on an upright sheet of its own, scaled to fit into its left top corner.
Sheet SheetFor(const QSizeF& printable);

}  // namespace veldrin
