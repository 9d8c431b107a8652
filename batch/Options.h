#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace quillbrand {

/// The command line, its commands not yet parsed.
struct Options {
    std::optional<std::string> script;  ///< -f: a file, or "-" for standard input
    std::string home;
    std::optional<std::uint32_t> randomSeed;
    bool timings = false;
    bool quiet = false;
    bool help = false;
    bool version = false;
    std::vector<std::string> commands;
};

/// Throws UsageError for an unknown option or a value that is not allowed.
Options ParseOptions(int argc, const char* const* argv);

/// The options as the help lists them, a line each.
std::string OptionsHelp();

}  // namespace quillbrand
