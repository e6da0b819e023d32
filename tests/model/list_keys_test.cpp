// The key lines of a machine list.
#include "model/list_tables.h"
#include "tests/model/small_list.h"

#include <cstdint>
#include <string>

namespace veldrin {
namespace {

TEST_F(ListTables, KeyLinesTakeTheirRanges) {
  struct Case {
    const char* line;
    float tyre;
    float check;
    int shift;
    int maxSpeed;
    int maxNe;
  };
  const Case untouched = {"", 1.9F, 10000, 13000, 300, 15000};
  const Case cases[] = {
      {"TYRE_L=1", 1, 10000, 13000, 300, 15000},
      {"TYRE_L=3", 3, 10000, 13000, 300, 15000},
      {"TYRE_L=3.01", 1.9F, 10000, 13000, 300, 15000},
      {"TYRE_L=0.99", 1.9F, 10000, 13000, 300, 15000},
      {"TYRE_L= 1.95 ", 1.95F, 10000, 13000, 300, 15000},
      {"TYRE_L=1.9.5", 1.9F, 10000, 13000, 300, 15000},
      {"TYRE_L=", 1.9F, 10000, 13000, 300, 15000},
      {"TYRE_L=two", 1.9F, 10000, 13000, 300, 15000},
      {"TYRE_L=1=2", 1.9F, 10000, 13000, 300, 15000},
      {"CHECK_NE=5000", 1.9F, 5000, 13000, 300, 15000},
      {"CHECK_NE=24000", 1.9F, 24000, 13000, 300, 15000},
      {"CHECK_NE=4999", 1.9F, 10000, 13000, 300, 15000},
      {"CHECK_NE=24001", 1.9F, 10000, 13000, 300, 15000},
      {"CHECK_NE=9500.5", 1.9F, 9500, 13000, 300, 15000},
      {"SHIFT_NE=5000", 1.9F, 10000, 5000, 300, 15000},
      {"SHIFT_NE=24000", 1.9F, 10000, 24000, 300, 15000},
      {"SHIFT_NE=24000.4", 1.9F, 10000, 13000, 300, 15000},
      {"SHIFT_NE=4999.6", 1.9F, 10000, 13000, 300, 15000},
      {"SHIFT_NE=12501.5", 1.9F, 10000, 12502, 300, 15000},
      {"SHIFT_NE=1.25e4", 1.9F, 10000, 12500, 300, 15000},
      {"SHIFT_NE=99999", 1.9F, 10000, 13000, 300, 15000},
      {"MAX_SPEED=100", 1.9F, 10000, 13000, 100, 15000},
      {"MAX_SPEED=99", 1.9F, 10000, 13000, 300, 15000},
      {"MAX_SPEED=341", 1.9F, 10000, 13000, 300, 15000},
      {"MAX_SPEED=339.5", 1.9F, 10000, 13000, 340, 15000},
      {"MAX_SPEED=340", 1.9F, 10000, 13000, 340, 15000},
      {"MAX_SPEED=200.5", 1.9F, 10000, 13000, 200, 15000},
      {"MAX_NE=5000", 1.9F, 10000, 13000, 300, 5000},
      {"MAX_NE=24000", 1.9F, 10000, 13000, 300, 24000},
      {"MAX_NE=24001", 1.9F, 10000, 13000, 300, 15000},
      {"MAX_NE=4999", 1.9F, 10000, 13000, 300, 15000},
      // Keys are compared exactly, the blank before the "=" included.
      {"SHIFT_NE =12000", 1.9F, 10000, 13000, 300, 15000},
      {" SHIFT_NE=12000", 1.9F, 10000, 13000, 300, 15000},
      {"shift_ne=12000", 1.9F, 10000, 13000, 300, 15000},
      {"SHIFT=12000", 1.9F, 10000, 13000, 300, 15000},
      {"=12000", 1.9F, 10000, 13000, 300, 15000},
      {"SHIFT_NE 12000", 1.9F, 10000, 13000, 300, 15000},
  };
  for (const Case& c : cases) {
    workspace.TyreLength = untouched.tyre;
    workspace.CheckNe = untouched.check;
    workspace.ShiftNe = static_cast<std::int16_t>(untouched.shift);
    workspace.MaxSpeed = static_cast<std::int16_t>(untouched.maxSpeed);
    workspace.MaxNe = static_cast<std::int16_t>(untouched.maxNe);
    ReadKeys(std::string(c.line) + "\n");
    EXPECT_EQ(workspace.TyreLength, c.tyre) << c.line;
    EXPECT_EQ(workspace.CheckNe, c.check) << c.line;
    EXPECT_EQ(workspace.ShiftNe, c.shift) << c.line;
    EXPECT_EQ(workspace.MaxSpeed, c.maxSpeed) << c.line;
    EXPECT_EQ(workspace.MaxNe, c.maxNe) << c.line;
  }
}

TEST_F(ListTables, LaterKeyLineOverridesAndOrderIsFree) {
  ReadKeys("MAX_NE=16000\nSHIFT_NE=12000\n\nsome remark\nSHIFT_NE=12500\nTYRE_L=2");
  EXPECT_EQ(workspace.MaxNe, 16000);
  EXPECT_EQ(workspace.ShiftNe, 12500);
  EXPECT_EQ(workspace.TyreLength, 2);
  ReadKeys("SHIFT_NE=12000\nSHIFT_NE=1\n");
  EXPECT_EQ(workspace.ShiftNe, 12000) << "a value that is refused overrides nothing";
}

TEST_F(ListTables, TyreIsReadWithTheSystemsSeparator) {
  workspace.DecimalSep = ",";
  workspace.TyreLength = 1.9F;
  ReadKeys("TYRE_L=2,05\n");
  EXPECT_EQ(workspace.TyreLength, 2.05F);
  ReadKeys("TYRE_L=1.95\n");
  EXPECT_EQ(workspace.TyreLength, 1.9F) << "a point is no separator here";
}

TEST_F(ListTables, KeysGoBackWithTheNextListButForWhatWasChangedSince) {
  workspace.TyreLength = 1.9F;
  workspace.CheckNe = 10000;
  workspace.ShiftNe = 13000;
  workspace.MaxSpeed = 340;
  workspace.MaxNe = 15000;
  const std::string all = "TYRE_L=2\nCHECK_NE=9000\nSHIFT_NE=12000\nMAX_SPEED=200\nMAX_NE=14000\n";
  ReadKeys(all);
  ReadKeys(all);
  ReadKeys("");
  EXPECT_EQ(workspace.TyreLength, 1.9F);
  EXPECT_EQ(workspace.CheckNe, 10000);
  EXPECT_EQ(workspace.ShiftNe, 13000);
  EXPECT_EQ(workspace.MaxSpeed, 340);
  EXPECT_EQ(workspace.MaxNe, 15000);
  ReadKeys(all + "TYRE_L=2.5\n");
  EXPECT_EQ(workspace.TyreLength, 2.5F);
  workspace.CheckNe = 8000;
  workspace.MaxNe = 15500;
  ReadKeys("CHECK_NE=7000\n");
  EXPECT_EQ(workspace.TyreLength, 1.9F);
  EXPECT_EQ(workspace.CheckNe, 7000);
  EXPECT_EQ(workspace.ShiftNe, 13000);
  EXPECT_EQ(workspace.MaxNe, 15500);
  ReadKeys("");
  EXPECT_EQ(workspace.CheckNe, 8000) << "what the user had made of the first key";
}

TEST_F(ListTables, ARefusedListLeavesTheKeysOfTheLastOne) {
  workspace.TyreLength = 1.9F;
  ReadKeys("TYRE_L=2\n");
  EXPECT_FALSE(Read("NX4\nFINAL DRIVE\n"));
  EXPECT_EQ(workspace.TyreLength, 2);
  ReadKeys("");
  EXPECT_EQ(workspace.TyreLength, 1.9F);
}

}  // namespace
}  // namespace veldrin
