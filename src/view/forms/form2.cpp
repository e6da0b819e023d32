#include "view/forms/form2.h"

#include "view/forms/gear_columns.h"

#include <utility>

namespace veldrin {

namespace {

/// Draws the printer that stands for printing, on a surface of 720 by 720 twips.
void DrawPrinter(Surface& surface) {
  const Colour darkGrey = PaletteColour(8);
  // Nobody shows the window yet.
  const auto changed = std::exchange(surface.changed, nullptr);
  surface.Fill(210, 105, 510, 330, kBlack);
  surface.Fill(225, 120, 495, 330, kWhite);
  surface.Fill(90, 270, 630, 510, kBlack);
  surface.Fill(105, 285, 615, 495, darkGrey);
  surface.Fill(540, 330, 585, 375, PaletteColour(10));
  surface.Fill(195, 420, 525, 600, kBlack);
  surface.Fill(210, 435, 510, 585, kWhite);
  surface.Line(255, 480, 465, 480, darkGrey);
  surface.Line(255, 525, 465, 525, darkGrey);
  surface.changed = changed;
}

/// The caption of a subscript; entries beyond the list have none.
const char* CaptionOf(const std::vector<const char*>& captions, int index) {
  const auto place = static_cast<std::size_t>(index);
  return place < captions.size() ? captions[place] : "";
}

}  // namespace

ControlArray<Label>::Maker Form2::Column(const char* name, Control& parent, float left, float width,
                                         const Look& row, const std::vector<const char*>& captions) {
  const auto head = Elements<Label>(name, parent, GearColumn(left, width, 255), kHead, captions);
  const auto rows = Elements<Label>(name, parent, GearColumn(left, width, 255), row, captions);
  return Split(head, 1, rows);
}

ControlArray<Grid>::Maker Form2::InPanels(const char* name, ControlArray<Picture>& panels, const Place& place,
                                          const Look& look) {
  return [=, &panels](int index) { return std::make_unique<Grid>(name, panels[index], place, look); };
}

ControlArray<Menu>::Maker Form2::Entries(const char* name, Menu& parent,
                                         const std::vector<const char*>& captions, const Look& look) {
  return [=, &parent](int index) {
    return std::make_unique<Menu>(name, parent, CaptionOf(captions, index), "", look);
  };
}

ControlArray<Menu>::Maker Form2::PictureSizes(const char* name, Menu& parent) {
  const std::vector<const char*> captions = {" 320 * 240(&3)", " 400 * 300(&4)", " 640 * 480(&6)",
                                             " 800 * 600(&8)", "1024 * 768(&1)", "1280 * 960(&2)"};
  const auto hidden = Entries(name, parent, captions, kHiddenAndOff);
  const auto offered = Entries(name, parent, captions);
  return Split(hidden, 2, offered);
}

Form2::Form2(Desk& theDesk)
    : Window(theDesk, "Form2", {0, 0, 9720, 7400}, {.caption = "Mr.Veldrin", .back = kDarkBlue}, true) {
  DesignGearColours({&Label1, &Label2, &Label9, &Label10, &Label11, &Label14, &Label15, &Label31, &Label32,
                     &Label33, &Label34, &Label35, &Label44, &Label_Dif});
  Option1[0].Width.Design(795);
  Option1[0].Value.Design(true);
  Label10[0].Width.Design(345);
  Label32[3].Left.Design(1425);
  Label32[4].Left.Design(1425);
  Picture28.MousePointer.Design(kPointerNoDrop);
  DrawPrinter(Picture28.surface);
}

Form2::~Form2() = default;

}  // namespace veldrin
