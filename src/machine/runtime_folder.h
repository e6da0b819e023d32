// The folder of the user's session, for locks and working files: nobody else's, in memory as a rule, and
// gone with the session.
#pragma once

#include <QString>

namespace veldrin {

/// Whole path of the folder, without a separator at its end; empty where the system has none that is the
/// user's own.
QString UsersRuntimeFolder();

}  // namespace veldrin
