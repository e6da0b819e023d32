#include "workspace/program.h"

#include "workspace/files/kept_machine.h"

namespace veldrin {

Program::Program(Machine& theMachine) : machine(theMachine), files(theMachine.files), desk(theMachine) {}

Program::~Program() = default;

}  // namespace veldrin
