// Captions whose point stands in its place.
#include "workspace/captions.h"

#include "simulated/simulated_machine.h"
#include "workspace/program.h"

#include <gtest/gtest.h>

#include <string>

namespace veldrin {
namespace {

TEST(AlignCaption, PadsByLengthAndPlaceOfThePoint) {
  struct Case {
    int column;
    const char* caption;
    const char* aligned;
  };
  const Case cases[] = {
      {4, "123.", "123.0"}, {4, "12.", " 12.0"}, {4, "12.3", " 12.3"},  {4, "1.5", " 1.50"},
      {4, "1.", " 1."},     {4, ".", " ."},      {4, "123.4", "123.4"}, {4, "", " "},
      {4, "123,", "123,0"}, {4, "1,5", " 1,50"}, {3, "12.", "12.0"},    {3, "1.", " 1.0"},
      {3, "1.2", " 1.2"},   {3, ".3", " .30"},   {3, "-1.2", "-1.2"},   {3, "-.3", " -.3"},
      {3, "-1.", "-1.0"},   {3, ".", " ."},      {3, "12.3", "12.3"},   {3, "-.", " -.0"},
  };
  SimulatedMachine simulated;
  Program program(simulated.machine);
  for (const Case& c : cases) {
    Label& label = program.form2.Label9[1];
    label.Caption = c.caption;
    AlignCaption(c.column, label);
    EXPECT_EQ(label.Caption.get(), c.aligned) << c.column << " \"" << c.caption << '"';
  }
  simulated.windows.Forget();
}

}  // namespace
}  // namespace veldrin
