// What the desktop says when the settings' store makes trouble.
#pragma once

#include "machine/registry/settings_trouble.h"
#include "platform/notices.h"
#include "workspace/settings.h"

#include <string>

namespace veldrin {

/// For the strip: a file that cannot be written, or one that was damaged.
Notice SettingsNotice(const SettingsTrouble& trouble);

/// For the box of a fault at the start: which value it was, what it holds and where it stands.
BothLanguages BadSettingWords(const StoredValue& bad, const std::string& place);

}  // namespace veldrin
