#include "report/real_field.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace polyprops::report {

namespace {

// Four significant digits, correctly rounded: value = 0.dddd · 10^exponent.
struct Decimal {
    bool negative;
    std::array<char, 4> digits;
    int exponent;
};

Decimal to_decimal(Real value)
{
    if (value == 0.0) return {false, {'0', '0', '0', '0'}, 1};
    std::array<char, 16> text;  // d.ddde±XX or d.ddde±XXX
    // NOLINTNEXTLINE(cppcoreguidelines-pro-type-vararg): nothing else in libc rounds correctly
    std::snprintf(text.data(), text.size(), "%.3e", std::fabs(value));
    // The decimal point is that of the host's locale and may be several characters.
    const char* const end = std::strchr(text.data(), 'e');
    const int exponent = static_cast<int>(std::strtol(end + 1, nullptr, 10));
    return {std::signbit(value), {text[0], end[-3], end[-2], end[-1]}, exponent + 1};
}

// The characters of a field without the blanks before them.
class Text {
public:
    void put(char c) { characters_[length_++] = c; }
    void put(std::string_view text)
    {
        for (const char c : text) put(c);
    }
    std::string_view view() const { return {characters_.data(), length_}; }

private:
    std::array<char, 16> characters_;
    std::size_t length_ = 0;
};

Text fixed(const Decimal& decimal)
{
    Text text;
    if (decimal.negative) text.put('-');
    if (decimal.exponent == 0) text.put('0');
    for (int i = 0; i < 4; ++i) {
        if (i == decimal.exponent) text.put('.');
        text.put(decimal.digits[static_cast<std::size_t>(i)]);
    }
    if (decimal.exponent == 4) text.put('.');
    text.put("    ");
    return text;
}

// The letter gives way to a third digit of the exponent.
Text scientific(const Decimal& decimal)
{
    Text text;
    if (decimal.negative) text.put('-');
    text.put("0.");
    for (const char digit : decimal.digits) text.put(digit);
    const int magnitude = std::abs(decimal.exponent);
    if (magnitude < 100) text.put('E');
    text.put(decimal.exponent < 0 ? '-' : '+');
    if (magnitude >= 100) text.put(static_cast<char>('0' + magnitude / 100));
    text.put(static_cast<char>('0' + magnitude / 10 % 10));
    text.put(static_cast<char>('0' + magnitude % 10));
    return text;
}

Text without_alignment(Real value)
{
    if (!std::isfinite(value)) {
        Text text;
        text.put(std::isnan(value) ? "NaN" : std::signbit(value) ? "-Infinity" : "Infinity");
        return text;
    }
    const Decimal decimal = to_decimal(value);
    return decimal.exponent >= 0 && decimal.exponent <= 4 ? fixed(decimal) : scientific(decimal);
}

}  // namespace

RealField::RealField(Real value)
{
    const Text text = without_alignment(value);
    characters_.fill(' ');
    std::copy_backward(text.view().begin(), text.view().end(), characters_.end());
}

}  // namespace polyprops::report
