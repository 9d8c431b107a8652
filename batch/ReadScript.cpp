#include <array>
#include <cerrno>
#include <cstdio>
#include <memory>
#include <system_error>

#include "batch/Script.h"
#include "batch/UsageError.h"

namespace quillbrand {

std::string NameOfScript(const std::string& file) {
    return file == "-" ? "standard input" : file;
}

/// Any kind of file will do here, a pipe included.
std::string ReadScript(const std::string& file) {
    using File = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;
    const File opened(file == "-" ? nullptr : std::fopen(file.c_str(), "rb"), std::fclose);
    std::FILE* const input = file == "-" ? stdin : opened.get();
    std::string text;
    std::array<char, 65536> part;
    std::size_t count = 1;
    while (input != nullptr && count > 0) {
        count = std::fread(part.data(), 1, part.size(), input);
        text.append(part.data(), count);
    }
    if (input == nullptr || std::ferror(input) != 0)
        throw UsageError("-f: cannot read " + NameOfScript(file) + ": " +
                         std::generic_category().message(errno));
    return text;
}

}  // namespace quillbrand
