#include "simulated/simulated_machine.h"

namespace veldrin {

SimulatedMachine::SimulatedMachine() = default;

SimulatedMachine::~SimulatedMachine() = default;

}  // namespace veldrin
