// The windows as they are designed, before anything of the program has run.
#include "tests/view/told_desk.h"
#include "view/forms/form1.h"
#include "view/forms/form10.h"
#include "view/forms/form2.h"
#include "view/forms/form3.h"
#include "view/forms/form4.h"
#include "view/forms/form5.h"
#include "view/forms/form6.h"
#include "view/forms/form7.h"
#include "view/forms/form9.h"

#include <set>
#include <string>
#include <vector>

namespace veldrin {
namespace {

using Texts = std::vector<std::string>;

struct Forms : ToldDesk {
  static void ExpectPlace(const PlacedControl& control, const Place& place) {
    EXPECT_EQ(control.Left.get(), place.left) << control.FullName();
    EXPECT_EQ(control.Top.get(), place.top) << control.FullName();
    EXPECT_EQ(control.Width.get(), place.width) << control.FullName();
    EXPECT_EQ(control.Height.get(), place.height) << control.FullName();
  }

  template <class T>
  static Texts Captions(const ControlArray<T>& array) {
    Texts captions;
    for (const auto& [index, element] : array.Elements()) captions.push_back(element->Caption.get());
    return captions;
  }

  /// The colours of gears 1 to 6 at design, by their numbers in red, green and blue.
  static Colour ColourOfGear(int gear) {
    const Colour colours[] = {Rgb(0, 0, 255), Rgb(0, 255, 0),   Rgb(0, 255, 255),
                              Rgb(255, 0, 0), Rgb(255, 0, 255), Rgb(255, 255, 0)};
    return colours[gear - 1];
  }
};

const Texts kGears = {"1ST", "2ND", "3RD", "4TH", "5TH", "6TH"};

TEST_F(Forms, EveryControlOfAWindowHasANameOfItsOwn) {
  const Form1 form1(desk);
  const Form2 form2(desk);
  const Form3 form3(desk);
  const Form4 form4(desk);
  const Form5 form5(desk);
  const Form6 form6(desk);
  const Form7 form7(desk);
  const Form9 form9(desk);
  const Form10 form10(desk);
  const std::vector<const Window*> all = {&form1, &form2, &form3, &form4, &form5,
                                          &form6, &form7, &form9, &form10};
  const Texts names = {"Form1", "Form2", "Form3", "Form4", "Form5", "Form6", "Form7", "Form9", "Form10"};
  for (std::size_t k = 0; k < all.size(); ++k) {
    EXPECT_EQ(all[k]->name, names[k]);
    std::set<std::string> seen;
    for (const Control* control : all[k]->controls) {
      EXPECT_TRUE(seen.insert(control->FullName()).second) << control->FullName();
    }
    EXPECT_EQ(all[k]->hasMenu, names[k] == "Form2") << names[k];
    EXPECT_EQ(all[k]->hasFrame, names[k] != "Form1" && names[k] != "Form10") << names[k];
  }
  EXPECT_EQ(Told().find("event"), std::string::npos) << "a design fires nothing";
}

TEST_F(Forms, WindowsHaveTheirTitles) {
  EXPECT_EQ(Form2(desk).Caption, "Mr.Veldrin");
  EXPECT_EQ(Form4(desk).Caption, "Selected Mission Plan");
  EXPECT_EQ(Form5(desk).Caption, "File Compare");
  EXPECT_EQ(Form7(desk).Caption, "初期設定");
  EXPECT_EQ(Form9(desk).Caption, "Color Select");
}

TEST_F(Forms, WindowsHaveTheSizesThatOthersReckonWith) {
  ExpectPlace(Form2(desk), {0, 0, 9720, 7400});
  ExpectPlace(Form4(desk), {0, 0, 7140, 6540});
  ExpectPlace(Form6(desk), {0, 0, 9720, 7400});
  ExpectPlace(Form7(desk), {0, 0, 9600, 6000});
  ExpectPlace(Form10(desk), {0, 0, 478 * 15, 322 * 15});
}

TEST_F(Forms, PanelsOfTheMainWindowStandInTheirPlaces) {
  const Form2 form(desk);
  ExpectPlace(form.Picture13, {120, 0, 4935, 975});
  ExpectPlace(form.Command4, {1200, 60, 990, 375});
  ExpectPlace(form.Command5, {1200, 540, 990, 375});
  ExpectPlace(form.Picture1, {0, 960, 975, 3555});
  ExpectPlace(form.Picture2, {300, 960, 555, 3195});
  ExpectPlace(form.Picture3, {840, 960, 480, 3615});
  ExpectPlace(form.Picture4, {1320, 960, 3720, 3795});
  ExpectPlace(form.Picture30, {2400, 960, 2715, 3195});
  ExpectPlace(form.Picture12, {1320, 960, 3795, 3795});
  ExpectPlace(form.Picture19, {5025, 75, 4455, 6090});
  ExpectPlace(form.Picture9, {5625, 1125, 3855, 3135});
  ExpectPlace(form.Picture29, {5100, 6075, 1140, 540});
  ExpectPlace(form.HScroll1, {6300, 6120, 3135, 195});
  ExpectPlace(form.HScroll2, {6300, 6370, 3135, 195});
  ExpectPlace(form.Label13, {120, 4680, 675, 225});
  ExpectPlace(form.Text6, {75, 4875, 4935, 1665});
  ExpectPlace(form.Picture20, {0, 0, 5415, 1215});
  ExpectPlace(form.Picture24, {3780, 900, 1155, 3250});
  ExpectPlace(form.Label23, {1200, 2040, 3735, 735});
  for (int gear = 1; gear <= 6; ++gear) {
    const PlacedControl& panel = form.Picture23[gear];
    ExpectPlace(panel, {4880, 3660 - 480.0F * static_cast<float>(gear - 1), 465, 380});
    EXPECT_EQ(form.Label1[gear].Top.get(), 2760 - 480.0F * static_cast<float>(gear - 1));
  }
  EXPECT_TRUE(form.Text6.multiLine);
  for (const auto* bar : {&form.HScroll1, &form.HScroll2}) {
    EXPECT_EQ(bar->Min.get(), 5000);
    EXPECT_EQ(bar->Max.get(), 14200);
    EXPECT_EQ(bar->smallChange, 100);
    EXPECT_EQ(bar->largeChange, 1000);
  }
  EXPECT_EQ(form.HScroll1.Value.get(), 12800);
  EXPECT_EQ(form.HScroll2.Value.get(), 10000);
}

TEST_F(Forms, HeadsAndRowsOfTheMainWindowHaveTheirCaptions) {
  const Form2 form(desk);
  EXPECT_EQ(Captions(form.Label1), (Texts{"GEAR", "1ST", "2ND", "3RD", "4TH", "5TH", "6TH"}));
  EXPECT_EQ(form.Label2[0].Caption, "ORG");
  EXPECT_EQ(form.Label9[0].Caption, "CHG");
  EXPECT_EQ(form.Label10[0].Caption, "+/- ");
  EXPECT_EQ(form.Label11[0].Caption, "Shift");
  EXPECT_EQ(form.Label12[0].Caption, "PLAN");
  EXPECT_EQ(form.Label14[0].Caption, "-");
  EXPECT_EQ(form.Label15[0].Caption, "+");
  EXPECT_EQ(form.Option1[0].Caption, "None");
  EXPECT_EQ(Captions(form.Command1), (Texts{"FULL AUTO", "AUTO", "AUTO", "AUTO", "AUTO", "AUTO", "AUTO"}));
  EXPECT_EQ(Captions(form.Label22), (Texts{"5", "10", "15", "20", "(x1000rpm)"}));
  EXPECT_EQ(form.Line3.Elements().size(), 19U);
  EXPECT_EQ(form.Line4.Elements().size(), 25U);
  EXPECT_TRUE(form.Option1[0].Value) << "no gear is the main one";
  for (int gear = 1; gear <= 6; ++gear) EXPECT_FALSE(form.Option1[gear].Value);
  EXPECT_EQ(form.Picture28.MousePointer.get(), 12) << "no list yet, nothing to print";
}

TEST_F(Forms, PictureSizesAreOfferedFromTheThirdOn) {
  Form2 form(desk);
  const Texts captions = {" 320 * 240(&3)", " 400 * 300(&4)", " 640 * 480(&6)",
                          " 800 * 600(&8)", "1024 * 768(&1)", "1280 * 960(&2)"};
  for (auto* menu : {&form.clip, &form.bmp}) {
    EXPECT_EQ(Captions(*menu), captions);
    for (const auto& [index, entry] : menu->Elements()) {
      EXPECT_EQ(entry->Visible, index >= 2) << entry->FullName();
      EXPECT_EQ(entry->Enabled, index >= 2) << entry->FullName();
    }
  }
  EXPECT_EQ(Captions(form.menu_his_clear), (Texts{"-", "History Clear(&H)"}));
  EXPECT_EQ(form.menu_files[0].Caption, "-");
  EXPECT_EQ(form.menu_files.Load(1).Caption, "") << "an entry that comes later has no caption yet";
}

TEST_F(Forms, GearsHaveTheirColours) {
  const Form2 form2(desk);
  const Form4 form4(desk);
  const Form5 form5(desk);
  const Form9 form9(desk);
  const std::vector<const ControlArray<Label>*> rows = {
      &form2.Label1,  &form2.Label2,  &form2.Label9,  &form2.Label10,   &form2.Label11,
      &form2.Label14, &form2.Label15, &form2.Label31, &form2.Label32,   &form2.Label33,
      &form2.Label34, &form2.Label35, &form2.Label44, &form2.Label_Dif, &form4.Label17,
      &form4.Label24, &form5.Label3,  &form5.Label9,  &form9.Label1};
  for (const ControlArray<Label>* row : rows) {
    for (int gear = 1; gear <= 6; ++gear) {
      EXPECT_EQ((*row)[gear].ForeColor.get(), ColourOfGear(gear)) << (*row)[gear].FullName();
    }
  }
  for (int gear = 1; gear <= 6; ++gear) {
    EXPECT_EQ(form9.Label1[gear + 10].ForeColor.get(), ColourOfGear(gear));
  }
}

TEST_F(Forms, TheColourDialogHasARowInUseAndARowPicked) {
  const Form9 form(desk);
  Texts captions = kGears;
  captions.insert(captions.end(), kGears.begin(), kGears.end());
  EXPECT_EQ(Captions(form.Label1), captions);
  EXPECT_EQ(Captions(form.Label2), (Texts{"NOW", "AFTER"}));
  EXPECT_EQ(form.Label1[6].parent, &form.Picture2[0]);
  EXPECT_EQ(form.Label1[11].parent, &form.Picture2[1]);
}

TEST_F(Forms, TheSettingsOfferTheirLists) {
  const Form7 form(desk);
  EXPECT_FALSE(form.Combo1.Has(1));
  EXPECT_EQ(form.Combo1[0].entries, (Texts{"JP", "ENGLISH"}));
  EXPECT_TRUE(form.Combo1[0].editable);
  EXPECT_EQ(form.Combo1[2].entries, (Texts{"YES", "NO"}));
  EXPECT_EQ(form.Combo1[3].entries, (Texts{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11", "12"}));
  EXPECT_TRUE(form.Combo1[4].entries.empty()) << "the printer's fonts come later";
  for (const int index : {2, 3, 4}) EXPECT_FALSE(form.Combo1[index].editable) << index;
  EXPECT_EQ(Captions(form.Label3),
            (Texts{"データ変更確認無し", "データに変更があった時もセーブを求めません"}));
  EXPECT_EQ(form.File1.Pattern, "*.rat");
}

TEST_F(Forms, TheCanvasOfTheReportIsAsLargeAsItsWindow) {
  const Form6 form(desk);
  EXPECT_EQ(form.surface.PhysicalWidth(), 9720);
  EXPECT_EQ(form.surface.PhysicalHeight(), 7400);
}

TEST_F(Forms, TheEdgeOfTheRolledWindowIsHidden) {
  const Form10 form(desk);
  EXPECT_FALSE(form.Line1.Visible);
  EXPECT_FALSE(form.Line2.Visible);
}

}  // namespace
}  // namespace veldrin
