#include "base/XdgFolders.h"

#include <cstdlib>

namespace quillbrand {

namespace {

namespace fs = std::filesystem;

fs::path UserFolder(const char* variable, const char* belowHome) {
    fs::path named = Environment(variable);
    if (named.is_absolute())
        return named;
    const fs::path home = Environment("HOME");
    return home.is_absolute() ? home / belowHome : fs::path();
}

}  // namespace

std::string Environment(const char* name) {
    // There is one thread. NOLINTNEXTLINE(concurrency-mt-unsafe)
    const char* value = std::getenv(name);
    return value == nullptr ? std::string() : value;
}

fs::path XdgDataHome() {
    return UserFolder("XDG_DATA_HOME", ".local/share");
}

fs::path XdgConfigHome() {
    return UserFolder("XDG_CONFIG_HOME", ".config");
}

}  // namespace quillbrand
