#include "program/event_boundary.h"

namespace veldrin {

void RunEvent(Program& program, const std::function<void()>& event) {
  if (program.ended) return;
  ++program.eventDepth;
  try {
    event();
  } catch (const RuntimeFault& fault) {
    program.ended = true;
    program.endFault = fault.number;
    program.machine.boxes.Fault(fault.number);
  } catch (const EndOfProgram&) {
    program.ended = true;
  }
  --program.eventDepth;
  if (program.eventDepth > 0) {
    if (program.ended) throw EndOfProgram{};
    return;
  }
  program.desk.retired.clear();
}

}  // namespace veldrin
