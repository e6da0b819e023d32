#include "tests/monkey/habits.h"

#include "tests/monkey/machines.h"
#include "tests/monkey/script_text.h"
#include "tests/monkey/texts.h"

namespace veldrin::monkey {

namespace {

using Script = std::vector<std::string>;

/// A file of the folder; one that is not there where it has none.
std::string FileIn(Random& random, const Program& program, const std::string& folder,
                   const std::string& pattern) {
  std::vector<std::string> names;
  Guarded([&] { names = program.machine.files.FileNames(folder, pattern); });
  return names.empty() ? "GONE" : random.Pick(names);
}

std::string PlanFile(Random& random, const Program& program) {
  return FileIn(random, program, "C:\\VELDRIN\\DAT", "*." + program.workspace.MachineKey);
}

std::string AnyPlanFile(Random& random, const Program& program) {
  return FileIn(random, program, "C:\\VELDRIN\\DAT", "*.*");
}

std::string ListFile(Random& random, const Program& program) {
  return FileIn(random, program, "C:\\VELDRIN\\LIST", "*.RAT");
}

std::string Ok() {
  return "click Form3.Command1";
}

Script Choose(const std::string& opener, const std::string& file) {
  return {opener, Line({"select", "Form3.File1", AsWord(file)}), Ok()};
}

Script OpenPlan(Random& random, const Program& program) {
  const Script openers{"click Form2.Command3", "click Form2.menu_data_load"};
  return Choose(random.Pick(openers), PlanFile(random, program));
}

Script OpenList(Random& random, const Program& program) {
  return Choose("click Form2.menu_list_load", ListFile(random, program));
}

/// A list picked where a plan was asked for, which is read at the second OK.
Script OpenListForPlan(Random& random, const Program& program) {
  return {"click Form2.menu_data_load",
          "select Form3.Combo2 \"*.RAT\"",
          "open Form3.Dir1 \"C:\\VELDRIN\\LIST\"",
          Line({"select", "Form3.File1", AsWord(ListFile(random, program))}),
          Ok(),
          "advance 100",
          Ok()};
}

Script OpenReference(Random& random, const Program& program) {
  const Script openers{"click Form2.menu_qr", "click Form2.menu_data_ref"};
  Script script = Choose(random.Pick(openers), AnyPlanFile(random, program));
  script.push_back("advance 10");
  script.push_back("click Form4.Command1");
  return script;
}

Script Save(Random& random, const Program& program) {
  const Script openers{"click Form2.Command5", "click Form2.menu_save"};
  const Script ends{Ok(), Ok(), "key Form3.Combo1 Enter"};
  return {random.Pick(openers), Line({"enter", "Form3.Combo1", AsWord(PlanName(random, program))}),
          random.Pick(ends), Ok()};
}

Script Delete(Random& random, const Program& program) {
  return Choose("click Form2.menu_del", PlanFile(random, program));
}

Script Edit(Random& random, const Program& /*program*/) {
  const auto gear = [&] { return std::to_string(random.Between(1, 6)); };
  const Script steps{"spin Form2.Spin6(" + gear() + ") up",
                     "spin Form2.Spin6(" + gear() + ") down",
                     "spin Form2.Spin6(3) up",
                     "spin Form2.Spin6(4) up",
                     "spin Form2.Spin5 up",
                     "spin Form2.Spin4 up",
                     "enter Form2.Text6 \"changed\"",
                     "click Form2.Label8",
                     "click Form2.Label12(" + gear() + ")",
                     "click Form2.Command11"};
  return {random.Pick(steps), random.Pick(steps)};
}

Script FirstPlan(Random& /*random*/, const Program& /*program*/) {
  return {"click Form2.Command2"};
}

Script Search(Random& random, const Program& /*program*/) {
  const Script ends{"click Form4.Command1", "click Form4.Command1", "click Form4.Command2", "close Form4"};
  Script script{"click Form2.Command2", "click Form2.Command10"};
  if (random.Chance(30)) {
    script.push_back("click Form2.Command1(" + std::to_string(random.Between(1, 6)) + ")");
  }
  if (random.Chance(20)) script.push_back("enter Form2.Text1(4) 177");
  if (random.Chance(10)) script.push_back("enter Form2.Text1(2) 999");
  const Script starts{"click Form2.Command6", "click Form2.f_calc"};
  script.push_back(random.Pick(starts));
  script.push_back("advance 10");
  if (random.Chance(30)) script.push_back("spin Form4.Spin1 up");
  script.push_back(random.Pick(ends));
  return script;
}

Script SearchByRevolutions(Random& random, const Program& /*program*/) {
  const std::string gear = std::to_string(random.Between(1, 6));
  return {"click Form2.Command2",
          "click Form2.Command2 right",
          "spin Form2.SpinButton2(" + gear + ") " + (random.Chance(50) ? "up" : "down"),
          random.Chance(50) ? "click Form2.Command6" : "click Form2.f_calc",
          "advance 10",
          random.Chance(50) ? "click Form4.Command1" : "click Form4.Command2"};
}

Script Answer(Random& random, const Program& /*program*/) {
  const Script answers{"click Form2.Command8", "click Form2.Command9", "click Form2.Command9"};
  return {random.Pick(answers)};
}

Script Compare(Random& random, const Program& program) {
  return {random.Chance(50) ? "click Form2.Command4" : "click Form2.f_comp",
          "click Form5.Command1",
          Line({"select", "Form5.File1", AsWord(PlanFile(random, program))}),
          "click Form5.Command4",
          "spin Form5.Spin1 up",
          "click Form5.Command2"};
}

Script Settings(Random& random, const Program& /*program*/) {
  return {"click Form2.menu_set",
          Line({"enter", "Form7.Text1(2)", std::to_string(random.Between(50, 240) * 100)}),
          random.Chance(60) ? "click Form7.SAVE" : "click Form7.CANCEL"};
}

Script Colours(Random& random, const Program& /*program*/) {
  return {"answer colour 10,200,30", "click Form2.menu_color",
          "click Form9.Command1(" + std::to_string(random.Between(1, 6)) + ")", "click Form9.Command2"};
}

Script Print(Random& random, const Program& /*program*/) {
  const Script answers{"answer print ok 2", "answer print cancel", "answer print error 482"};
  return {random.Pick(answers), "click Form2.menu_print"};
}

Script Register(Random& random, const Program& /*program*/) {
  return {random.Chance(50) ? "answer box OK" : "answer box Cancel", "click Form2.menu_reg(1)"};
}

Script History(Random& /*random*/, const Program& /*program*/) {
  return {"click Form2.menu_files(1)"};
}

Script Restart(Random& random, const Program& /*program*/) {
  if (random.Chance(15)) return {"kill", StartLine(random), "advance 1500"};
  return {"close Form2", "click Form2.Command9", StartLine(random), "advance 1500"};
}

Script Leave(Random& /*random*/, const Program& /*program*/) {
  return {"click Form3.Command2"};
}

Script Picture(Random& random, const Program& /*program*/) {
  return {(random.Chance(90) ? "click Form2.clip(" : "click Form2.bmp(") +
          std::to_string(random.Between(2, 5)) + ")"};
}

struct Habit {
  int weight;
  Script (*make)(Random& random, const Program& program);
};

constexpr Habit kHabits[] = {
    {14, OpenPlan}, {6, OpenList}, {3, OpenListForPlan}, {5, OpenReference}, {14, Save},
    {2, Delete},    {20, Edit},    {8, FirstPlan},       {14, Search},       {6, SearchByRevolutions},
    {8, Answer},    {4, Compare},  {2, Settings},        {2, Colours},       {2, Print},
    {2, Register},  {6, History},  {5, Restart},         {2, Leave},         {2, Picture},
};

}  // namespace

std::vector<std::string> MakeHabit(Random& random, const Program& program) {
  std::vector<int> weights;
  for (const Habit& habit : kHabits) weights.push_back(habit.weight);
  return kHabits[random.Weighted(weights)].make(random, program);
}

}  // namespace veldrin::monkey
