#pragma once

#include "base/Host.h"
#include "shell/Session.h"

namespace quillbrand {

/// "Start !": the effect `code` (1..12) with `strength` (0..10) on the whole grid and the heights
/// strictly between `zMin` and `zMax`. Throws Fault, with the heights as they were, for an empty
/// terrain and what the effect cannot do.
void StartEffect(Session& session, int code, float strength, Height zMin, Height zMax, Host& host);

}  // namespace quillbrand
