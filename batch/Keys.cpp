#include "batch/Keys.h"

#include <cassert>

#include "batch/UsageError.h"

namespace quillbrand {

Key Key::Required() const {
    Key key = *this;
    key.required = true;
    return key;
}

Key Key::Repeats() const {
    Key key = *this;
    key.repeats = true;
    return key;
}

Key Key::Default(const std::string& text) const {
    Key key = Otherwise(text);
    key.fallback = type.read(text);
    assert(key.fallback);
    return key;
}

Key Key::Otherwise(const std::string& words) const {
    Key key = *this;
    key.fallbackText = words;
    return key;
}

Key Key::Answers(QuestionId id) const {
    Key key = *this;
    key.question = id;
    return key;
}

Key Key::Writes(FileKind kind) const {
    Key key = *this;
    key.writes = kind;
    return key;
}

Value Key::Read(const std::string& text) const {
    const auto value = type.read(text);
    if (!value)
        throw UsageError(name + "=" + text + " is not allowed: " + type.allowed);
    return *value;
}

}  // namespace quillbrand
