#include "batch/Options.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <iomanip>
#include <limits>
#include <sstream>

#include "batch/Keys.h"
#include "batch/UsageError.h"

namespace quillbrand {

namespace {

/// The parser, and the one option that it only takes as text.
struct Parser {
    CLI::App app;
    Options options;
    std::string seed;

    Parser() {
        app.set_help_flag();
        // One file each, so that what follows stays a command.
        app.add_option("-f", options.scripts,
                       "read commands from FILE, one a line, before those given here; - is "
                       "standard input")
            ->type_name("FILE")
            ->allow_extra_args(false);
        app.add_option("--home", options.home, "the program folder")->type_name("DIR");
        app.add_option("--random-seed", seed, "a fixed sequence of random numbers, 0 to 4294967295")
            ->type_name("N");
        app.add_flag("--timings", options.timings,
                     "the wall time of each command, in milliseconds");
        app.add_flag("--quiet,-q", options.quiet, "no progress");
        app.add_option("--help,-h", options.helpWord, "this list, or one command alone")
            ->type_name("[WORD]")
            ->expected(0, 1);
        app.add_flag("--version", options.version, "the version");
        // Commands are what is left: the parser would take words in brackets apart.
        app.allow_extras();
    }
};

std::uint32_t ReadSeed(const std::string& text) {
    const auto number = ReadWhole(text);
    if (!number || *number < 0 || *number > std::numeric_limits<std::uint32_t>::max())
        throw UsageError("--random-seed " + text +
                         " is not allowed: a whole number from 0 to 4294967295");
    return static_cast<std::uint32_t>(*number);
}

void RequireFolder(const std::string& home) {
    std::error_code ignored;
    if (!std::filesystem::is_directory(home, ignored))
        throw UsageError("--home " + home + " is not allowed: there is no such folder");
}

}  // namespace

Options ParseOptions(int argc, const char* const* argv) {
    Parser parser;
    try {
        parser.app.parse(argc, argv);
    } catch (const CLI::ParseError& error) {
        throw UsageError(error.what());
    }
    parser.options.help = parser.app.count("--help") > 0;
    parser.options.commands = parser.app.remaining();
    for (const std::string& command : parser.options.commands)
        if (command.starts_with('-'))
            throw UsageError("unknown option " + command + "; --help lists all");
    if (parser.app.count("--home") > 0)
        RequireFolder(parser.options.home);
    if (parser.app.count("--random-seed") > 0)
        parser.options.randomSeed = ReadSeed(parser.seed);
    return std::move(parser.options);
}

std::string OptionsHelp() {
    const Parser parser;
    std::ostringstream help;
    for (const CLI::Option* option : parser.app.get_options()) {
        if (option->get_positional())
            continue;
        const std::string name = option->get_name(false, true) + " " + option->get_type_name();
        help << "  " << std::left << std::setw(18) << name << option->get_description() << "\n";
    }
    return help.str();
}

}  // namespace quillbrand
