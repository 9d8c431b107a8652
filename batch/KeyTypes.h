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

    bool operator==(const PicturePoint&) const = default;
};

/// Two corners of a frame, as they were given.
struct PictureArea {
    PicturePoint from;
    PicturePoint to;

    bool operator==(const PictureArea&) const = default;
};

/// A checked value of a key: a switch, a whole number or choice, a number, a text, a list of
/// places, an area.
using Value = std::variant<bool, int, double, std::string, std::vector<PicturePoint>, PictureArea>;

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
KeyType PointList();   ///< one place or more, "x,y x,y ..."
KeyType Area();        ///< "x1,y1,x2,y2"
KeyType ColourCode();  ///< six hexadecimal digits RRGGBB; the value is a Colour

/// A whole number of at least `low`, or the word "all", which reads as `allOfThem`.
KeyType IndexOrAll(int low);
constexpr int allOfThem = -1;

/// `thing` by its number from `low` to `high`, which is the value, or by its name: any other text.
KeyType NumberOrName(const std::string& thing, int low, int high);

/// One of a few whole numbers.
KeyType OneOf(std::span<const int> numbers);

/// One of a few words; the value is that word.
KeyType OneOf(std::span<const std::string_view> words);

/// A caption, without regard to case and outer blanks, or its number; captions are numbered from
/// `first` on, and the value is the number.
KeyType Choice(std::span<const std::string_view> captions, int first);

}  // namespace quillbrand
