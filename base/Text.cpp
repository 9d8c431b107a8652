#include "base/Text.h"

#include <algorithm>

#include "base/Stdio.h"

namespace quillbrand {

std::string LowerCase(std::string_view text) {
    std::string lower(text);
    std::transform(lower.begin(), lower.end(), lower.begin(),
                   [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; });
    return lower;
}

bool EqualIgnoringCase(std::string_view a, std::string_view b) {
    return LowerCase(a) == LowerCase(b);
}

std::string TrimIni(std::string_view text) {
    return STDIO::TrimmedText(text.substr(0, text.find('\0')));
}

}  // namespace quillbrand
