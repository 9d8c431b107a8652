#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillbrand {

/// The command line, its commands not yet parsed.
struct Options {
    std::vector<std::string> scripts;  ///< -f: files in their order; "-" is standard input
    std::string home;
    std::optional<std::uint32_t> randomSeed;
    bool timings = false;
    bool quiet = false;
    bool help = false;
    std::string helpWord;  ///< the command to tell of, or empty for all
    bool version = false;
    std::vector<std::string> commands;
};

/// Throws UsageError for an unknown option or a value that is not allowed.
Options ParseOptions(int argc, const char* const* argv);

/// The options as the help lists them, a line each.
std::string OptionsHelp();

}  // namespace quillbrand
