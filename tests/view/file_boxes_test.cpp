// The boxes that list drives, folders and files of the machine: A: (not ready), C: and D: (empty), and on C:
// the program's folder with LIST and DAT.
#include "tests/view/told_desk.h"
#include "view/list_boxes.h"

#include <string>
#include <vector>

namespace veldrin {
namespace {

using Texts = std::vector<std::string>;

struct Form : Window {
  explicit Form(Desk& theDesk) : Window(theDesk, "Form", {0, 0, 6000, 4000}, {}) {}

  DriveBox Drive1{"Drive1", *this, {}};
  FolderBox Dir1{"Dir1", *this, {}};
  FileBox File1{"File1", *this, {}, {}, "*.rat"};
};

struct FileBoxes : ToldDesk {
  FileBoxes() {
    for (const char* name : {"A.RAT", "B.RAT", "C.TXT"}) {
      simulated.files.AddFile(std::string("C:\\VELDRIN\\LIST\\") + name, "");
    }
    simulated.files.SetCurrentFolder("C:\\VELDRIN\\LIST");
  }

  /// The events among what was told, without their window's name.
  std::string Events() {
    std::istringstream lines(Told());
    std::string events;
    const std::string head = "event Form.";
    for (std::string line; std::getline(lines, line);) {
      if (line.starts_with(head)) events += (events.empty() ? "" : " ") + line.substr(head.size());
    }
    return events;
  }
};

TEST_F(FileBoxes, BeginWithTheCurrentFolder) {
  const Form form(desk);
  EXPECT_EQ(form.Drive1.entries, (Texts{"A:", "C:", "D:"}));
  EXPECT_EQ(form.Drive1.Drive, "C:");
  EXPECT_EQ(form.Drive1.ListIndex.get(), 1);
  EXPECT_EQ(form.Dir1.Path, "C:\\VELDRIN\\LIST");
  EXPECT_EQ(form.Dir1.ListIndex.get(), -1);
  EXPECT_EQ(form.File1.Path, "C:\\VELDRIN\\LIST");
  EXPECT_EQ(form.File1.Pattern, "*.rat");
  EXPECT_EQ(form.File1.entries, (Texts{"A.RAT", "B.RAT"}));
  EXPECT_EQ(form.File1.FileName, "");
  EXPECT_EQ(form.File1.ListIndex.get(), -1);
  EXPECT_EQ(Events(), "");
  EXPECT_EQ(FileBox("File2", const_cast<Form&>(form), {}).Pattern, "*.*");
}

TEST_F(FileBoxes, ADriveIsTakenFromAnyPathOnIt) {
  Form form(desk);
  int place = 7;
  form.Drive1.Change.Bind([&](int) { place = form.Drive1.ListIndex.get(); });
  form.Drive1.Drive = "d:\\some\\folder";
  EXPECT_EQ(form.Drive1.Drive, "D:");
  EXPECT_EQ(place, 2) << "before Change";
  EXPECT_EQ(Events(), "Drive1.Change");
  form.Drive1.Drive = "D:";
  EXPECT_EQ(Events(), "");
  EXPECT_EQ(FaultOf([&] { form.Drive1.Drive = "E:"; }), kFaultDeviceUnavailable);
  EXPECT_EQ(form.Drive1.Drive, "D:");
  EXPECT_EQ(Events(), "");
}

TEST_F(FileBoxes, ADriveThatComesLaterIsListedWhenTheDriveChanges) {
  Form form(desk);
  simulated.files.AddFolder("B:\\");
  form.Drive1.Drive = "D:";
  EXPECT_EQ(form.Drive1.entries, (Texts{"A:", "B:", "C:", "D:"}));
  EXPECT_EQ(form.Drive1.ListIndex.get(), 3);
}

TEST_F(FileBoxes, APickedDriveIsTheDrive) {
  Form form(desk);
  form.Drive1.ListIndex = 0;
  EXPECT_EQ(form.Drive1.Drive, "A:");
  EXPECT_EQ(form.Drive1.ListIndex.get(), 0);
  EXPECT_EQ(Events(), "Drive1.Change");
  form.Drive1.ListIndex = -1;
  EXPECT_EQ(form.Drive1.Drive, "A:");
  EXPECT_EQ(Events(), "");
  EXPECT_EQ(FaultOf([&] { form.Drive1.ListIndex = 3; }), kFaultBadProperty);
  EXPECT_EQ(FaultOf([&] { form.Drive1.ListIndex = -2; }), kFaultBadProperty);
}

TEST_F(FileBoxes, AFolderBoxListsTheFoldersOfItsPath) {
  Form form(desk);
  int listed = -1;
  form.Dir1.Change.Bind([&](int) { listed = static_cast<int>(form.Dir1.entries.size()); });
  form.Dir1.Path = "c:\\veldrin";
  EXPECT_EQ(form.Dir1.Path, "C:\\VELDRIN") << "as the machine spells it";
  EXPECT_EQ(form.Dir1.entries, (Texts{"C:\\VELDRIN\\DAT", "C:\\VELDRIN\\LIST"}));
  EXPECT_EQ(listed, 2) << "before Change";
  EXPECT_EQ(Events(), "Dir1.Change");
  form.Dir1.Path = "C:\\VELDRIN";
  EXPECT_EQ(Events(), "");
  form.Dir1.Path = "C:\\";
  EXPECT_EQ(form.Dir1.entries, (Texts{"C:\\TEMP", "C:\\VELDRIN", "C:\\WINDOWS"}));
}

TEST_F(FileBoxes, AFolderThatCannotBeHadIsRefused) {
  Form form(desk);
  EXPECT_EQ(FaultOf([&] { form.Dir1.Path = "C:\\NONE"; }), kFaultPathNotFound);
  EXPECT_EQ(FaultOf([&] { form.Dir1.Path = "A:\\"; }), kFaultDriveNotReady);
  EXPECT_EQ(form.Dir1.Path, "C:\\VELDRIN\\LIST");
  EXPECT_EQ(FaultOf([&] { form.File1.Path = "C:\\NONE"; }), kFaultPathNotFound);
  EXPECT_EQ(form.File1.entries.size(), 2U);
  EXPECT_EQ(Events(), "");
}

TEST_F(FileBoxes, TheBarOfAFolderBoxClicks) {
  Form form(desk);
  form.Dir1.Path = "C:\\VELDRIN";
  Events();
  form.Dir1.ListIndex = 1;
  EXPECT_EQ(Events(), "Dir1.Click");
  EXPECT_EQ(form.Dir1.Path, "C:\\VELDRIN");
  form.Dir1.ListIndex = -1;
  EXPECT_EQ(Events(), "Dir1.Click");
  EXPECT_EQ(FaultOf([&] { form.Dir1.ListIndex = 2; }), kFaultBadProperty);
  form.Dir1.ListIndex = 1;
  form.Dir1.Path = "C:\\";
  EXPECT_EQ(form.Dir1.ListIndex.get(), -1) << "in another folder it begins again";
}

TEST_F(FileBoxes, AreReadAgainWhenAsked) {
  Form form(desk);
  windows.tellsContent = true;
  simulated.files.AddFolder("C:\\VELDRIN\\LIST\\OLD");
  simulated.files.AddFile("C:\\VELDRIN\\LIST\\D.RAT", "");
  EXPECT_TRUE(form.Dir1.entries.empty());
  Forget();
  form.Dir1.Refresh();
  EXPECT_EQ(form.Dir1.entries, (Texts{"C:\\VELDRIN\\LIST\\OLD"}));
  EXPECT_EQ(Told(), "write Form.Dir1.ListIndex -1\ncontent Form.Dir1\n");
  form.File1.FileName = "A.RAT";
  Forget();
  form.File1.Refresh();
  EXPECT_EQ(form.File1.entries, (Texts{"A.RAT", "B.RAT", "D.RAT"}));
  EXPECT_EQ(form.File1.ListIndex.get(), -1);
  EXPECT_EQ(form.File1.FileName, "");
  const std::string told = Told();
  EXPECT_EQ(told.find("event"), std::string::npos);
  EXPECT_TRUE(told.ends_with("content Form.File1\n"));
}

TEST_F(FileBoxes, AFolderThatIsGoneLeavesTheListsEmpty) {
  Form form(desk);
  form.Dir1.Path = "C:\\VELDRIN";
  simulated.files.SetCurrentFolder("C:\\");
  simulated.files.Remove("C:\\VELDRIN");
  form.Dir1.Refresh();
  form.File1.Refresh();
  EXPECT_TRUE(form.Dir1.entries.empty());
  EXPECT_TRUE(form.File1.entries.empty());
}

TEST_F(FileBoxes, PatternAndPathOfAFileBoxListAnewWithoutAnEvent) {
  Form form(desk);
  form.File1.ListIndex = 0;
  Events();
  form.File1.Pattern = "*.txt;B*";
  EXPECT_EQ(form.File1.entries, (Texts{"B.RAT", "C.TXT"}));
  EXPECT_EQ(form.File1.ListIndex.get(), -1);
  EXPECT_EQ(form.File1.FileName, "");
  form.File1.Path = "c:\\veldrin";
  EXPECT_EQ(form.File1.Path, "C:\\VELDRIN");
  EXPECT_TRUE(form.File1.entries.empty());
  EXPECT_EQ(Events(), "");
}

TEST_F(FileBoxes, APickedFileClicks) {
  Form form(desk);
  std::string name;
  form.File1.Click.Bind([&](int) { name = form.File1.FileName.get(); });
  form.File1.ListIndex = 1;
  EXPECT_EQ(name, "B.RAT");
  EXPECT_EQ(Events(), "File1.Click");
  form.File1.ListIndex = -1;
  EXPECT_EQ(form.File1.FileName, "");
  EXPECT_EQ(Events(), "");
  EXPECT_EQ(FaultOf([&] { form.File1.ListIndex = 2; }), kFaultBadProperty);
}

TEST_F(FileBoxes, ANamedFileIsSelectedAndDoubleClicked) {
  Form form(desk);
  int place = 7;
  form.File1.DblClick.Bind([&](int) { place = form.File1.ListIndex.get(); });
  form.File1.FileName = "b.rat";
  EXPECT_EQ(form.File1.FileName, "B.RAT") << "as it stands on the disk";
  EXPECT_EQ(place, 1);
  EXPECT_EQ(Events(), "File1.DblClick");
  form.File1.FileName = "";
  EXPECT_EQ(form.File1.ListIndex.get(), -1);
  EXPECT_EQ(Events(), "");
}

TEST_F(FileBoxes, ANamedFileNeedNotMatchThePattern) {
  Form form(desk);
  form.File1.ListIndex = 0;
  Events();
  form.File1.FileName = "C.TXT";
  EXPECT_EQ(form.File1.FileName, "C.TXT");
  EXPECT_EQ(form.File1.ListIndex.get(), -1);
  EXPECT_EQ(Events(), "File1.DblClick");
}

TEST_F(FileBoxes, AFileThatIsNotThereIsRefused) {
  Form form(desk);
  form.File1.ListIndex = 0;
  Events();
  EXPECT_EQ(FaultOf([&] { form.File1.FileName = "Z.RAT"; }), kFaultFileNotFound);
  EXPECT_EQ(form.File1.FileName, "A.RAT");
  EXPECT_EQ(Events(), "");
}

TEST_F(FileBoxes, AFileIsFoundInTheRootAsWell) {
  simulated.files.AddFile("C:\\ROOT.RAT", "");
  Form form(desk);
  form.File1.Path = "C:\\";
  form.File1.FileName = "root.rat";
  EXPECT_EQ(form.File1.FileName, "ROOT.RAT");
  EXPECT_EQ(form.File1.ListIndex.get(), 0);
}

}  // namespace
}  // namespace veldrin
