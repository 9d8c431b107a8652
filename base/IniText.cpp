#include "base/IniText.h"

#include <optional>

#include "base/Text.h"

namespace quillbrand {

namespace {

constexpr auto npos = std::string::npos;
constexpr const char* blanks = " \t\r\n";
constexpr const char* lineEnds = "\r\n";

/// Where the line of `place` ends, in front of its line end.
std::size_t LineEnd(const std::string& text, std::size_t place) {
    return std::min(text.find_first_of(lineEnds, place), text.size());
}

/// The text of begin..end without blanks behind it.
std::string Name(const std::string& text, std::size_t begin, std::size_t end) {
    const std::string name = text.substr(begin, end - begin);
    return name.substr(0, name.find_last_not_of(blanks) + 1);
}

/// A header of a section, or a key with its value.
struct Entry {
    std::string section;  ///< in force from here on
    std::string key;      ///< empty for a header
    std::size_t value = 0;
    std::size_t end = 0;  ///< of the line, and of the value
};

/// Goes through a text entry by entry.
class Scanner {
  public:
    explicit Scanner(const std::string& text) : text_(text) {
        if (text.starts_with("\xef\xbb\xbf"))
            place_ = 3;
    }

    std::optional<Entry> Next() {
        while ((place_ = text_.find_first_not_of(blanks, place_)) != npos) {
            const char first = text_[place_];
            if (first == '[' ? ReadHeader() : first != ';' && first != '#' && ReadKey())
                return entry_;
            place_ = LineEnd(text_, place_);
        }
        return std::nullopt;
    }

  private:
    /// The name may begin behind line ends.
    bool ReadHeader() {
        const std::size_t begin = text_.find_first_not_of(blanks, place_ + 1);
        if (begin == npos)
            return false;
        place_ = text_.find_first_of("]\r\n", begin);
        if (place_ == npos || text_[place_] != ']') {
            place_ = std::min(place_, text_.size());
            // What follows belongs to a section that nobody can name.
            entry_.section = "\n";
            return false;
        }
        entry_.section = Name(text_, begin, place_);
        entry_.key.clear();
        entry_.end = place_ = LineEnd(text_, place_);
        return true;
    }

    bool ReadKey() {
        const std::size_t end = LineEnd(text_, place_);
        const std::size_t equals = text_.find('=', place_);
        if (equals >= end || equals == place_)
            return false;
        entry_.key = Name(text_, place_, equals);
        entry_.value = equals + 1;
        entry_.end = place_ = end;
        return true;
    }

    const std::string& text_;
    std::size_t place_ = 0;
    Entry entry_;
};

/// What ends the lines of a text: what ends its first one.
std::string LineEndOf(const std::string& text) {
    const std::size_t end = text.find_first_of(lineEnds);
    if (end == npos)
        return "\n";
    return text.substr(end, text.compare(end, 2, "\r\n") == 0 ? 2 : 1);
}

}  // namespace

std::optional<std::string> IniValue(const std::string& text, const std::string& section,
                                    const std::string& key) {
    Scanner scanner(text);
    while (const auto entry = scanner.Next())
        if (!entry->key.empty() && EqualIgnoringCase(entry->section, section) &&
            EqualIgnoringCase(entry->key, key)) {
            const std::size_t begin = text.find_first_not_of(blanks, entry->value);
            return begin < entry->end ? Name(text, begin, entry->end) : std::string();
        }
    return std::nullopt;
}

void SetIniValue(std::string& text, const std::string& section, const std::string& key,
                 const std::string& value) {
    std::optional<std::size_t> behind;
    bool isFirst = false;
    Scanner scanner(text);
    while (const auto entry = scanner.Next()) {
        const bool matches = EqualIgnoringCase(entry->section, section);
        if (matches && EqualIgnoringCase(entry->key, key)) {
            text.replace(entry->value, entry->end - entry->value, value);
            return;
        }
        // The section's last line, where it stands first.
        isFirst = matches && (isFirst || !behind);
        if (isFirst)
            behind = entry->end;
    }

    const std::string lineEnd = LineEndOf(text);
    if (behind) {
        text.insert(*behind, lineEnd + key + "=" + value);
        return;
    }
    if (!text.empty() && text.find_last_of(lineEnds) != text.size() - 1)
        text += lineEnd;
    text += text.empty() ? "" : lineEnd;
    // An open bracket at the end would take the new header for its name.
    const std::size_t last = text.find_last_not_of(blanks);
    if (last != npos && text[last] == '[')
        text += ";" + lineEnd;
    text += "[" + section + "]" + lineEnd + key + "=" + value + lineEnd;
}

}  // namespace quillbrand
