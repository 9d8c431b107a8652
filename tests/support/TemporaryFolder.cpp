#include "tests/support/TemporaryFolder.h"

#include <cstdlib>
#include <iterator>
#include <stdexcept>

namespace quillbrand {

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder() {
    std::string name = (fs::temp_directory_path() / "quillbrand-test-XXXXXX").string();
    if (mkdtemp(name.data()) == nullptr)
        throw std::runtime_error("no temporary folder");
    path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
}

int TemporaryFolder::Entries() const {
    return static_cast<int>(std::distance(fs::directory_iterator(path_), fs::directory_iterator()));
}

Bytes Contents(const fs::path& path) {
    return ReadFile(path, std::size_t{1} << 30);
}

std::string TextOf(const fs::path& path) {
    const Bytes bytes = Contents(path);
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

void WriteText(const fs::path& path, const std::string& text) {
    ReplaceFile(path, AsBytes(text));
}

}  // namespace quillbrand
