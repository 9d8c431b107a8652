#pragma once

#include <concepts>
#include <cstdint>
#include <string>
#include <string_view>

#include "base/Fault.h"

namespace quillbrand {

/// The number as plain text, with a leading blank when it is not negative.
std::string Str(double number);
std::string Str(std::integral auto number) {
    return (number < 0 ? "" : " ") + std::to_string(number);
}

/// The longest number that `text` begins with (blanks in front are skipped; sign, digits, a
/// decimal point, an exponent); 0 when it begins with none. The locale plays no part.
double Val(std::string_view text);

/// The number that `text` begins with, rounded to a whole one, halves to even, and limited to
/// low..high: what a file holds, or a user types, may be any number.
int ClampedVal(std::string_view text, int low = INT32_MIN, int high = INT32_MAX);

/// Shortest text that reads back as the very same number, with a decimal point.
std::string ShortestText(float number);
std::string ShortestText(double number);

/// The same without an exponent, as far as that stays readable.
std::string PlainText(float number);
std::string PlainText(double number);

/// `number` through a pattern: `#` is a digit if there is one, `0` always a digit, `.` the decimal
/// point (which stands even where no decimals follow), `%` the number times 100 and the sign
/// itself. Characters in front of and behind the digits stand for themselves. Rounds to nearest,
/// halves to even. Throws Fault for a number that is not finite.
std::string Format(double number, std::string_view pattern);

/// The text that `makeText` gives, or "?" where it faults: with the scale of some file a number may
/// be too large for its field, which must not end what runs.
template <typename MakeText>
std::string ShownText(MakeText makeText) {
    try {
        return makeText();
    } catch (const Fault&) {
        return "?";
    }
}

}  // namespace quillbrand
