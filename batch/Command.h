#pragma once

#include <optional>
#include <string>
#include <vector>

#include "batch/Keys.h"

namespace quillbrand {

struct Batch;

/// A key of a command that runs, with its checked value.
struct Argument {
    std::string key;
    Value value;

    bool operator==(const Argument&) const = default;
};

/// What a command was given, in the order given, with the defaults of the table behind it.
class Arguments {
  public:
    explicit Arguments(std::vector<Argument> all) : all_(std::move(all)) {}

    const std::vector<Argument>& InOrder() const { return all_; }

    const Value* Find(const std::string& key) const {
        for (const Argument& argument : all_)
            if (argument.key == key)
                return &argument.value;
        return nullptr;
    }

    /// Requires: `key` is required or has a default, and its type gives a `Kind`.
    template <typename Kind>
    Kind Get(const std::string& key) const {
        return std::get<Kind>(*Find(key));
    }

    /// The same, or `otherwise` when the key was not given.
    template <typename Kind>
    Kind GetOr(const std::string& key, Kind otherwise) const {
        const Value* value = Find(key);
        return value == nullptr ? otherwise : std::get<Kind>(*value);
    }

  private:
    std::vector<Argument> all_;
};

/// A command of the program: everything that parsing it, running it and the help need.
struct Command {
    std::string word;
    std::string summary;         ///< for the help
    std::vector<Key> keys = {};  ///< `replace` joins those that write a file
    void (*run)(Batch&, const Arguments&);
    bool needsAnyKey = false;   ///< makes no sense without a key
    bool needsHistory = false;  ///< steps are kept only for a script that has such a command
};

/// Every command, in the order of the help.
const std::vector<Command>& AllCommands();

/// Throws UsageError for a word that is no command.
const Command& FindCommand(const std::string& word);

// The commands of each subject, for the table.
std::vector<Command> TerrainCommandTable();
std::vector<Command> FileCommandTable();
std::vector<Command> GeneratorCommandTable();
std::vector<Command> EffectCommandTable();
std::vector<Command> ElevatorCommandTable();
std::vector<Command> PrintCommandTable();
std::vector<Command> HistoryCommandTable();
std::vector<Command> EditCommandTable();
std::vector<Command> ViewCommandTable();

}  // namespace quillbrand
