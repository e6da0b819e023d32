#include "tests/monkey/texts.h"

#include <vector>

namespace veldrin::monkey {

namespace {

using Texts = std::vector<std::string>;

/// Mostly one of the plain texts; now and then an odd one, rarely one that ends the program.
std::string Mixed(Random& random, const Texts& plain, const Texts& odd, const Texts& fatal) {
  if (random.Chance(2)) return random.Pick(fatal);
  return random.Pick(random.Chance(80) ? plain : odd);
}

std::string Revolutions(Random& random) {
  if (random.Chance(60)) return std::to_string(random.Between(50, 240) * 100);
  return Mixed(random, {"12000", "5000", "24000", "15000", "16000"},
               {"4999", "24001", "13000.4", "12,5", "9000rpm", "-6000", " 11000 ", "99999999"},
               {"", "12..5", "1 2", "-"});
}

std::string TyreLength(Random& random) {
  if (random.Chance(40)) return "1." + std::to_string(random.Between(0, 999));
  return Mixed(random, {"1.9", "1,95", "2", "1.0", "3.0"}, {"3.01", "0.99", "", "long", "2.00000001", "0"},
               {"1.2.3", "-", "."});
}

std::string Request(Random& random, const Program& program, int gear) {
  const Workspace& workspace = program.workspace;
  const int near = static_cast<int>(workspace.SpeedBaseline[gear]) % 1000;
  if (random.Chance(60)) return std::to_string(near + random.Between(-3, 3));
  return Mixed(random, {"100", "150", "57", "200"},
               {"", "0", "9", "10", "99.5", "-5", "1000", "40000", "123456789", "1234567"},
               {"fast", "1x", "..", "1e999"});
}

std::string Remark(Random& random) {
  const Texts pieces{"Dry.",      "wet",     "second line", "a, b", "say \"so\"", "雨用",
                     "  blanks ", "FROM:X.", "1.9",         "\r\n", "\r\n",       "-",
                     "100%",      "#1",      "end",         "&x",   "\t",         "\xE3\x80\x80wide"};
  std::string text;
  for (int i = random.Below(5); i > 0; --i) text += random.Pick(pieces);
  return text;
}

std::string SettingsText(Random& random, int box) {
  switch (box) {
    case 0:
      return TyreLength(random);
    case 3:
      return Mixed(random, {"100", "340", "260", "180"}, {"99", "341", "fast", "-100", ""},
                   {"200 -", "120."});
    default:
      return Revolutions(random);
  }
}

}  // namespace

std::string PlanName(Random& random, const Program& program) {
  const std::string key = program.workspace.MachineKey;
  return Mixed(random, {"A", "B", "NEW1", "RAIN." + key, "DRY." + key, "LONGNAME99"},
               {"abc.txt", "A." + key, "", "*." + key, "." + key, "雨", "a.b.c", "A B", "NEAR.QR"},
               {"?", "SUB\\X", "a:b", "\\", "..", "x/y"});
}

std::string TextFor(Random& random, const Program& program, const Control& box) {
  const std::string& window = box.window.name;
  if (window == "Form2" && box.name == "Text1") return Request(random, program, box.index);
  if (window == "Form2" && box.name == "Text3") return TyreLength(random);
  if (window == "Form2" && box.name == "Text6") return Remark(random);
  if (window == "Form2") return Revolutions(random);
  if (window == "Form3") return PlanName(random, program);
  if (window == "Form7" && box.name == "Text1") return SettingsText(random, box.index);
  if (window == "Form7") return random.Pick(Texts{"JP", "ENGLISH", "TEST", "FRENCH", ""});
  return random.Pick(Texts{"*.nx4", "", "x"});
}

}  // namespace veldrin::monkey
