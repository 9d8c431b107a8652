#pragma once

#include <string>

namespace quillbrand {

/// What --help prints: the options, and every command with its keys and their defaults.
std::string HelpText();

}  // namespace quillbrand
