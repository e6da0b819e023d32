// A simulated machine some of whose parts are others, which a test watches or lets fail.
#pragma once

#include "simulated/simulated_machine.h"

#include <type_traits>

namespace veldrin {

template <class Interface>
Interface& PartFor(Interface& own) {
  return own;
}

/// The first of the parts that offers the interface; the machine's own where none does.
template <class Interface, class Part, class... Parts>
Interface& PartFor(Interface& own, Part& part, Parts&... parts) {
  if constexpr (std::is_base_of_v<Interface, Part>) {
    return part;
  } else {
    return PartFor<Interface>(own, parts...);
  }
}

/// The machine with `parts` in the places of those of its own that offer the same.
template <class... Parts>
Machine MachineWith(SimulatedMachine& simulated, Parts&... parts) {
  const Machine& own = simulated.machine;
  return {
      PartFor(own.files, parts...),       PartFor(own.registry, parts...),  PartFor(own.profile, parts...),
      PartFor(own.environment, parts...), PartFor(own.instances, parts...), PartFor(own.screen, parts...),
      PartFor(own.windows, parts...),     PartFor(own.boxes, parts...),     PartFor(own.notices, parts...),
      PartFor(own.metrics, parts...),     PartFor(own.printer, parts...),   PartFor(own.pictures, parts...),
      PartFor(own.shell, parts...),       PartFor(own.sound, parts...),     PartFor(own.figures, parts...)};
}

}  // namespace veldrin
