#include "program/event_boundary.h"

#include "runtime/fault.h"

#include <exception>
#include <new>

namespace veldrin {

namespace {

void EndWith(Program& program, int fault) {
  program.ended = true;
  program.endFault = fault;
  program.machine.boxes.Fault(fault);
}

}  // namespace

void RunEvent(Program& program, const std::function<void()>& event) {
  if (program.ended) return;
  ++program.eventDepth;
  try {
    event();
  } catch (const RuntimeFault& fault) {
    EndWith(program, fault.number);
  } catch (const EndOfProgram&) {
    program.ended = true;
  } catch (const std::bad_alloc&) {
    EndWith(program, kFaultOutOfMemory);
  } catch (const std::exception&) {
    EndWith(program, kFaultInternal);
  }
  --program.eventDepth;
  if (program.eventDepth > 0) {
    if (program.ended) throw EndOfProgram{};
    return;
  }
  program.desk.retired.clear();
}

}  // namespace veldrin
