#include "machine/real_machine.h"

namespace veldrin {

RealMachine::RealMachine(Windows& windows, TextMetrics& metrics)
    : printer(metrics), machine{files,   registry, profile, environment, instances, screen, windows, boxes,
                                notices, metrics,  printer, pictures,    shell,     sound,  figures} {}

}  // namespace veldrin
