// The machine's screen, boxes on it, and where pictures of the program go.
#pragma once

#include "platform/canvas.h"

#include <string>
#include <vector>

namespace veldrin {

inline constexpr int kTwipsPerPixel = 15;

/// The screen: in twips, as windows take their places on it, and in its own pixels. Where windows are shown
/// enlarged, a pixel is less than 15 twips.
struct Screen {
  virtual ~Screen() = default;
  virtual float Width() const = 0;
  virtual float Height() const = 0;
  virtual int PixelsAcross() const = 0;
  virtual int PixelsDown() const = 0;
};

enum class BoxIcon { None, Information, Exclamation, Question, Critical };
enum class BoxButtons { Ok, OkCancel };
enum class BoxAnswer { Ok, Cancel };

/// The printer dialog's error number for Cancel.
constexpr int kPrintCancelled = 32755;

struct PrintChoice {
  int error = 0;  // 0 when accepted; kPrintCancelled, or the number of another fault
  int copies = 1;
};

/// Boxes that stop the program until they are answered.
struct Boxes {
  virtual ~Boxes() = default;
  /// A message box. The empty title is the program's own.
  virtual BoxAnswer Message(BoxIcon icon, const std::string& title, const std::string& text,
                            BoxButtons buttons) = 0;
  /// The run-time's error box, for a fault that ends the program.
  virtual void Fault(int number) = 0;
  /// The platform's colour dialog, opened on `start`; gives `start` back after Cancel.
  virtual Colour ChooseColour(Colour start) = 0;
  /// The platform's printer dialog.
  virtual PrintChoice ChoosePrinter() = 0;
};

/// The current printer. One document at a time; its page is a surface in twips from the printable area's
/// left top corner.
struct Printer {
  virtual ~Printer() = default;
  virtual bool Available() const = 0;
  virtual std::vector<std::string> Fonts() const = 0;
  virtual void SetCopies(int copies) = 0;
  virtual Surface& Page() = 0;
  /// Prints the page and begins a new one.
  virtual void EndDocument() = 0;
};

/// Where pictures go. Sizes are pixels; what lies beyond them is cut off.
struct Pictures {
  virtual ~Pictures() = default;
  virtual void ClearClipboard() = 0;
  virtual void PutOnClipboard(const Surface& surface, int width, int height) = 0;
  /// Writes a Windows bitmap file. Raises the file faults.
  virtual void SaveBitmap(const std::string& path, const Surface& surface, int width, int height) = 0;
};

}  // namespace veldrin
