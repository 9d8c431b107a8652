#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <utility>

/// Small helpers that the whole program shares.
namespace quillbrand::STDIO {

/// True when `path` is not empty and something of that name exists.
bool FileExists(const std::filesystem::path& path);

template <typename Number>
void IncrValue(Number& variable, Number step = 1) {
    variable += step;
}

template <typename Value>
void SwapValues(Value& a, Value& b) {
    std::swap(a, b);
}

/// The smaller one; on a tie `b`.
template <typename Number>
constexpr Number MinValue(Number a, Number b) {
    return a < b ? a : b;
}

/// The larger one; on a tie `b`.
template <typename Number>
constexpr Number MaxValue(Number a, Number b) {
    return a > b ? a : b;
}

/// `value` limited to `low`..`high`; `high` wins where they cross.
template <typename Number>
constexpr Number ClampValue(Number low, Number high, Number value) {
    return MinValue(high, MaxValue(value, low));
}

/// True for a key that a number field takes, given what it holds already: digits, Backspace (8),
/// Enter (13), "-", and "," while there is none yet. A point is refused.
bool NumericKeyFilter(std::string_view boxText, int key);

/// Reads the number in `boxText`, writes it back limited to `low`..`high` and returns it.
double ClampTextBox(std::string& boxText, double high, double low);

/// `text` without blanks on either side.
std::string TrimmedText(std::string_view text);

}  // namespace quillbrand::STDIO
