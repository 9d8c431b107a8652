#include <algorithm>
#include <iterator>

#include "batch/Command.h"
#include "batch/UsageError.h"

namespace quillbrand {

namespace {

/// A command that writes a file takes the word to write over one of another kind.
void AddReplace(Command& command) {
    if (std::ranges::any_of(command.keys, [](const Key& key) { return key.writes.has_value(); }))
        command.keys.push_back(Key{"replace", YesNo()}.Default("no"));
}

}  // namespace

const std::vector<Command>& AllCommands() {
    static const std::vector<Command> table = [] {
        std::vector<Command> all;
        for (auto make : {TerrainCommandTable, FileCommandTable, HistoryCommandTable,
                          GeneratorCommandTable, EffectCommandTable, ElevatorCommandTable,
                          EditCommandTable, ViewCommandTable, PrintCommandTable}) {
            std::vector<Command> part = make();
            std::move(part.begin(), part.end(), std::back_inserter(all));
        }
        std::ranges::for_each(all, AddReplace);
        return all;
    }();
    return table;
}

const Command& FindCommand(const std::string& word) {
    for (const Command& command : AllCommands())
        if (command.word == word)
            return command;
    throw UsageError("unknown command; --help lists all", word);
}

}  // namespace quillbrand
