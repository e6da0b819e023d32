// The windows and controls of a program by the names that scripts use. What is not there now, an element of a
// control array or a window that is not loaded, is told from what never was by a blueprint of each window.
#pragma once

#include "script/script_names.h"
#include "workspace/program.h"

#include <map>
#include <memory>
#include <string>
#include <vector>

namespace veldrin {

struct SimulatedMachine;

/// What a name leads to.
struct Found {
  /// Null where it is not there now.
  Control* control = nullptr;
  /// One of its kind and name, for its slots.
  const Control* model = nullptr;
};

class ScriptCatalogue {
 public:
  ScriptCatalogue();
  ~ScriptCatalogue();

  static const std::vector<std::string>& WindowNames();
  static bool IsWindow(const std::string& name);

  /// The window's record, loaded or not; null where it has none. Throws ScriptError for an unknown name.
  static Window* FindRecord(Program& program, const std::string& name);

  /// The window as a control; there while it is loaded. Throws ScriptError for an unknown name.
  Found FindWindow(Program& program, const std::string& name);
  /// A control of a window. Without a subscript, element 0 of an array that has one. Throws ScriptError for
  /// an unknown name, a subscript where there is no array, and none where there is one.
  Found FindControl(Program& program, const std::string& window, const NamePart& part);
  /// Whether the window has, or had by its description, a control of this name.
  bool HasControl(Program& program, const std::string& window, const std::string& control);

 private:
  Window& Blueprint(const std::string& name);

  /// The blueprints' own world.
  std::unique_ptr<SimulatedMachine> machine_;
  std::unique_ptr<Desk> desk_;
  std::map<std::string, std::shared_ptr<Window>> blueprints_;
};

}  // namespace veldrin
