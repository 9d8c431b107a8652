#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "batch/Command.h"

namespace quillbrand {

/// A command with its arguments, ready to run.
struct Step {
    const Command* command;
    Arguments arguments;
    std::string place;  ///< where in a script it stands, or nothing
};

/// The step that an argument of the command line asks for. Throws UsageError for an unknown word
/// or key, a value that is not allowed, a required key that is missing, a key given twice.
Step ParseCommand(const std::string& argument);

/// The steps of a script: one command a line, `#` at the start of a word begins a comment, empty
/// lines count for nothing, nor does a byte order mark. `name` is what messages call the script.
/// Throws UsageError.
std::vector<Step> ParseScript(std::string_view text, const std::string& name);

/// What messages call a script file; "-" is standard input.
std::string NameOfScript(const std::string& file);

/// The text of a script file. Throws UsageError for one that cannot be
/// read to its end.
std::string ReadScript(const std::string& file);

}  // namespace quillbrand
