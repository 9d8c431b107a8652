#include "batch/Batch.h"

#include <cerrno>
#include <cstdio>
#include <system_error>

#include "base/Fault.h"

namespace quillbrand {

void Batch::Print(const std::string& text) {
    host.ClearLine();
    WriteOutput(text);
}

void WriteOutput(const std::string& text) {
    const bool written = std::fwrite(text.data(), 1, text.size(), stdout) == text.size();
    if (!written || std::fflush(stdout) != 0)
        throw Fault("cannot write standard output: " + std::generic_category().message(errno));
}

}  // namespace quillbrand
