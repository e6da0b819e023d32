// Windows and boxes on the machine's screen, and where pictures of the program go.
#pragma once

#include "platform/canvas.h"

#include <string>
#include <vector>

namespace veldrin {

struct Window;
struct Control;
class Event;

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

/// What the windows of the program ask of the one who shows them. The front end finds what to show by
/// walking a window's controls.
struct Windows {
  virtual ~Windows() = default;

  /// A window's record stands complete, still hidden; and it is about to go.
  virtual void Loaded(Window& window) = 0;
  virtual void Unloaded(Window& window) = 0;
  /// Whether slot writes are to be told at all; false keeps a write as cheap as an assignment.
  virtual bool IsWatching() const = 0;
  /// A slot of a control or of a window was written; `changed` tells whether its value differs from before.
  virtual void SlotWritten(Control& control, const char* slot, bool changed) = 0;
  /// An event of a control or of a window is about to be fired.
  virtual void EventFired(Control& control, const Event& event) = 0;
  /// Something was drawn on a control or window, or its entries changed.
  virtual void ContentChanged(Control& control) = 0;

  /// Runs the events of a window that was just shown modally; returns when it hides.
  virtual void RunModal(Window& window) = 0;
  /// Paints at once what is due.
  virtual void Repaint(Control& control) = 0;
  /// Inverts the window's title and task button.
  virtual void Flash(Window& window) = 0;
  /// Cuts the window to an ellipse, in pixels of its own.
  virtual void SetEllipticRegion(Window& window, int left, int top, int right, int bottom) = 0;
  /// The window follows the pointer as if its title bar were held.
  virtual void StartDrag(Window& window) = 0;
  /// How much smaller a window is inside than outside, in twips.
  virtual float FrameWidth(const Window& window) const = 0;
  virtual float FrameHeight(const Window& window) const = 0;
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
