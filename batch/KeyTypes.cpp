#include "batch/KeyTypes.h"

#include <charconv>
#include <cmath>
#include <limits>
#include <sstream>

#include "base/NumberText.h"
#include "base/Picture.h"
#include "base/Stdio.h"
#include "base/Text.h"

namespace quillbrand {

namespace {

constexpr double mostSingle = std::numeric_limits<float>::max();

template <typename Parsed>
std::optional<Parsed> ReadAll(std::string_view text) {
    if (text.starts_with("+") && !text.starts_with("+-"))
        text.remove_prefix(1);
    Parsed value{};
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, value);
    if (result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return value;
}

template <typename Item, typename ToText>
std::string Listed(std::span<const Item> items, ToText toText) {
    std::string list;
    for (std::size_t i = 0; i < items.size(); ++i) {
        if (i > 0)
            list += i + 1 == items.size() ? " or " : ", ";
        list += toText(items[i]);
    }
    return list;
}

std::optional<Value> WholeWithin(const std::string& text, int low, int high) {
    const auto number = ReadWhole(text);
    if (!number || *number < low || *number > high)
        return std::nullopt;
    return static_cast<int>(*number);
}

std::optional<Value> ReadYesNo(const std::string& text) {
    if (EqualIgnoringCase(text, "yes"))
        return true;
    if (EqualIgnoringCase(text, "no"))
        return false;
    return std::nullopt;
}

/// The numbers of a text with commas between them; nothing where one is missing, is none, or does
/// not fit a single, in which the mouse tells places.
std::optional<std::vector<double>> ReadNumbers(std::string_view text) {
    std::vector<double> numbers;
    for (;;) {
        const auto comma = text.find(',');
        const auto number = ReadNumber(text.substr(0, comma));
        if (!number || std::abs(*number) > mostSingle)
            return std::nullopt;
        numbers.push_back(*number);
        if (comma == std::string_view::npos)
            return numbers;
        text.remove_prefix(comma + 1);
    }
}

std::optional<Value> ReadPoints(const std::string& text) {
    std::vector<PicturePoint> points;
    std::istringstream words(text);
    for (std::string word; words >> word;) {
        const auto numbers = ReadNumbers(word);
        if (!numbers || numbers->size() != 2)
            return std::nullopt;
        points.push_back({numbers->front(), numbers->back()});
    }
    return points.empty() ? std::nullopt : std::optional<Value>(std::move(points));
}

std::optional<Value> ReadArea(const std::string& text) {
    const auto numbers = ReadNumbers(text);
    if (!numbers || numbers->size() != 4)
        return std::nullopt;
    const auto& all = *numbers;
    return PictureArea{.from = {all[0], all[1]}, .to = {all[2], all[3]}};
}

std::optional<Value> ReadColour(const std::string& text) {
    int code = 0;
    const char* const end = text.data() + text.size();
    const auto result = std::from_chars(text.data(), end, code, 16);
    if (text.size() != 6 || text.front() == '-' || result.ec != std::errc() || result.ptr != end)
        return std::nullopt;
    return ColourOf(code >> 16, code >> 8 & 0xFF, code & 0xFF);
}

/// Captions as they are compared.
std::string Plain(std::string_view caption) {
    return LowerCase(STDIO::TrimmedText(caption));
}

}  // namespace

std::optional<double> ReadNumber(std::string_view text) {
    const auto number = ReadAll<double>(text);
    return number && std::isfinite(*number) ? number : std::nullopt;
}

std::optional<long long> ReadWhole(std::string_view text) {
    return ReadAll<long long>(text);
}

KeyType AnyText() {
    return {"a text", [](const std::string& text) { return std::optional<Value>(text); }};
}

KeyType FileName() {
    return {"a file name", [](const std::string& text) {
                return text.empty() ? std::nullopt : std::optional<Value>(text);
            }};
}

KeyType PictureName() {
    return {"a file name that ends in .png or .bmp", [](const std::string& text) {
                return IsPictureName(text) ? std::optional<Value>(text) : std::nullopt;
            }};
}

KeyType WholeNumber() {
    return WholeNumber(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
}

KeyType WholeNumber(int low, int high) {
    return {"a whole number from " + std::to_string(low) + " to " + std::to_string(high),
            [low, high](const std::string& text) { return WholeWithin(text, low, high); }};
}

KeyType Number() {
    return {"a number that a single float can hold", Number(-mostSingle, mostSingle).read};
}

KeyType Number(double low, double high) {
    return {"a number from " + ShortestText(low) + " to " + ShortestText(high),
            [low, high](const std::string& text) -> std::optional<Value> {
                const auto number = ReadNumber(text);
                if (!number || *number < low || *number > high)
                    return std::nullopt;
                return *number;
            }};
}

KeyType YesNo() {
    return {"yes or no", ReadYesNo};
}

KeyType PointList() {
    return {"points as \"x,y x,y ...\"", ReadPoints};
}

KeyType Area() {
    return {"an area as \"x1,y1,x2,y2\"", ReadArea};
}

KeyType ColourCode() {
    return {"a colour as six hexadecimal digits RRGGBB", ReadColour};
}

KeyType IndexOrAll(int low) {
    return {"a whole number from " + std::to_string(low) + " on, or all",
            [low](const std::string& text) {
                if (EqualIgnoringCase(text, "all"))
                    return std::optional<Value>(allOfThem);
                return WholeWithin(text, low, std::numeric_limits<int>::max());
            }};
}

KeyType NumberOrName(const std::string& thing, int low, int high) {
    return {"the name of " + thing + ", or its number from " + std::to_string(low) + " to " +
                std::to_string(high),
            [low, high](const std::string& text) -> std::optional<Value> {
                if (ReadWhole(text))
                    return WholeWithin(text, low, high);
                return text.empty() ? std::nullopt : std::optional<Value>(text);
            }};
}

KeyType OneOf(std::span<const int> numbers) {
    return {Listed(numbers, [](int number) { return std::to_string(number); }),
            [numbers](const std::string& text) -> std::optional<Value> {
                for (const int number : numbers)
                    if (ReadWhole(text) == number)
                        return number;
                return std::nullopt;
            }};
}

KeyType OneOf(std::span<const std::string_view> words) {
    return {Listed(words, [](std::string_view word) { return std::string(word); }),
            [words](const std::string& text) -> std::optional<Value> {
                for (const auto word : words)
                    if (EqualIgnoringCase(text, word))
                        return std::string(word);
                return std::nullopt;
            }};
}

KeyType Choice(std::span<const std::string_view> captions, int first) {
    const std::vector<std::string_view> all(captions.begin(), captions.end());
    const int last = first + static_cast<int>(all.size()) - 1;
    return {Listed(captions, [](std::string_view caption) { return STDIO::TrimmedText(caption); }) +
                ", or its number from " + std::to_string(first) + " to " + std::to_string(last),
            [all, first, last](const std::string& text) {
                for (std::size_t i = 0; i < all.size(); ++i)
                    if (Plain(all[i]) == Plain(text))
                        return std::optional<Value>(first + static_cast<int>(i));
                return WholeWithin(Plain(text), first, last);
            }};
}

}  // namespace quillbrand
