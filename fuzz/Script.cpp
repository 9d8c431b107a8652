// The batch program's scripts: what is taken keeps to the table of commands, and neither line ends
// nor a byte order mark matter.

#include "batch/Script.h"

#include <algorithm>

#include "batch/UsageError.h"
#include "fuzz/Target.h"

using namespace quillbrand;

namespace {

/// The steps, or nothing for a script that is refused.
std::optional<std::vector<Step>> Parse(const std::string& text) {
    try {
        return ParseScript(text, "script");
    } catch (const UsageError&) {
        return std::nullopt;
    }
}

void CheckStep(const Step& step) {
    const auto& given = step.arguments.InOrder();
    for (const Argument& argument : given)
        Require(std::ranges::count(step.command->keys, argument.key, &Key::name) == 1,
                "only keys of the command");
    for (const Key& key : step.command->keys) {
        const auto times = std::ranges::count(given, key.name, &Argument::key);
        Require(times <= 1 || key.repeats, "no key twice");
        Require(times >= 1 || (!key.required && !key.fallback), "every key that is needed");
    }
    Require(!step.command->needsAnyKey || !given.empty(), "a key at least");
}

bool Same(const Step& a, const Step& b) {
    return a.command == b.command && a.place == b.place &&
           std::ranges::equal(a.arguments.InOrder(), b.arguments.InOrder());
}

std::string WithCarriageReturns(const std::string& text) {
    std::string other;
    for (const char c : text)
        other += c == '\n' ? "\r\n" : std::string(1, c);
    return other;
}

void RequireSame(const std::optional<std::vector<Step>>& a,
                 const std::optional<std::vector<Step>>& b, const char* promise) {
    Require(a.has_value() == b.has_value(), promise);
    Require(!a || std::ranges::equal(*a, *b, Same), promise);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(reinterpret_cast<const char*>(data), size);
    const auto steps = Parse(text);
    if (steps)
        std::ranges::for_each(*steps, CheckStep);
    RequireSame(steps, Parse(WithCarriageReturns(text)), "line ends do not matter");
    if (!text.starts_with("\xEF"))
        RequireSame(steps, Parse("\xEF\xBB\xBF" + text), "a byte order mark does not matter");
    return 0;
}
