#pragma once

#include <filesystem>
#include <string>

#include "base/RandomSource.h"
#include "shell/Session.h"

namespace quillbrand {

/// Brings a new session to the state that the main window has once it is loaded: the settings of
/// `programFolder` read, a flat terrain of the size they say, window -10..30, the list of the
/// Perlin sets, no file. Draws one number from `chance`, for the seed of the generator.
/// `startFile` is the program's argument; it counts only when it exists, and is not opened here.
/// A folder without Perlin sets gives an empty list. Throws Fault for settings or set
/// descriptions that cannot be read.
void SubMain(Session& session, const std::filesystem::path& programFolder,
             const std::string& startFile, RandomSource& chance);

}  // namespace quillbrand
