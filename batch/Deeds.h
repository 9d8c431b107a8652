#pragma once

#include <vector>

#include "batch/Command.h"

namespace quillbrand {

/// A key that carries its deed. A command with such keys does what they say in the order given, and
/// each may stand any number of times.
template <typename Subject>
struct Deed {
    Key key;
    void (*act)(Subject&, const Value&);
};

/// The keys of `deeds`, behind `others`, for the table of commands.
template <typename Subject>
std::vector<Key> KeysOf(const std::vector<Deed<Subject>>& deeds, std::vector<Key> others = {}) {
    for (const Deed<Subject>& deed : deeds)
        others.push_back(deed.key.Repeats());
    return others;
}

/// Does to `subject` what was given; keys that carry no deed are passed over.
template <typename Subject>
void DoInOrder(const std::vector<Deed<Subject>>& deeds, Subject& subject, const Arguments& given) {
    for (const Argument& argument : given.InOrder())
        for (const Deed<Subject>& deed : deeds)
            if (deed.key.name == argument.key)
                deed.act(subject, argument.value);
}

}  // namespace quillbrand
