#pragma once

#include <optional>
#include <string>

namespace quillbrand {

/// The text of an INI file: sections in square brackets with lines key=value; lines that begin with
/// ";" or "#" are comments, and what makes no sense is passed over. Sections and keys are compared
/// without regard to case. Of keys that stand several times the first counts, in whichever of the
/// sections of that name it stands. The lines in front of the first header are the section "".

/// The value of a key, without the blanks on either side.
std::optional<std::string> IniValue(const std::string& text, const std::string& section,
                                    const std::string& key);

/// Gives a key its value. At most one line changes or is added; every other byte stays, comments,
/// line ends and lines that make no sense included. A key that is there keeps its spelling.
/// Neither a section nor a key may be empty or hold a line break.
void SetIniValue(std::string& text, const std::string& section, const std::string& key,
                 const std::string& value);

}  // namespace quillbrand
