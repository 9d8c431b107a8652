#include "batch/Batch.h"

#include <cerrno>
#include <cstdio>
#include <string_view>
#include <system_error>

#include "base/Fault.h"

namespace quillbrand {

void Batch::Print(const std::string& text) {
    host.ClearLine();
    WriteOutput(text);
}

std::string OnOneLine(const std::string& text) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string line;
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (code >= ' ' && code != 127)
            line += c;
        else
            line += {'\\', 'x', digits[code / 16], digits[code % 16]};
    }
    return line;
}

void WriteOutput(const std::string& text) {
    const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (!written || std::fflush(stdout) != 0)
        throw Fault("cannot write standard output: " + std::generic_category().message(errno));
}

}  // namespace quillbrand
