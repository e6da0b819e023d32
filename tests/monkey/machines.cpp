#include "tests/monkey/machines.h"

#include "tests/monkey/random_list.h"
#include "tests/monkey/script_text.h"

namespace veldrin::monkey {

namespace {

using Script = std::vector<std::string>;

constexpr char kLists[] = "C:\\VELDRIN\\LIST\\";
constexpr char kPlans[] = "C:\\VELDRIN\\DAT\\";
constexpr char kSettings[] = "\"Software\\Tarn Ridge\\Veldrin\"";

void Import(Script& script, const std::string& folder, const std::string& from, const std::string& name) {
  script.push_back(Line({"import", AsWord(folder + name), AsWord(VELDRIN_SHARE "/" + from + "/" + name)}));
}

void File(Script& script, const std::string& path, const std::string& text) {
  script.push_back(Line({"file", AsWord(path), AsWord(text)}));
}

void Setting(Script& script, const std::string& name, const std::string& value) {
  script.push_back(Line({"registry", "HKCU", kSettings, AsWord(name), AsWord(value)}));
}

// ---- system ----

void MakeSystem(Random& random, Script& script) {
  const std::vector<std::string> countries{"1", "1", "81", "81", "49", "none"};
  const std::string country = random.Pick(countries);
  if (country != "1") script.push_back(Line({"system", "iCountry", country}));
  if (random.Chance(35)) {
    script.push_back("system sDecimal \",\"");
    script.push_back("system sThousand \".\"");
  }
  const std::vector<std::string> screens{"640 480", "800 600", "1152 864", "1920 1080"};
  if (random.Chance(20)) script.push_back("system screen " + random.Pick(screens));
  if (random.Chance(10)) script.push_back("system printers 0");
  if (random.Chance(60)) File(script, "C:\\WINDOWS\\EXPLORER.EXE", "");
  if (random.Chance(8)) {
    script.push_back("system instances 1");
    File(script, "C:\\TEMP\\VELD000.TMP", "\r\n");
  }
}

void MakeSettings(Random& random, Script& script) {
  // With a program folder it is no first run, and what stands beside it counts.
  if (random.Chance(50)) Setting(script, "App Path", "C:\\VELDRIN");
  if (random.Chance(10)) Setting(script, "QuickQuit", "YES");
  if (random.Chance(40)) Setting(script, "Language", random.Chance(50) ? "ENGLISH" : "JP");
  if (random.Chance(15)) Setting(script, "List_File", "VT2.RAT");
  if (random.Chance(5)) Setting(script, "List_File", "GONE.RAT");
  if (random.Chance(10)) Setting(script, "Min Plan", std::to_string(random.Between(2, 12)));
  if (random.Chance(15)) Setting(script, "His_Num", std::to_string(random.Between(1, 3)));
  if (random.Chance(10)) Setting(script, "Max_Ne", "12000");
  if (random.Chance(10)) Setting(script, "Check_Ne", std::to_string(random.Between(5, 24) * 1000));
  if (random.Chance(10)) Setting(script, "Shift_Ne", std::to_string(random.Between(50, 240) * 100));
  if (random.Chance(10)) Setting(script, "Separate_34", "nx4 zr");
  if (random.Chance(10)) Setting(script, "Color_3", "12345");
  if (random.Chance(1)) Setting(script, "Max_Speed", "fast");
}

// ---- files ----

constexpr char kNearSpeeds[] = "100\r\n128\r\n155\r\n178\r\n200\r\n214\r\n";
constexpr char kFarSpeeds[] = "500\r\n600\r\n700\r\n800\r\n900\r\n1000\r\n";

void MakeOddFiles(Random& random, Script& script) {
  const std::string plans = kPlans;
  const std::string lists = kLists;
  const std::string head = "FROM:NX4.RAT\r\n1.9\r\n13000\r\n";
  const std::string choice = "19\r\n63\r\n17\r\n39\r\n15.28-18.26-20.24-20.21-21.20-21.19\r\nremark\r\n";
  const std::string gap = "104.37075\r\n134.87912\r\n162.35449\r\n185.54799\r\n204.56667\r\n215.33333\r\n";
  const auto perhaps = [&](const std::string& path, const std::string& text) {
    if (random.Chance(35)) File(script, path, text);
  };
  perhaps(plans + "DIFF.nx4", head + kNearSpeeds + choice);
  perhaps(plans + "SHORT.nx4", head + "104.37075\r\n134.87912\r\n");
  perhaps(plans + "WORDS.nx4", head + "104.37075\r\nfast\r\n162\r\n185\r\n204\r\n215\r\n" + choice);
  perhaps(plans + "TYRE.nx4", "FROM:NX4.RAT\r\n2.05\r\nmany\r\n");
  perhaps(plans + "HIGH.nx4", "FROM:NX4.RAT\r\n1.9\r\n16000\r\n" + gap + choice);
  perhaps(plans + "COMMA.nx4", "FROM:NX4.RAT\r\n1,9\r\n13000\r\n" + gap + choice);
  perhaps(plans + "OTHER.nx4",
          "FROM:VT2.RAT\r\n1.95\r\n12500\r\n" + gap + "22\r\n58\r\n15\r\n39\r\n1B-2C-3C-4D-5C-6B\r\n\r\n");
  perhaps(plans + "LOST.nx4", "FROM:XX9.RAT\r\n1.95\r\n12500\r\n" + gap + choice);
  perhaps(plans + "PARTS.nx4",
          head + gap + "77\r\n88\r\n17\r\n39\r\n15.28-18.26-20.24-20.21-none-21.19\r\n\r\n");
  perhaps(plans + "EMPTY.nx4", "");
  perhaps(plans + "NEAR.QR", std::string("near\r\n1.9\r\n13000\r\n") + kNearSpeeds + "second line\r\n");
  perhaps(plans + "HIGH.QR",
          std::string("high\r\n1.9\r\n16000\r\n") + "123\r\n158\r\n190\r\n220\r\n246\r\n264\r\n");
  perhaps(plans + "FAR.QR", std::string("far\r\n1.9\r\n13000\r\n") + kFarSpeeds);
  perhaps(plans + "HALF.QR", "half\r\n1.9\r\nmany\r\n100\r\n");
  perhaps(lists + "HELLO.RAT", "HELLO\r\n");
  perhaps(lists + "TRUNC.RAT", "LIST\r\nTRUNC\r\nFINAL-DRIVE\r\n14,15,99\r\n");
  perhaps(lists + "WRONG.RAT", "LIST\r\nWRONG\r\nFINAL-DRIVE\r\n14,99\r\nFINALLY\r\n");
  perhaps("C:\\VELDRIN\\TEST.CAP", "Caption\r\nmark\r\n");
}

void MakeFiles(Random& random, Script& script) {
  Import(script, kLists, "LIST", "NX4.RAT");
  Import(script, kPlans, "DAT", "RAIN.nx4");
  if (random.Chance(50)) Import(script, kLists, "LIST", "NX4.CMB");
  if (random.Chance(60)) Import(script, kPlans, "DAT", "DRY.nx4");
  if (random.Chance(70)) Import(script, kLists, "LIST", "VT2.RAT");
  if (random.Chance(40)) Import(script, kLists, "LIST", "VT2.CMB");
  if (random.Chance(70)) Import(script, kPlans, "DAT", "TEST.vt2");
  MakeOddFiles(random, script);
  if (random.Chance(20)) script.push_back("folder \"C:\\VELDRIN\\DAT\\SUB\"");
}

/// A machine of chance, which may be the one that the program starts with.
void MakeOwnMachine(Random& random, Script& script) {
  const RandomMachine machine = MakeRandomMachine(random);
  const std::string key = machine.name;
  File(script, kLists + machine.name + ".RAT", machine.list);
  if (!machine.parts.empty()) File(script, kLists + machine.name + ".CMB", machine.parts);
  if (!machine.plan.empty()) File(script, kPlans + std::string("CHANCE.") + key, machine.plan);
  if (random.Chance(60)) Setting(script, "List_File", machine.name + ".RAT");
}

}  // namespace

std::string StartLine(Random& random) {
  if (random.Chance(60)) return "start";
  const std::vector<std::string> files{"C:\\VELDRIN\\DAT\\RAIN.nx4",   "C:\\VELDRIN\\DAT\\RAIN.nx4",
                                       "C:\\VELDRIN\\DAT\\TEST.vt2",   "C:\\VELDRIN\\DAT\\DIFF.nx4",
                                       "C:\\VELDRIN\\DAT\\GONE.nx4",   "C:\\VELDRIN\\LIST\\VT2.RAT",
                                       "C:\\VELDRIN\\LIST\\HELLO.RAT", "C:\\VELDRIN\\DAT\\LOST.nx4"};
  return Line({"start", AsWord(random.Pick(files))});
}

std::vector<std::string> MakeMachine(Random& random) {
  Script script;
  MakeSystem(random, script);
  MakeSettings(random, script);
  MakeFiles(random, script);
  if (random.Chance(40)) MakeOwnMachine(random, script);
  script.push_back(StartLine(random));
  return script;
}

}  // namespace veldrin::monkey
