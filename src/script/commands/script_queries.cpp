#include "script/commands/script_queries.h"

#include "runtime/fault.h"
#include "script/script_error.h"
#include "script/script_suggest.h"
#include "script/variables.h"
#include "simulated/printed_values.h"
#include "workspace/language.h"

#include <algorithm>

namespace veldrin {

namespace {

// Questions of one word beside windows and variables.

Answer AskLog(ScriptWorld& world) {
  return LinesAnswer(world.machine.log.lines);
}

Answer AskBoxes(ScriptWorld& world) {
  return {ValueText(static_cast<int>(world.machine.boxes.shown.size())), {}};
}

Answer AskBeeps(ScriptWorld& world) {
  return {ValueText(world.machine.log.beeps), {}};
}

Answer AskFlashes(ScriptWorld& world) {
  return {ValueText(world.machine.log.flashes), {}};
}

Answer AskNotices(ScriptWorld& world) {
  return {ValueText(static_cast<int>(world.machine.notices.told.size())), {}};
}

Answer AskBlocked(ScriptWorld& world) {
  return {ValueText(world.blocked), {}};
}

Answer AskEnded(ScriptWorld& world) {
  if (!world.HasEnded()) return {"no", {}};
  const int fault = world.Asked().endFault;
  return {fault == 0 ? "end" : "fault " + std::to_string(fault), {}};
}

Answer AskResult(ScriptWorld& world) {
  return {world.result, {}};
}

struct PlainQuestion {
  const char* name;
  Answer (*ask)(ScriptWorld& world);
};

constexpr PlainQuestion kPlainQuestions[] = {
    {"log", AskLog},         {"boxes", AskBoxes}, {"beeps", AskBeeps},   {"flashes", AskFlashes},
    {"blocked", AskBlocked}, {"ended", AskEnded}, {"Result", AskResult}, {"notices", AskNotices},
};

/// box(K).Icon, .Title, .Text and .Answer.
Answer AskBox(ScriptWorld& world, const ScriptName& name) {
  struct Field {
    const char* name;
    std::string ShownBox::*text;
  };
  static constexpr Field kFields[] = {{"Icon", &ShownBox::icon},
                                      {"Title", &ShownBox::title},
                                      {"Text", &ShownBox::text},
                                      {"Answer", &ShownBox::answer}};
  if (name.size() == 2 && name[0].indices.size() == 1 && name[1].indices.empty()) {
    const std::vector<ShownBox>& shown = world.machine.boxes.shown;
    const auto place = static_cast<std::size_t>(name[0].indices[0]) - 1;  // 0 and below lie beyond the end
    for (const Field& field : kFields) {
      if (name[1].name == field.name) return {place < shown.size() ? shown[place].*field.text : kNone, {}};
    }
  }
  throw ScriptError{NameText(name) + ": a box is asked as box(K).Icon, .Title, .Text or .Answer"};
}

const char* SeverityWord(Severity severity) {
  switch (severity) {
    case Severity::Warning:
      return "warning";
    case Severity::Failure:
      return "failure";
    case Severity::Information:
      break;
  }
  return "information";
}

std::string NoticeField(const Notice& notice, const std::string& field, bool japanese) {
  if (field == "Text") return notice.text.In(japanese);
  if (field == "Severity") return SeverityWord(notice.severity);
  std::string captions;
  for (const NoticeAction& action : notice.actions) {
    captions += (&action == &notice.actions.front() ? "" : ",") + action.caption.In(japanese);
  }
  return captions;
}

/// notice(K).Text, .Severity and .Actions, from 1, or from the end when negative.
Answer AskNotice(ScriptWorld& world, const ScriptName& name) {
  const bool asked = name.size() == 2 && name[0].indices.size() == 1 && name[1].indices.empty();
  const std::string field = asked ? name[1].name : "";
  if (field != "Text" && field != "Severity" && field != "Actions") {
    throw ScriptError{NameText(name) + ": a notice is asked as notice(K).Text, .Severity or .Actions"};
  }
  const std::vector<Notice>& told = world.machine.notices.told;
  const int index = name[0].indices[0];
  const int place = index < 0 ? static_cast<int>(told.size()) + index : index - 1;
  if (place < 0 || place >= static_cast<int>(told.size())) return {kNone, {}};
  const bool japanese = SpeaksJapanese(world.Asked().workspace);
  return {NoticeField(told[static_cast<std::size_t>(place)], field, japanese), {}};
}

/// Printer and Clipboard, in lines.
Answer AskDevice(ScriptWorld& world, const ScriptName& name) {
  const bool isPrinter = name[0].name == "Printer";
  SimulatedMachine& machine = world.machine;
  if (name.size() == 2 && name[0].indices.empty()) {
    const NamePart& slot = name[1];
    if (isPrinter && slot.name == "Documents" && slot.indices.empty()) {
      return {std::to_string(machine.printer.documents.size()), {}};
    }
    const bool subscripts = slot.indices.size() <= (slot.name == "Drawing" ? 1 : 0);
    if (IsDrawingSlot(slot.name) && subscripts) {
      if (isPrinter) return DrawingAnswer(DrawingLines(machine.printer.Drawing()), slot);
      const auto& clipboard = machine.pictures.clipboard;
      return DrawingAnswer(clipboard ? clipboard->Lines() : std::vector<std::string>(), slot);
    }
  }
  throw ScriptError{NameText(name) + " is unknown - " + name[0].name + " has Drawing, Drawing(k)" +
                    (isPrinter ? ", DrawingCount and Documents" : " and DrawingCount")};
}

Answer AskSlot(ScriptWorld& world, const ScriptName& name) {
  Program& program = world.Asked();
  const std::string& window = name[0].name;
  if (!name[0].indices.empty()) throw ScriptError{window + " has no subscripts"};
  if (name.size() == 1) throw ScriptError{window + " is a window: one of its slots can be asked"};
  if (name.size() > 3) throw ScriptError{NameText(name) + " has too many parts"};
  Found found;
  if (name.size() == 3) {
    found = world.catalogue.FindControl(program, window, name[1]);
  } else {
    found = world.catalogue.FindWindow(program, window);
    const bool isSlot = found.model->FindSlot(name[1].name) != nullptr;
    if (!isSlot && world.catalogue.HasControl(program, window, name[1].name)) {
      throw ScriptError{NameText(name) + " is a control: one of its slots can be asked"};
    }
  }
  Answer answer = ReadSlot(program, found, name.back());
  if (found.control != nullptr) {
    const std::optional<std::string> shown = world.hand.Shown(*found.control, NameText(name.back()));
    if (shown && *shown != answer.text) world.mismatches.push_back({NameText(name), answer.text, *shown});
  }
  return answer;
}

[[noreturn]] void FailUnknown(ScriptWorld& world, const std::string& name) {
  std::vector<std::string> known = VariableNames(world.Asked());
  const std::vector<std::string>& windows = ScriptCatalogue::WindowNames();
  known.insert(known.end(), windows.begin(), windows.end());
  for (const PlainQuestion& question : kPlainQuestions) known.emplace_back(question.name);
  for (const char* other : {"file", "files", "registry", "box", "notice", "Printer", "Clipboard"}) {
    known.emplace_back(other);
  }
  throw ScriptError{"unknown name " + name + Suggestion(name, known)};
}

Answer AskName(ScriptWorld& world, const ScriptName& name) {
  const NamePart& first = name[0];
  for (const PlainQuestion& question : kPlainQuestions) {
    if (first.name == question.name && first.indices.empty() && name.size() == 1) return question.ask(world);
  }
  if (first.name == "box") return AskBox(world, name);
  if (first.name == "notice") return AskNotice(world, name);
  if (first.name == "Printer" || first.name == "Clipboard") return AskDevice(world, name);
  if (ScriptCatalogue::IsWindow(first.name)) return AskSlot(world, name);
  if (!IsVariable(world.Asked(), first.name)) FailUnknown(world, first.name);
  return {VariableText(FindVariable(world.Asked(), name)), {}};
}

// Questions of several words.

Answer AskFile(ScriptWorld& world, const std::vector<std::string>& arguments) {
  return {world.machine.files.Text(arguments[0]).value_or(kNone), {}};
}

Answer AskFiles(ScriptWorld& world, const std::vector<std::string>& arguments) {
  std::string names;
  for (const std::string& name : world.machine.files.Matches(arguments[0])) {
    names += (names.empty() ? "" : ",") + name;
  }
  return {names, {}};
}

Answer AskRegistry(ScriptWorld& world, const std::vector<std::string>& arguments) {
  return {world.machine.registry.Read(RootOf(arguments[0]), arguments[1], arguments[2]).value_or(""), {}};
}

struct LongQuestion {
  const char* name;
  std::size_t arguments;
  const char* usage;
  Answer (*ask)(ScriptWorld& world, const std::vector<std::string>& arguments);
};

constexpr LongQuestion kLongQuestions[] = {
    {"file", 1, "file PATH", AskFile},
    {"files", 1, "files PATTERN", AskFiles},
    {"registry", 3, "registry ROOT KEY NAME", AskRegistry},
};

}  // namespace

RegistryRoot RootOf(const std::string& word) {
  if (word == "HKCU") return RegistryRoot::CurrentUser;
  if (word == "HKCR") return RegistryRoot::ClassesRoot;
  if (word == "HKLM") return RegistryRoot::LocalMachine;
  throw ScriptError{"\"" + word + "\" is no root of the registry: HKCU, HKCR or HKLM"};
}

std::vector<Asked> Ask(ScriptWorld& world, const std::vector<Word>& words, std::size_t& at) {
  if (at >= words.size()) throw ScriptError{"a name is missing"};
  const Word& word = words[at++];
  for (const LongQuestion& question : kLongQuestions) {
    if (word.text != question.name) continue;
    std::vector<std::string> arguments;
    std::string name = word.source;
    for (; arguments.size() < question.arguments; ++at) {
      if (at >= words.size()) throw ScriptError{"words are missing: " + std::string(question.usage)};
      arguments.push_back(words[at].text);
      name += " " + words[at].source;
    }
    return {{name, question.ask(world, arguments)}};
  }
  std::vector<Asked> all;
  for (const ScriptName& name : ParseNames(word.text)) all.push_back({NameText(name), AskName(world, name)});
  return all;
}

}  // namespace veldrin
