// The program's folder among those that Windows names.
#include "tests/machine/files/installed_samples.h"
#include "tests/own_user.h"

namespace veldrin {
namespace {

TEST_F(RealProgramFolderTest, AVariableThatNamesNoFolderIsPassedOver) {
  OwnUser::Forget();
  qputenv("VELDRIN_HOME", In("none").toUtf8());
  const QString own = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/veldrin";
  EXPECT_EQ(QDir::fromNativeSeparators(PathString(ProgramFolder())), own);
  EXPECT_TRUE(QFileInfo(own + "/DAT").isDir());
}

TEST_F(RealProgramFolderTest, AFolderOfAnyNameIsNamedByTheVariable) {
  Put("鈴鹿 한/LIST/NX4.RAT", "list");
  _wputenv_s(L"VELDRIN_HOME", In("鈴鹿 한").toStdWString().c_str());
  EXPECT_EQ(QDir::fromNativeSeparators(PathString(ProgramFolder())), In("鈴鹿 한"));
}

}  // namespace
}  // namespace veldrin
