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
    "double quotes, in which a double quote is doubled. Everything is checked before anything\n"
    "runs.\n"
    "\n";

std::string KeyHelp(const Key& key) {
    std::string help = key.type.allowed;
    if (key.required)
        help += "; required";
    if (!key.fallbackText.empty())
        help += " (" + key.fallbackText + ")";
    return help;
}

std::string CommandHelp(const Command& command) {
    std::ostringstream help;
    help << "  " << std::left << std::setw(16) << command.word << command.summary << "\n";
    for (const Key& key : command.keys)
        help << "      " << std::setw(14) << key.name + "=" << KeyHelp(key) << "\n";
    return help.str();
}

std::string WholeHelp() {
    std::string help = head;
    help += "Options:\n" + OptionsHelp() + "\nCommands, with the defaults in brackets:\n";
    for (const Command& command : AllCommands())
        help += "\n" + CommandHelp(command);
    return help + "\nExit status: 0 all done, 1 a command failed, 2 the command line is wrong.\n";
}

}  // namespace

std::string HelpText(const std::string& word) {
    return word.empty() ? WholeHelp() : CommandHelp(FindCommand(word));
}

}  // namespace quillbrand
