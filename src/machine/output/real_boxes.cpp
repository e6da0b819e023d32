#include "machine/output/real_boxes.h"

#include "machine/output/fault_text.h"
#include "machine/painting/fonts.h"

#include <QAbstractButton>
#include <QApplication>
#include <QColorDialog>
#include <QEvent>
#include <QFileDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinterInfo>
#include <QPushButton>

#include <utility>

namespace veldrin {

namespace {

constexpr char kProgramTitle[] = "Veldrin";

QMessageBox::Icon IconFor(BoxIcon icon) {
  switch (icon) {
    case BoxIcon::Information:
      return QMessageBox::Information;
    case BoxIcon::Exclamation:
      return QMessageBox::Warning;
    case BoxIcon::Question:
      return QMessageBox::Question;
    case BoxIcon::Critical:
      return QMessageBox::Critical;
    case BoxIcon::None:
      break;
  }
  return QMessageBox::NoIcon;
}

/// A font has its size in points or in pixels.
QFont Enlarged(QFont font, double zoom) {
  if (font.pixelSize() > 0) {
    font.setPixelSize(qRound(font.pixelSize() * zoom));
  } else {
    font.setPointSizeF(font.pointSizeF() * zoom);
  }
  return font;
}

/// Texts of the program end their lines with CR LF.
QString BoxText(const std::string& text) {
  return QString::fromStdString(text).replace("\r\n", "\n").replace('\r', '\n');
}

/// What a box stands in front of, also while another program is the active one: a box behind the windows that
/// it keeps from being used would never be found.
QWidget* Owner() {
  if (QApplication::activeModalWidget() != nullptr) return QApplication::activeModalWidget();
  if (QApplication::activeWindow() != nullptr) return QApplication::activeWindow();
  for (QWidget* window : QApplication::topLevelWidgets()) {
    if (window->isVisible() && window->windowType() != Qt::Popup) return window;
  }
  return nullptr;
}

/// Shows a box and waits for its answer.
int Ask(QMessageBox::Icon icon, const QString& title, const QString& text,
        QMessageBox::StandardButtons buttons) {
  QMessageBox box(icon, title, text, buttons, Owner());
  // The texts are names and paths, and no markup.
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
  return box.exec();
}

#ifdef _WIN32

bool AskForPdf(QPrinter& device) {
  const QString file = QFileDialog::getSaveFileName(Owner(), "Print to PDF", "veldrin.pdf", "PDF (*.pdf)");
  if (file.isEmpty()) return false;
  device.setOutputFormat(QPrinter::PdfFormat);
  device.setOutputFileName(file);
  return true;
}

bool HasDialog() {
  return !QPrinterInfo::availablePrinterNames().isEmpty();
}

#else

bool AskForPdf(QPrinter& /*device*/) {
  return false;
}

/// It offers the PDF file by itself.
bool HasDialog() {
  return true;
}

#endif

/// Keeps a part of a dialog of Qt's from being seen, whenever that shows it. There may be no such part.
class KeptHidden : public QObject {
 public:
  explicit KeptHidden(QWidget* part) {
    if (part == nullptr) return;
    part->installEventFilter(this);
    part->hide();
  }

  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::ShowToParent)
      QMetaObject::invokeMethod(watched, "hide", Qt::QueuedConnection);
    return QObject::eventFilter(watched, event);
  }
};

bool AskForPrinter(QPrinter& device) {
  if (!HasDialog()) return AskForPdf(device);
  QPrintDialog dialog(&device, Owner());
  dialog.setOption(QAbstractPrintDialog::PrintSelection, false);
  dialog.setOption(QAbstractPrintDialog::PrintPageRange, false);
  dialog.setOption(QAbstractPrintDialog::PrintCurrentPage, false);
  // Qt's own dialog offers pages all the same.
  const KeptHidden range(dialog.findChild<QWidget*>("gbPrintRange"));
#ifdef _WIN32
  // What Windows writes to such a file is the printer's language and no PDF.
  dialog.setOption(QAbstractPrintDialog::PrintToFile, false);
#endif
  return dialog.exec() == QDialog::Accepted;
}

}  // namespace

RealBoxes::RealBoxes(RealPrinter& printer) : printer_(&printer), plain_(QApplication::font()) {}

RealBoxes::~RealBoxes() {
  if (qApp != nullptr) SetZoom(1);
}

void RealBoxes::SetZoom(double zoom) {
  if (zoom == std::exchange(zoom_, zoom)) return;
  QApplication::setFont(Enlarged(plain_, zoom));
}

BoxAnswer RealBoxes::Message(BoxIcon icon, const std::string& title, const std::string& text,
                             BoxButtons buttons) {
  const bool canCancel = buttons == BoxButtons::OkCancel;
  const int answer =
      Ask(IconFor(icon), title.empty() ? kProgramTitle : QString::fromStdString(title), BoxText(text),
          canCancel ? QMessageBox::Ok | QMessageBox::Cancel : QMessageBox::StandardButtons(QMessageBox::Ok));
  Closed();
  return !canCancel || answer == QMessageBox::Ok ? BoxAnswer::Ok : BoxAnswer::Cancel;
}

void RealBoxes::Fault(int number) {
  // The program is at its end: nothing is thrown from here.
  const FaultStory story = tellFault ? tellFault(number) : FaultStory();
  const QString text =
      QString("Run-time error '%1':\n\n%2").arg(number).arg(QString::fromStdString(FaultText(number)));
  const QString more = story.text.empty() ? QString() : "\n\n" + BoxText(story.text);
  QMessageBox box(QMessageBox::Critical, kProgramTitle, text + more, QMessageBox::Ok, Owner());
  box.setTextFormat(Qt::PlainText);
  box.setTextInteractionFlags(Qt::TextSelectableByMouse);
  std::vector<QPushButton*> buttons;
  for (const FaultStory::Choice& choice : story.choices) {
    buttons.push_back(box.addButton(QString::fromStdString(choice.caption), QMessageBox::ActionRole));
  }
  box.setEscapeButton(QMessageBox::Ok);
  box.exec();
  for (std::size_t place = 0; place < buttons.size(); ++place) {
    if (box.clickedButton() == buttons[place]) story.choices[place].act();
  }
}

Colour RealBoxes::ChooseColour(Colour start) {
  const QColor chosen = QColorDialog::getColor(ToQColor(start), Owner());
  Closed();
  return chosen.isValid() ? ToColour(chosen) : start;
}

PrintChoice RealBoxes::ChoosePrinter() {
  QPrinter& device = printer_->Device();
  const bool accepted = AskForPrinter(device);
  Closed();
  PrintChoice choice;
  if (accepted) {
    choice.copies = device.copyCount();
  } else {
    choice.error = kPrintCancelled;
  }
  return choice;
}

void RealBoxes::Closed() const {
  if (closed) closed();
}

}  // namespace veldrin
