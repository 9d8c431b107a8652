#pragma once

#include <string>

namespace quillbrand {

/// Gives a key its value in the text of an INI file. At most one line changes or is added; every
/// other byte stays, comments, line ends and lines that make no sense included. Of keys that stand
/// several times the first is changed, in the spelling that it has. Sections and keys are compared
/// without regard to case, and neither may be empty or hold a line break.
void SetIniValue(std::string& text, const std::string& section, const std::string& key,
                 const std::string& value);

}  // namespace quillbrand
