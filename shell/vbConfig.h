#pragma once

#include <string>

#include "shell/Session.h"

/// The settings file, `IniPath`.
namespace quillbrand::vbConfig {

/// The text of a key, cut at its first NUL and without blanks around it; "" where the file or the
/// key does not exist. Throws Fault for a file that cannot be read.
std::string ReadIni(const Settings& settings, const std::string& section, const std::string& key);

/// Stores `value` under the key; every other line of the file stays as it is. Returns the value cut
/// and trimmed as ReadIni gives it. Throws Fault, with the old file untouched.
std::string WriteIni(const Settings& settings, const std::string& section, const std::string& key,
                     const std::string& value);

}  // namespace quillbrand::vbConfig
