#pragma once

#include <climits>
#include <concepts>
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

/// That number rounded to the nearest whole one, halves to even, and limited to `low`..`high`.
int WholeVal(std::string_view text, int low = INT_MIN, int high = INT_MAX);

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

/// The text that `makeText` gives, or "?" where it faults: a file may hold any scale, and what
/// cannot show a number must not end what runs.
template <typename MakeText>
std::string ShownText(MakeText makeText) {
    try {
        return makeText();
    } catch (const Fault&) {
        return "?";
    }
}

}  // namespace quillbrand
