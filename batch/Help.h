#pragma once

#include <string>

namespace quillbrand {

/// What --help prints: the options, and every command with its keys and their defaults; or the
/// command `word` alone. Throws UsageError for a word that is no command.
std::string HelpText(const std::string& word);

}  // namespace quillbrand
