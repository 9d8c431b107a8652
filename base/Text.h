#pragma once

#include <string>
#include <string_view>

namespace quillbrand {

/// `text` with the ASCII letters in lower case; the locale plays no part.
std::string LowerCase(std::string_view text);

bool EqualIgnoringCase(std::string_view a, std::string_view b);

/// Cut at the first NUL, then without blanks on either side.
std::string TrimIni(std::string_view text);

}  // namespace quillbrand
