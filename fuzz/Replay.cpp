// The main of a fuzz target in the normal tests: feeds it every file of a folder.

#include <algorithm>
#include <filesystem>
#include <limits>
#include <vector>

#include "base/Files.h"
#include "fuzz/Target.h"

namespace {

namespace fs = std::filesystem;

int Replay(const fs::path& folder) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(folder))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    for (const fs::path& file : files) {
        std::printf("%s\n", file.c_str());
        std::fflush(stdout);
        const auto bytes = quillbrand::ReadFile(file, std::numeric_limits<std::size_t>::max());
        LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    }
    std::printf("%zu files\n", files.size());
    return files.empty() ? EXIT_FAILURE : EXIT_SUCCESS;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "the folder of the inputs is missing\n");
        return EXIT_FAILURE;
    }
    try {
        return Replay(argv[1]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return EXIT_FAILURE;
    }
}
