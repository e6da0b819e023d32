// Where the report goes: the clipboard, a picture file, or the printer. What stands on its page, and where,
// is laid out in report_page.h.
//
// A picture is drawn on the hidden window `Form6`, a page of 11500 by 8000 stretched over the window's
// surface; its `Picture1` takes the top left part of that and is handed over. The printer gets the same page
// in twips, and a failing statement of it is skipped.
#pragma once

#include "workspace/program.h"

namespace veldrin {

enum class PictureOutput { Clipboard, File };

/// Draws the picture of the size `sizeIndex` (0..5), which becomes `ReportSizeIndex`, and hands it over. A
/// file takes the name of `DataFile` in `DataPath`, and replaces one that is there. Raises what the page and
/// the file raise; `Form6` stays loaded then.
void RenderPicture(Program& program, int sizeIndex, PictureOutput output);

/// Asks for the printer, draws the page and ends the document; does nothing after Cancel. Raises nothing.
void PrintReport(Program& program);

/// Binds the entries of `clip` and `bmp`, and `menu_print`.
void AttachReport(Program& program);

}  // namespace veldrin
