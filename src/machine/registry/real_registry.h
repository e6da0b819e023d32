// The registry that this system has.
#pragma once

#include "machine/registry/real_settings_registry.h"
#include "machine/registry/real_windows_registry.h"

namespace veldrin {

#ifdef _WIN32
using RealRegistry = WindowsRegistry;
#else
using RealRegistry = SettingsRegistry;
#endif

}  // namespace veldrin
