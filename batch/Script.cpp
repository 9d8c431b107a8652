#include "batch/Script.h"

#include <algorithm>
#include <optional>
#include <sstream>
#include <string_view>

#include "batch/UsageError.h"

namespace quillbrand {

namespace {

constexpr std::string_view blanks = " \t\r\n";

/// Takes what stands in double quotes off the front of `text`, the quotes too, and appends it to
/// `word`. A doubled quote stands for one.
void TakeQuoted(std::string_view& text, std::string& word) {
    for (std::size_t i = 1; i < text.size(); ++i) {
        if (text[i] == '"' && text.substr(i + 1).starts_with('"')) {
            ++i;
        } else if (text[i] == '"') {
            text.remove_prefix(i + 1);
            return;
        }
        word += text[i];
    }
    throw UsageError("the quoted value " + word + " has no closing quote");
}

/// Takes the next word off the front of `text`; nothing at its end. Blanks inside double quotes
/// belong to the word.
std::optional<std::string> TakeWord(std::string_view& text, bool comments) {
    text.remove_prefix(std::min(text.find_first_not_of(blanks), text.size()));
    if (text.empty() || (comments && text.front() == '#'))
        return std::nullopt;
    std::string word;
    while (!text.empty() && blanks.find(text.front()) == std::string_view::npos) {
        if (text.front() == '"') {
            TakeQuoted(text, word);
        } else {
            word += text.front();
            text.remove_prefix(1);
        }
    }
    return word;
}

/// The keys of a command as a message lists them.
std::string KeysOf(const Command& command) {
    std::string names;
    for (const Key& key : command.keys)
        names += (names.empty() ? "" : ", ") + key.name;
    return names.empty() ? "none" : names;
}

const Key& FindKey(const Command& command, const std::string& name) {
    for (const Key& key : command.keys)
        if (key.name == name)
            return key;
    throw UsageError("unknown key " + name + "; it takes " + KeysOf(command));
}

Argument ReadArgument(const Command& command, const std::string& word) {
    const auto equals = word.find('=');
    if (equals == std::string::npos)
        throw UsageError(word + " is no key=value");
    const Key& key = FindKey(command, word.substr(0, equals));
    return {key.name, key.Read(word.substr(equals + 1))};
}

/// Checks what was given against the command's keys and adds the defaults.
Arguments Complete(const Command& command, std::vector<Argument> given) {
    if (command.needsAnyKey && given.empty())
        throw UsageError("a key is missing; it takes " + KeysOf(command));
    for (const Key& key : command.keys) {
        const auto times = std::count_if(given.begin(), given.end(),
                                         [&](const auto& other) { return other.key == key.name; });
        if (times > 1 && !key.repeats)
            throw UsageError("the key " + key.name + " is given twice");
        if (times > 0)
            continue;
        if (key.required)
            throw UsageError("the key " + key.name + " is missing: " + key.type.allowed);
        if (key.fallback)
            given.push_back({key.name, *key.fallback});
    }
    return Arguments(std::move(given));
}

/// One command, or nothing where the line has none.
std::optional<Step> ParseLine(std::string_view line, bool comments, const std::string& place) {
    std::string word;
    try {
        const auto first = TakeWord(line, comments);
        if (!first)
            return std::nullopt;
        word = *first;
        const Command& command = FindCommand(word);
        std::vector<Argument> given;
        while (const auto next = TakeWord(line, comments))
            given.push_back(ReadArgument(command, *next));
        return Step{&command, Complete(command, std::move(given)), place};
    } catch (const UsageError& error) {
        throw UsageError(error.what(), word, place);
    }
}

}  // namespace

Step ParseCommand(const std::string& argument) {
    auto step = ParseLine(argument, false, {});
    if (!step)
        throw UsageError("a command is empty");
    return std::move(*step);
}

std::vector<Step> ParseScript(std::string_view text, const std::string& name) {
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark))
        text.remove_prefix(byteOrderMark.size());
    if (text.find('\0') != std::string_view::npos)
        throw UsageError(name + " is no script: it holds a NUL");
    std::vector<Step> steps;
    std::istringstream lines{std::string(text)};
    std::string line;
    for (int number = 1; std::getline(lines, line); ++number) {
        const std::string place = "line " + std::to_string(number) + " of " + name;
        if (auto step = ParseLine(line, true, place))
            steps.push_back(std::move(*step));
    }
    return steps;
}

}  // namespace quillbrand
