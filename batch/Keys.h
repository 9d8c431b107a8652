#pragma once

#include <optional>
#include <string>

#include "base/Host.h"
#include "batch/FileKinds.h"
#include "batch/KeyTypes.h"

namespace quillbrand {

/// A key of a command.
struct Key {
    std::string name;
    KeyType type;
    bool required = false;
    bool repeats = false;  ///< may be given any number of times; the order matters
    std::optional<Value> fallback = std::nullopt;
    std::string fallbackText = {};                      ///< the default as the help shows it
    std::optional<QuestionId> question = std::nullopt;  ///< what the switch answers
    std::optional<FileKind> writes = std::nullopt;      ///< what the command makes of the file

    Key Required() const;
    Key Repeats() const;

    /// The value when the key is not given; it must be allowed.
    Key Default(const std::string& text) const;

    /// A default that the command itself finds, in words.
    Key Otherwise(const std::string& words) const;

    /// The switch is the answer to this question.
    Key Answers(QuestionId id) const;

    /// The command writes the file that the key names.
    Key Writes(FileKind kind) const;

    /// Throws UsageError without a command, naming key, value and what is allowed.
    Value Read(const std::string& text) const;
};

}  // namespace quillbrand
