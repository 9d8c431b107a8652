#include "base/Stdio.h"

#include <system_error>

#include "base/NumberText.h"

namespace quillbrand::STDIO {

bool FileExists(const std::filesystem::path& path) {
    std::error_code ignored;
    return !path.empty() && std::filesystem::exists(path, ignored);
}

bool NumericKeyFilter(std::string_view boxText, int key) {
    constexpr int backspace = 8;
    constexpr int enter = 13;
    if (key >= '0' && key <= '9')
        return true;
    if (key == ',')
        return boxText.find(',') == std::string_view::npos;
    return key == backspace || key == enter || key == '-';
}

double ClampTextBox(std::string& boxText, double high, double low) {
    const double value = ClampValue(low, high, Val(boxText));
    boxText = PlainText(value);
    return value;
}

std::string TrimmedText(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos)
        return {};
    return std::string(text.substr(first, text.find_last_not_of(' ') - first + 1));
}

}  // namespace quillbrand::STDIO
