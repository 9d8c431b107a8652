#pragma once

#include <filesystem>
#include <functional>
#include <string>

#include "base/Host.h"
#include "shell/Session.h"

namespace quillbrand {

/// The tool bar's "Terragen": asks whether to save, saves, and starts the renderer of the settings
/// on the document's file without waiting for it. No saves only what has no file yet, unscaled, as
/// `default.ter` in the current folder; Cancel does nothing.
///
/// `saveUnnamed` saves a document without a file as TER under a name that it asks for; where the
/// document has none afterwards, the user did not want one. What ends the command is a Fault with
/// the title of its message; the document may be saved by then.
void StartTerragen(Document& document, const Settings& settings, Host& host,
                   const std::function<void()>& saveUnnamed);

/// Starts the program `terragen.exe`, else `terragen`, of `folder` with "-t" and `file`, each an
/// argument of its own. What the system cannot run itself but is an `.exe` goes through `wine`.
/// Throws Fault when nothing could be started.
void StartRenderer(const std::filesystem::path& folder, const std::string& file);

}  // namespace quillbrand
