#include "program/event_boundary.h"
#include "runtime/text.h"
#include "script/commands/script_commands.h"
#include "script/operations.h"
#include "script/script_error.h"
#include "script/script_slots.h"
#include "script/script_suggest.h"
#include "script/script_values.h"
#include "script/variables.h"

namespace veldrin {

namespace {

void Start(const CommandLine& line) {
  line.world.Start(line.Count() > 1 ? line[1] : "");
}

void Kill(const CommandLine& line) {
  line.world.Kill();
}

void Advance(const CommandLine& line) {
  line.world.Advance(WholeNumber(line[1], 0, std::numeric_limits<std::int32_t>::max()));
}

// ---- set ----

/// Writes one slot as an event of the program.
void SetSlot(ScriptWorld& world, Program& program, const ScriptName& name, const std::string& value) {
  if (name.size() < 2 || name.size() > 3) throw ScriptError{NameText(name) + " is no slot"};
  const Found found = name.size() == 3 ? world.catalogue.FindControl(program, name[0].name, name[1])
                                       : world.catalogue.FindWindow(program, name[0].name);
  RunEvent(program, [&] { WriteSlot(found, name.back(), value); });
}

void Set(const CommandLine& line) {
  const std::vector<ScriptName> names = ParseNames(line[1]);
  const std::size_t values = line.Count() - 2;
  if (values != 1 && values != names.size()) {
    throw ScriptError{"set needs one value, or one for each of the " + std::to_string(names.size())};
  }
  line.world.Act([&](Program& program) {
    for (std::size_t i = 0; i < names.size() && !program.ended; ++i) {
      const std::string& value = line[values == 1 ? 2 : 2 + i];
      if (ScriptCatalogue::IsWindow(names[i][0].name)) {
        SetSlot(line.world, program, names[i], value);
      } else {
        SetVariable(FindVariable(program, names[i]), value);
      }
    }
    return true;
  });
}

void Call(const CommandLine& line) {
  std::vector<std::string> arguments;
  for (std::size_t i = 2; i < line.Count(); ++i) arguments.push_back(line[i]);
  line.world.Act([&](Program& /*program*/) {
    CallOperation(line.world, line[1], arguments);
    return true;
  });
}

// ---- answer ----

void AnswerBox(const CommandLine& line) {
  const bool ok = EqualsIgnoringCase(line[2], "OK");
  if (!ok && !EqualsIgnoringCase(line[2], "Cancel")) {
    throw ScriptError{"\"" + line[2] + "\" is no answer to a box: OK or Cancel"};
  }
  line.world.machine.boxes.boxAnswers.push_back(ok ? BoxAnswer::Ok : BoxAnswer::Cancel);
}

void AnswerColour(const CommandLine& line) {
  std::optional<Colour> colour;
  if (!EqualsIgnoringCase(line[2], "cancel")) colour = ColourOf(line[2]);
  line.world.machine.boxes.colourAnswers.push_back(colour);
}

void AnswerPrint(const CommandLine& line) {
  PrintChoice choice;
  const bool hasNumber = line.Count() > 3;
  if (line[2] == "ok") {
    if (hasNumber) choice.copies = static_cast<int>(WholeNumber(line[3], 1, 9999));
  } else if (line[2] == "cancel" && !hasNumber) {
    choice.error = kPrintCancelled;
  } else if (line[2] == "error" && hasNumber) {
    choice.error = static_cast<int>(WholeNumber(line[3], 1, 65535));
  } else {
    throw ScriptError{"the printer dialog is answered by ok [COPIES], cancel or error N"};
  }
  line.world.machine.boxes.printAnswers.push_back(choice);
}

constexpr Command kAnswers[] = {
    {"box", 1, 1, "OK|Cancel", AnswerBox},
    {"colour", 1, 1, "R,G,B|cancel", AnswerColour},
    {"print", 1, 2, "ok [COPIES]|cancel|error N", AnswerPrint},
};

void AnswerNext(const CommandLine& line) {
  for (const Command& answer : kAnswers) {
    if (line[1] != answer.name) continue;
    CheckNumberOfWords(answer, line.Count() - 2);
    answer.run(line);
    return;
  }
  throw ScriptError{"nothing asks for an answer " + line[1] + ", but box, colour and print"};
}

// ---- what is seen of it ----

void Trace(const CommandLine& line) {
  const bool on = line[1] == "on";
  if (!on && line[1] != "off") throw ScriptError{"trace is on or off"};
  line.world.machine.windows.trace = on ? &line.world.out : nullptr;
}

bool TakePicture(const CommandLine& line) {
  ScriptHand& hand = line.world.hand;
  if (line[1] == "Clipboard") {
    const auto& bitmap = line.world.machine.pictures.clipboard;
    return bitmap && hand.Screenshot(*bitmap, line[2]);
  }
  Program& program = line.world.Running();
  const Found found = line.world.catalogue.FindWindow(program, line[1]);
  return found.control != nullptr && hand.Screenshot(program, static_cast<Window&>(*found.control), line[2]);
}

void Screenshot(const CommandLine& line) {
  if (TakePicture(line)) return;
  throw ScriptError{"there is no picture of " + line[1] +
                    ": pictures need widgets, and a window on show or a bitmap"};
}

}  // namespace

const std::vector<Command>& ProgramCommands() {
  static const std::vector<Command> kCommands = {
      {"start", 0, 1, "[TEXT]", Start},
      {"kill", 0, 0, "", Kill},
      {"advance", 1, 1, "MS", Advance},
      {"set", 2, kAnyNumber, "NAME VALUE", Set},
      {"call", 1, kAnyNumber, "NAME ARGUMENT...", Call},
      {"answer", 2, 3, "box|colour|print ANSWER", AnswerNext},
      {"trace", 1, 1, "on|off", Trace},
      {"screenshot", 2, 2, "WINDOW|Clipboard FILE", Screenshot},
  };
  return kCommands;
}

void CheckNumberOfWords(const Command& command, std::size_t words) {
  if (words >= command.least && words <= command.most) return;
  throw ScriptError{"wrong number of words: " + std::string(command.name) + " " + command.usage};
}

}  // namespace veldrin
