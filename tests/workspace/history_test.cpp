// The history of files: in the store, in its order, in the menu.
#include "tests/workspace/history_program.h"
#include "workspace/history_menu.h"

namespace veldrin {
namespace {

TEST_F(WorkingFiles, HistoryLoadsInItsOrder) {
  Store(kSub, "", "T1");
  StoreHistory(kSub, {"C:\\B.t1", "C:\\A.t1"});
  LoadHistory(program);
  EXPECT_EQ(Entries(), (Paths{"C:\\B.t1", "C:\\A.t1"}));
  EXPECT_TRUE(FrameShows());
  EXPECT_TRUE(form2.menu_files[1].Visible);
  EXPECT_TRUE(form2.menu_files[2].Visible);
}

TEST_F(WorkingFiles, HistoryOfAnotherMachineIsNotLoaded) {
  StoreHistory(kSub, {"C:\\A.t1"});
  for (const char* machine : {"T2", "t1", "", "T1 "}) {
    Store(kSub, "", machine);
    LoadHistory(program);
    EXPECT_EQ(Entries(), Paths{}) << machine;
  }
  EXPECT_FALSE(FrameShows());
}

TEST_F(WorkingFiles, ARegisteredExtensionHasAHistoryOfItsOwn) {
  StoreHistory(kSlot3, {"C:\\A.t1"});
  Store(kSlot3, "", "other");
  Store(kSub, "", "T1");
  StoreHistory(kSub, {"C:\\B.t1"});
  workspace.ExtSlot = 3;
  LoadHistory(program);
  EXPECT_EQ(Entries(), (Paths{"C:\\A.t1"}));
}

TEST_F(WorkingFiles, EntriesWhoseFilesAreGoneDropOut) {
  Store(kSub, "", "T1");
  StoreHistory(kSub, {"C:\\A.t1", "C:\\B.t1", "C:\\C.t1"});
  Store(kSub, "0", "5");
  Store(kSub, "5", "C:\\VELDRIN");
  simulated.files.Remove("C:\\B.t1");
  LoadHistory(program);
  EXPECT_EQ(Entries(), (Paths{"C:\\A.t1", "C:\\C.t1"}));
  EXPECT_EQ(Stored(kSub, "0"), "5");
}

TEST_F(WorkingFiles, AHistoryOfVanishedFilesShowsNothing) {
  Store(kSub, "", "T1");
  StoreHistory(kSub, {"C:\\A.t1"});
  simulated.files.Remove("C:\\A.t1");
  LoadHistory(program);
  EXPECT_EQ(Entries(), Paths{});
  EXPECT_FALSE(FrameShows());
}

TEST_F(WorkingFiles, LoadingDoesNotCutAtTheLargestNumber) {
  workspace.HistoryMax = 1;
  Store(kSub, "", "T1");
  StoreHistory(kSub, {"C:\\A.t1", "C:\\B.t1", "C:\\C.t1"});
  LoadHistory(program);
  EXPECT_EQ(workspace.HistoryCount, 3);
  // One more drives out one only.
  AddToHistory(program, "C:\\D.t1");
  EXPECT_EQ(Entries(), (Paths{"C:\\D.t1", "C:\\A.t1", "C:\\B.t1"}));
}

TEST_F(WorkingFiles, AStoredCountThatIsNoNumberReadsAsItsBeginning) {
  struct Case {
    const char* count;
    int entries;
  };
  Store(kSub, "", "T1");
  StoreHistory(kSub, {"C:\\A.t1", "C:\\B.t1", "C:\\C.t1"});
  for (const Case& c : {Case{"", 0}, Case{"x", 0}, Case{"-1", 0}, Case{"0", 0}, Case{"2", 2},
                        Case{" 2 files", 2}, Case{"1e999", 0}, Case{"1e9", 3}, Case{"99999", 3}}) {
    Store(kSub, "0", c.count);
    LoadHistory(program);
    EXPECT_EQ(Entries().size(), static_cast<std::size_t>(c.entries)) << c.count;
    ClearHistory(program);
  }
}

TEST_F(WorkingFiles, SavingStoresEntriesAndMachine) {
  Store(kSub, "3", "C:\\OLD.t1");
  Add({"C:\\A.t1", "C:\\B.t1"});
  SaveHistory(program);
  EXPECT_EQ(Stored(kSub, ""), "T1");
  EXPECT_EQ(Stored(kSub, "0"), "2");
  EXPECT_EQ(Stored(kSub, "1"), "C:\\B.t1");
  EXPECT_EQ(Stored(kSub, "2"), "C:\\A.t1");
  EXPECT_EQ(Stored(kSub, "3"), "C:\\OLD.t1");
}

TEST_F(WorkingFiles, SavingWithoutAWholeMachineStoresThePlaceAlone) {
  Store(kSub, "", "T2");
  Store(kSub, "0", "3");
  workspace.LoadedMachine.clear();
  Add({"C:\\A.t1"});
  program.form2.Left = 1200;
  SaveHistory(program);
  EXPECT_EQ(Stored(kSub, ""), "T2");
  EXPECT_EQ(Stored(kSub, "0"), "3");
  EXPECT_EQ(Stored(kSub, "1"), "(none)");
  EXPECT_EQ(Stored(kSettings, "Last Left"), "1200");
}

TEST_F(WorkingFiles, SavingForARegisteredExtensionLeavesItsDefaultValue) {
  Store(kSlot3, "", "t1");
  workspace.ExtSlot = 3;
  Add({"C:\\A.t1"});
  SaveHistory(program);
  EXPECT_EQ(Stored(kSlot3, ""), "t1");
  EXPECT_EQ(Stored(kSlot3, "0"), "1");
  EXPECT_EQ(Stored(kSlot3, "1"), "C:\\A.t1");
  EXPECT_EQ(Stored(kSub, ""), "(none)");
}

TEST_F(WorkingFiles, TheWindowsPlaceIsTakenInItsNormalStateAlone) {
  struct Case {
    WindowState state;
    const char* left;
    const char* top;
  };
  for (const Case& c : {Case{WindowState::Normal, "300", "150"}, Case{WindowState::Minimised, "7", "8"},
                        Case{WindowState::Maximised, "7", "8"}}) {
    workspace.LastLeft = 7;
    workspace.LastTop = 8;
    form2.Left = 300;
    form2.Top = 150;
    form2.WindowState = static_cast<int>(c.state);
    SaveHistory(program);
    EXPECT_EQ(Stored(kSettings, "Last Left"), c.left);
    EXPECT_EQ(Stored(kSettings, "Last Top"), c.top);
  }
}

TEST_F(WorkingFiles, APlaceIsRoundedHalfToEvenAndHeldIn16Bits) {
  struct Case {
    float place;
    const char* stored;
  };
  for (const Case& c : {Case{-1.5F, "-2"}, Case{-0.6F, "-1"}, Case{-0.5F, "0"}, Case{-0.4F, "0"},
                        Case{0.4F, "0"}, Case{0.5F, "0"}, Case{0.6F, "1"}, Case{1.5F, "2"},
                        Case{32767, "32767"}, Case{-32768, "-32768"}, Case{32768, "7"}, Case{-32769, "7"}}) {
    workspace.LastLeft = 7;
    form2.Left = c.place;
    SaveHistory(program);
    EXPECT_EQ(Stored(kSettings, "Last Left"), c.stored) << c.place;
  }
}

TEST_F(WorkingFiles, AStoreThatRefusesWritesGoesUnnoticed) {
  simulated.registry.refusesWrites = true;
  Add({"C:\\A.t1"});
  SaveHistory(program);
  EXPECT_EQ(Stored(kSub, "0"), "(none)");
}

TEST_F(WorkingFiles, TheNewestFileComesFirst) {
  Add({"C:\\A.t1", "C:\\B.t1", "C:\\C.t1"});
  EXPECT_EQ(Entries(), (Paths{"C:\\C.t1", "C:\\B.t1", "C:\\A.t1"}));
  EXPECT_TRUE(FrameShows());
  for (int i = 1; i <= 3; ++i) EXPECT_TRUE(form2.menu_files[i].Visible) << i;
}

TEST_F(WorkingFiles, TheSeventhFilePushesTheOldestOut) {
  Add({"1", "2", "3", "4", "5", "6"});
  EXPECT_EQ(Entries(), (Paths{"6", "5", "4", "3", "2", "1"}));
  Add({"7"});
  EXPECT_EQ(Entries(), (Paths{"7", "6", "5", "4", "3", "2"}));
  for (int i = 1; i <= 6; ++i) EXPECT_TRUE(form2.menu_files[i].Visible) << i;
}

TEST_F(WorkingFiles, OpeningTheNewestAgainChangesNothing) {
  Add({"C:\\A.t1", "C:\\B.t1"});
  Add({"c:\\b.T1"});
  EXPECT_EQ(Entries(), (Paths{"C:\\B.t1", "C:\\A.t1"}));
}

TEST_F(WorkingFiles, OpeningAnOlderOneMovesItUpInItsNewSpelling) {
  Add({"C:\\A.t1", "C:\\B.t1", "C:\\C.t1", "C:\\D.t1"});
  Add({"c:\\b.T1"});
  EXPECT_EQ(Entries(), (Paths{"c:\\b.T1", "C:\\D.t1", "C:\\C.t1", "C:\\A.t1"}));
  Add({"C:\\A.t1"});
  EXPECT_EQ(Entries(), (Paths{"C:\\A.t1", "c:\\b.T1", "C:\\D.t1", "C:\\C.t1"}));
}

TEST_F(WorkingFiles, ALargestNumberOfZeroKeepsNothing) {
  workspace.HistoryMax = 0;
  Add({"C:\\A.t1"});
  EXPECT_EQ(Entries(), Paths{});
  EXPECT_TRUE(FrameShows());
}

TEST_F(WorkingFiles, RemovingMovesTheEntriesBelowUp) {
  Add({"4", "3", "2", "1"});
  EXPECT_FALSE(RemoveFromHistory(program, "2"));
  EXPECT_EQ(Entries(), (Paths{"1", "3", "4"}));
  EXPECT_FALSE(RemoveFromHistory(program, "4"));
  EXPECT_EQ(Entries(), (Paths{"1", "3"}));
  EXPECT_FALSE(RemoveFromHistory(program, "1"));
  EXPECT_EQ(Entries(), (Paths{"3"}));
  EXPECT_TRUE(FrameShows());
}

TEST_F(WorkingFiles, RemovingTheOnlyEntryHidesTheSeparatorAboveAlone) {
  Add({"C:\\A.t1"});
  EXPECT_TRUE(RemoveFromHistory(program, "C:\\A.t1"));
  EXPECT_EQ(Entries(), Paths{});
  EXPECT_FALSE(form2.menu_files[0].Visible);
  EXPECT_TRUE(form2.menu_his_clear[0].Visible);
  EXPECT_TRUE(form2.menu_his_clear[1].Visible);
}

TEST_F(WorkingFiles, RemovingLooksAtTheCaseOfLetters) {
  Add({"C:\\A.t1"});
  EXPECT_FALSE(RemoveFromHistory(program, "c:\\a.t1"));
  EXPECT_EQ(Entries(), (Paths{"C:\\A.t1"}));
}

TEST_F(WorkingFiles, RemovingDoesNothingWhileTheMenuIsHidden) {
  Add({"C:\\A.t1"});
  form2.menu_files[0].Visible = false;
  EXPECT_FALSE(RemoveFromHistory(program, "C:\\A.t1"));
  EXPECT_EQ(Entries(), (Paths{"C:\\A.t1"}));
}

TEST_F(WorkingFiles, OfTwoEqualEntriesTheFirstIsRemoved) {
  Store(kSub, "", "T1");
  StoreHistory(kSub, {"C:\\A.t1", "C:\\B.t1", "C:\\A.t1"});
  LoadHistory(program);
  RemoveFromHistory(program, "C:\\A.t1");
  EXPECT_EQ(Entries(), (Paths{"C:\\B.t1", "C:\\A.t1"}));
}

TEST_F(WorkingFiles, ClearingEmptiesTheMenuAndLeavesTheStore) {
  workspace.AppPath = "C:\\VELDRIN";
  simulated.files.AddFile("C:\\VELDRIN\\veldrin.his", "");
  Add({"C:\\A.t1", "C:\\B.t1"});
  SaveHistory(program);
  ClearHistory(program);
  EXPECT_EQ(Entries(), Paths{});
  EXPECT_FALSE(FrameShows());
  EXPECT_EQ(Stored(kSub, "0"), "2");
  EXPECT_FALSE(Exists("C:\\VELDRIN\\veldrin.his"));
  SaveHistory(program);
  EXPECT_EQ(Stored(kSub, "0"), "0");
  EXPECT_EQ(Stored(kSub, "1"), "C:\\B.t1");
}

TEST_F(WorkingFiles, ClearingPassesOverARemnantThatCannotBeDeleted) {
  workspace.AppPath = "C:\\VELDRIN";
  simulated.files.AddFile("C:\\VELDRIN\\veldrin.his", "");
  simulated.files.SetReadOnly("C:\\VELDRIN\\veldrin.his");
  ClearHistory(program);
  EXPECT_TRUE(Exists("C:\\VELDRIN\\veldrin.his"));
}

}  // namespace
}  // namespace veldrin
