// What happened before, as far as the rules must know it. Most of it are roads that the program is to offer
// and that lead between two states: each stands here with its reason, so that no rule takes it for a fault.
#pragma once

#include "tests/monkey/moment.h"
#include "tests/monkey/script_text.h"

#include <string>

namespace veldrin::monkey {

struct Memory {
  /// The mode under the words "LIST", "DATA", "QR" and "REF", which name a chooser and no mode.
  std::string mode;
  /// A request was typed: it is drawn when its box is left or takes a key of its own.
  bool requestTyped = false;
  /// The first plan was drawn while the word was still that of a machine without a plan: no baseline and no
  /// check line, until something draws it anew.
  bool firstPlan = false;
  /// A plan of the loaded machine was on show: until then the labels of the pairs are those of the machine
  /// before.
  bool planWasOnShow = false;
  /// A search that was begun outside of the request entry was cancelled, which makes the word "SPEED" without
  /// opening the entry.
  bool entryNotOpened = false;
  /// The request entry was closed with a forbidden pair, which enables saving and printing it.
  bool redThroughRequests = false;
  /// A plan was taken from a quick-ratio or reference search, which leaves Restore's button as it was.
  bool takenFromReference = false;
  /// The plan dialog was closed by its box, which leaves saving and printing enabled in the request entry.
  bool dialogClosed = false;

  /// Takes in one action and what it came to.
  void Learn(const Program& program, const Deed& deed, bool blocked, const Moment& before, const Moment& now);
};

/// Whether requests are entered in the mode.
bool IsRequestMode(const std::string& mode);
/// Whether the word names the chooser that a question waits to open.
bool NamesChooser(const std::string& mode);

}  // namespace veldrin::monkey
