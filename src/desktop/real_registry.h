// The registry that this system has.
#pragma once

#include "desktop/real_settings_registry.h"
#include "desktop/real_windows_registry.h"

namespace veldrin {

#ifdef _WIN32
using RealRegistry = WindowsRegistry;
#else
using RealRegistry = SettingsRegistry;
#endif

}  // namespace veldrin
