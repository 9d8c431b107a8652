#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace quillbrand {

/// A place on a picture, in its units.
struct PicturePoint {
    double x;
    double y;
};

/// A checked value of a key: a switch, a whole number or choice, a number, a text, a list of
/// places.
using Value = std::variant<bool, int, double, std::string, std::vector<PicturePoint>>;

/// What values a key takes. `read` returns nothing for a text that is not allowed.
struct KeyType {
    std::string allowed;  ///< in words, for messages and the help
    std::function<std::optional<Value>(const std::string&)> read;
};

/// The whole of `text` as a number with a decimal point; nothing when it is none.
std::optional<double> ReadNumber(std::string_view text);
std::optional<long long> ReadWhole(std::string_view text);

KeyType AnyText();
KeyType FileName();
KeyType PictureName();  ///< a name that a picture can be written under
KeyType WholeNumber();  ///< of 32 bits
KeyType WholeNumber(int low, int high);
KeyType Number();  ///< that a single float can hold
KeyType Number(double low, double high);
KeyType YesNo();
KeyType PointList();  ///< one place or more, "x,y x,y ..."

/// One of a few whole numbers.
KeyType OneOf(std::span<const int> numbers);

/// One of a few words; the value is that word.
KeyType OneOf(std::span<const std::string_view> words);

/// A caption, without regard to case and outer blanks, or its number; captions are numbered from
/// `first` on, and the value is the number.
KeyType Choice(std::span<const std::string_view> captions, int first);

/// A key of a command.
struct Key {
    std::string name;
    KeyType type;
    bool required = false;
    bool repeats = false;  ///< may be given any number of times; the order matters
    std::optional<Value> fallback = std::nullopt;
    std::string fallbackText = {};  ///< the default as the help shows it

    Key Required() const;
    Key Repeats() const;

    /// The value when the key is not given; it must be allowed.
    Key Default(const std::string& text) const;

    /// A default that the command itself finds, in words.
    Key Otherwise(const std::string& words) const;

    /// Throws UsageError without a command, naming key, value and what is allowed.
    Value Read(const std::string& text) const;
};

}  // namespace quillbrand
