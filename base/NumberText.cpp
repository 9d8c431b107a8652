#include "base/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "base/Numbers.h"

namespace quillbrand {

namespace {

template <typename Number>
std::string Shortest(Number number) {
    std::array<char, 64> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number);
    return {buffer.data(), result.ptr};
}

template <typename Number>
std::string Plain(Number number) {
    const double size = std::fabs(static_cast<double>(number));
    if (number != 0 && !(size >= 1e-5 && size < 1e15))
        return Shortest(number);
    std::array<char, 64> buffer;
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), number,
                                      std::chars_format::fixed);
    return {buffer.data(), result.ptr};
}

/// Whole part and decimals of |number| with exactly `decimals` digits behind the point.
std::pair<std::string, std::string> Digits(double number, std::size_t decimals) {
    std::array<char, 400> buffer;
    const int length = std::snprintf(buffer.data(), buffer.size(), "%.*f",
                                     static_cast<int>(decimals), std::fabs(number));
    const std::string text(buffer.data(), static_cast<std::size_t>(length));
    // The C library writes the locale's decimal mark, one character wide.
    if (decimals == 0)
        return {text, {}};
    return {text.substr(0, text.size() - decimals - 1), text.substr(text.size() - decimals)};
}

bool IsPlaceholder(char c) {
    return c == '#' || c == '0' || c == '.';
}

std::string WholePart(std::string digits, std::string_view pattern) {
    if (digits == "0")
        digits.clear();
    const auto firstZero = pattern.find('0');
    const std::size_t least = firstZero == std::string_view::npos ? 0 : pattern.size() - firstZero;
    if (digits.size() < least)
        digits.insert(0, least - digits.size(), '0');
    return digits;
}

std::string DecimalPart(std::string digits, std::string_view pattern) {
    const auto lastZero = pattern.rfind('0');
    const std::size_t least = lastZero == std::string_view::npos ? 0 : lastZero + 1;
    while (digits.size() > least && digits.back() == '0')
        digits.pop_back();
    return digits;
}

}  // namespace

std::string Str(double number) {
    return number < 0 ? PlainText(number) : " " + PlainText(number);
}

double Val(std::string_view text) {
    const auto start = text.find_first_not_of(" \t");
    if (start == std::string_view::npos)
        return 0;
    text.remove_prefix(start);
    if (text.front() == '+') {
        text.remove_prefix(1);
        if (!text.empty() && text.front() == '-')
            return 0;
    }
    // Words such as "inf" and "nan" are no numbers here.
    const auto first = text.find_first_not_of('-');
    if (first == std::string_view::npos ||
        (text[first] != '.' && (text[first] < '0' || text[first] > '9')))
        return 0;
    double value = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), value);
    return result.ec == std::errc() ? value : 0;
}

int ClampedVal(std::string_view text, int low, int high) {
    return static_cast<int>(RoundHalfEven(std::clamp<double>(Val(text), low, high)));
}

std::string ShortestText(float number) {
    return Shortest(number);
}

std::string ShortestText(double number) {
    return Shortest(number);
}

std::string PlainText(float number) {
    return Plain(number);
}

std::string PlainText(double number) {
    return Plain(number);
}

std::string Format(double number, std::string_view pattern) {
    if (!std::isfinite(number))
        throw Fault("overflow: a number without a value cannot be shown");
    if (pattern.find('%') != std::string_view::npos)
        number *= 100;
    const auto begin = std::find_if(pattern.begin(), pattern.end(), IsPlaceholder);
    const auto end = std::find_if_not(begin, pattern.end(), IsPlaceholder);
    const std::string_view places(begin, end);
    const auto point = places.find('.');
    const bool hasPoint = point != std::string_view::npos;
    const std::string_view decimals = hasPoint ? places.substr(point + 1) : std::string_view();

    const auto [whole, fraction] = Digits(number, decimals.size());
    std::string body = WholePart(whole, places.substr(0, point));
    if (hasPoint)
        body += '.' + DecimalPart(fraction, decimals);
    const bool isZero = body.find_first_of("123456789") == std::string::npos;
    return (number < 0 && !isZero ? "-" : "") + std::string(pattern.begin(), begin) + body +
           std::string(end, pattern.end());
}

}  // namespace quillbrand
