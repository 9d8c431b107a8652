#include "batch/Help.h"

#include <iomanip>
#include <sstream>

#include "batch/Command.h"
#include "batch/Options.h"

namespace quillbrand {

namespace {

constexpr const char* head =
    "quillbrand-batch [OPTIONS] COMMAND...\n"
    "\n"
    "Each COMMAND is one argument: a word, then key=value pairs. A value with blanks stands in\n"
    "double quotes. Everything is checked before anything runs.\n"
    "\n";

std::string KeyHelp(const Key& key) {
    std::string help = key.type.allowed;
    if (key.required)
        help += "; required";
    if (!key.fallbackText.empty())
        help += " (" + key.fallbackText + ")";
    return help;
}

}  // namespace

std::string HelpText() {
    std::ostringstream help;
    help << head << "Options:\n" << OptionsHelp() << "\nCommands, with the defaults in brackets:\n";
    for (const Command& command : AllCommands()) {
        help << "\n  " << std::left << std::setw(16) << command.word << command.summary << "\n";
        for (const Key& key : command.keys)
            help << "      " << std::setw(14) << key.name + "=" << KeyHelp(key) << "\n";
    }
    help << "\nExit status: 0 all done, 1 a command failed, 2 the command line is wrong.\n";
    return help.str();
}

}  // namespace quillbrand
