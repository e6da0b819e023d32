// Combos; the boxes that the machine's files fill have tests of their own.
#include "view/list_boxes.h"

#include "tests/view/told_desk.h"

#include <string>
#include <vector>

namespace veldrin {
namespace {

struct Form : Window {
  explicit Form(Desk& theDesk) : Window(theDesk, "Form", {0, 0, 6000, 4000}, {}) {}
};

struct ListBoxes : ToldDesk {
  Form form{desk};
};

TEST_F(ListBoxes, AComboTakesThePickedTextWithoutChange) {
  ComboBox combo("C", form, {}, {.caption = "YES"}, {"YES", "NO"});
  EXPECT_TRUE(combo.editable);
  EXPECT_FALSE(ComboBox("D", form, {}, {}, {}, false).editable);
  EXPECT_EQ(combo.ListIndex.get(), -1);
  combo.Click.Bind([&](int) { EXPECT_EQ(combo.Text, "NO"); });
  combo.ListIndex = 1;
  EXPECT_EQ(combo.Text, "NO");
  EXPECT_EQ(combo.ListIndex.get(), 1);
  const std::string told = Told();
  EXPECT_EQ(told.find("Change"), std::string::npos);
  EXPECT_NE(told.find("event Form.C.Click\n"), std::string::npos);
  combo.ListIndex = 1;
  EXPECT_EQ(Told(), "write Form.C.ListIndex 1\n");
  combo.ListIndex = -1;
  EXPECT_EQ(Told(), "write Form.C.ListIndex -1\n") << "and nothing is picked";
  EXPECT_EQ(combo.Text, "NO");
}

TEST_F(ListBoxes, ATextWrittenIntoAComboIsNoPick) {
  ComboBox combo("C", form, {}, {}, {"YES", "NO"});
  combo.ListIndex = 1;
  int place = 7;
  combo.Change.Bind([&](int) { place = combo.ListIndex.get(); });
  Forget();
  combo.Text = "NO";
  EXPECT_EQ(combo.ListIndex.get(), 1);
  EXPECT_EQ(Told(), "write Form.C.Text \"NO\"\n");
  combo.Text = "maybe";
  EXPECT_EQ(combo.ListIndex.get(), -1);
  EXPECT_EQ(place, -1) << "before Change";
}

TEST_F(ListBoxes, AComboTakesNoPlaceOutsideItsList) {
  ComboBox combo("C", form, {}, {}, {"YES", "NO"});
  combo.ListIndex = 1;
  EXPECT_EQ(FaultOf([&] { combo.ListIndex = 2; }), kFaultBadProperty);
  EXPECT_EQ(FaultOf([&] { combo.ListIndex = -2; }), kFaultBadProperty);
  EXPECT_EQ(combo.ListIndex.get(), 1);
  combo.AddItem("MAYBE");
  EXPECT_EQ(FaultOf([&] { combo.ListIndex = 2; }), 0);
  EXPECT_EQ(combo.Text, "MAYBE");
}

TEST_F(ListBoxes, TheFirstEntryOfAComboCanBePicked) {
  ComboBox combo("C", form, {}, {}, {"YES", "NO"});
  combo.ListIndex = 0;
  EXPECT_EQ(combo.Text, "YES");
  EXPECT_TRUE(Told().ends_with("event Form.C.Click\n"));
}

TEST_F(ListBoxes, AComboTellsWhenItsListChanges) {
  windows.tellsContent = true;
  ComboBox combo("C", form, {}, {}, {"YES"});
  std::size_t shown = 0;
  windows.lookAtContent = [&](Control&) { shown = combo.entries.size(); };
  combo.ListIndex = 0;
  Forget();
  combo.AddItem("NO");
  EXPECT_EQ(Told(), "content Form.C\n");
  EXPECT_EQ(shown, 2U) << "who is told finds the new list";
  EXPECT_EQ(combo.entries, (std::vector<std::string>{"YES", "NO"}));
  combo.Clear();
  EXPECT_EQ(shown, 0U);
  EXPECT_EQ(Told(), "write Form.C.ListIndex -1\ncontent Form.C\n");
  EXPECT_TRUE(combo.entries.empty());
}

TEST_F(ListBoxes, OnlyListsHaveEntries) {
  const ComboBox combo("C", form, {}, {}, {"YES", "NO"});
  const DriveBox drives("D", form, {});
  const FolderBox folders("Dir1", form, {});
  const FileBox files("File1", form, {});
  const TextBox box("T", form, {});
  EXPECT_EQ(EntriesOf(combo), &combo.entries);
  EXPECT_EQ(EntriesOf(drives), &drives.entries);
  EXPECT_EQ(EntriesOf(folders), &folders.entries);
  EXPECT_EQ(EntriesOf(files), &files.entries);
  EXPECT_EQ(EntriesOf(box), nullptr);
}

}  // namespace
}  // namespace veldrin
