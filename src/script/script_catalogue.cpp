#include "script/script_catalogue.h"

#include "script/script_error.h"
#include "script/script_suggest.h"
#include "simulated/simulated_machine.h"

#include <algorithm>

namespace veldrin {

namespace {

Window* RecordOf(Window& form) {
  return &form;
}

template <class Form>
Window* RecordOf(TransientWindow<Form>& form) {
  return form ? &*form : nullptr;
}

struct FormEntry {
  const char* name;
  Window* (*record)(Program&);
  std::shared_ptr<Window> (*make)(Desk&);
};

template <class Form>
std::shared_ptr<Window> Make(Desk& desk) {
  return std::make_shared<Form>(desk);
}

// clang-format off
constexpr FormEntry kForms[] = {
    {"Form1",  [](Program& p) { return RecordOf(p.form1); },  Make<Form1>},
    {"Form2",  [](Program& p) { return RecordOf(p.form2); },  Make<Form2>},
    {"Form3",  [](Program& p) { return RecordOf(p.form3); },  Make<Form3>},
    {"Form4",  [](Program& p) { return RecordOf(p.form4); },  Make<Form4>},
    {"Form5",  [](Program& p) { return RecordOf(p.form5); },  Make<Form5>},
    {"Form6",  [](Program& p) { return RecordOf(p.form6); },  Make<Form6>},
    {"Form7",  [](Program& p) { return RecordOf(p.form7); },  Make<Form7>},
    {"Form9",  [](Program& p) { return RecordOf(p.form9); },  Make<Form9>},
    {"Form10", [](Program& p) { return RecordOf(p.form10); }, Make<Form10>},
};
// clang-format on

const FormEntry& Entry(const std::string& name) {
  for (const FormEntry& form : kForms) {
    if (name == form.name) return form;
  }
  throw ScriptError{"there is no window " + name + Suggestion(name, ScriptCatalogue::WindowNames())};
}

std::vector<Control*> ControlsNamed(const Window& window, const std::string& name) {
  std::vector<Control*> named;
  for (Control* control : window.controls) {
    if (control->name == name) named.push_back(control);
  }
  return named;
}

Control* Element(const std::vector<Control*>& controls, int index) {
  const auto found = std::find_if(controls.begin(), controls.end(),
                                  [&](const Control* control) { return control->index == index; });
  return found == controls.end() ? nullptr : *found;
}

std::string UnknownControl(const Window& window, const NamePart& part) {
  std::vector<std::string> names;
  for (const Control* control : window.controls) names.push_back(control->name);
  return window.name + " has no control " + part.name + Suggestion(part.name, names);
}

/// The subscript that a name means. `controls` are all of its name.
int MeantIndex(const std::vector<Control*>& controls, const NamePart& part) {
  const bool isArray = controls.front()->index != Control::kNoIndex;
  if (part.indices.size() > 1 || (!isArray && !part.indices.empty())) {
    throw ScriptError{NameText(part) + (isArray ? " needs one subscript" : " is no control array")};
  }
  if (!part.indices.empty()) return part.indices[0];
  if (isArray && Element(controls, 0) == nullptr) throw ScriptError{part.name + " needs a subscript"};
  return isArray ? 0 : Control::kNoIndex;
}

}  // namespace

ScriptCatalogue::ScriptCatalogue() = default;
ScriptCatalogue::~ScriptCatalogue() = default;

const std::vector<std::string>& ScriptCatalogue::WindowNames() {
  static const std::vector<std::string> kNames = [] {
    std::vector<std::string> names;
    for (const FormEntry& form : kForms) names.emplace_back(form.name);
    return names;
  }();
  return kNames;
}

bool ScriptCatalogue::IsWindow(const std::string& name) {
  const std::vector<std::string>& names = WindowNames();
  return std::find(names.begin(), names.end(), name) != names.end();
}

Window* ScriptCatalogue::FindRecord(Program& program, const std::string& name) {
  return Entry(name).record(program);
}

Window& ScriptCatalogue::Blueprint(const std::string& name) {
  if (!machine_) {
    machine_ = std::make_unique<SimulatedMachine>();
    desk_ = std::make_unique<Desk>(machine_->machine);
  }
  std::shared_ptr<Window>& blueprint = blueprints_[name];
  if (!blueprint) blueprint = Entry(name).make(*desk_);
  return *blueprint;
}

Found ScriptCatalogue::FindWindow(Program& program, const std::string& name) {
  Window* const record = FindRecord(program, name);
  if (record != nullptr && record->loaded) return {record, record};
  return {nullptr, record != nullptr ? record : &Blueprint(name)};
}

Found ScriptCatalogue::FindControl(Program& program, const std::string& window, const NamePart& part) {
  Window* const record = FindRecord(program, window);
  if (record != nullptr && record->loaded) {
    const std::vector<Control*> controls = ControlsNamed(*record, part.name);
    if (!controls.empty() && !part.indices.empty()) {
      Control* const element = Element(controls, MeantIndex(controls, part));
      return {element, element != nullptr ? element : controls.front()};
    }
    if (!controls.empty()) {
      // Which subscript is meant does not depend on the elements that are there now.
      const int index = MeantIndex(ControlsNamed(Blueprint(window), part.name), part);
      return {Element(controls, index), controls.front()};
    }
  }
  const std::vector<Control*> controls = ControlsNamed(Blueprint(window), part.name);
  if (controls.empty()) throw ScriptError{UnknownControl(Blueprint(window), part)};
  MeantIndex(controls, part);
  return {nullptr, controls.front()};
}

bool ScriptCatalogue::HasControl(Program& program, const std::string& window, const std::string& control) {
  const Window* const record = FindRecord(program, window);
  return (record != nullptr && !ControlsNamed(*record, control).empty()) ||
         !ControlsNamed(Blueprint(window), control).empty();
}

}  // namespace veldrin
