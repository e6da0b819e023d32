// Text that stays inside its control, whatever font the system has in place of the one that was meant.
#pragma once

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QString>

namespace veldrin {

/// Draws a text within `room`, in the middle of its height. A room as high as two lines wraps at words. What
/// is too wide or too high is drawn smaller, and cut short with an ellipsis where that does not do; a path is
/// cut in its middle, as its end tells most. Whether the text stands there whole.
bool DrawFitted(QPainter& painter, const QRectF& room, const QString& text, const QFont& font,
                Qt::Alignment align);

/// The text of a caption whose "&" marks a key, as it reads.
QString WithoutMarks(const QString& caption);

}  // namespace veldrin
