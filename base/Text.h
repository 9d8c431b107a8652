#pragma once

#include <string>
#include <string_view>

namespace quillbrand {

/// `text` with the ASCII letters in lower case; the locale plays no part.
std::string LowerCase(std::string_view text);

bool EqualIgnoringCase(std::string_view a, std::string_view b);

/// UTF-8 as 8-bit text (Latin-1), which names in files are. Throws Fault for letters beyond it.
std::string ToLatin1(const std::string& text);

/// Text of a file from another system as UTF-8: what is not valid UTF-8 counts as Latin-1.
std::string ToUtf8(const std::string& text);

/// Cut at the first NUL, then without blanks on either side.
std::string TrimIni(std::string_view text);

}  // namespace quillbrand
