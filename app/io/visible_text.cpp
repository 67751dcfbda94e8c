#include "app/io/visible_text.h"

#include <fmt/format.h>

#include <cstdint>
#include <optional>

namespace app {

namespace {

struct Character {
    std::size_t size;                   // bytes
    std::optional<std::uint32_t> code;  // empty for a byte that is no UTF-8
};

// As many leading ones as the character has bytes.
std::size_t announced_size(unsigned char lead)
{
    if (lead < 0x80U) return 1;
    if ((lead & 0xE0U) == 0xC0U) return 2;
    if ((lead & 0xF0U) == 0xE0U) return 3;
    return (lead & 0xF8U) == 0xF0U ? 4 : 0;
}

bool is_code(std::uint32_t code, std::size_t size)
{
    constexpr std::uint32_t least[] = {0, 0, 0x80U, 0x800U, 0x10000U};
    return code >= least[size] && code <= 0x10FFFFU && (code < 0xD800U || code > 0xDFFFU);
}

Character first_character(std::string_view text)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const auto size = announced_size(byte(0));
    if (size == 0 || size > text.size()) return {1, {}};
    std::uint32_t code = size == 1 ? byte(0) : byte(0) & (0x7FU >> size);
    for (std::size_t i = 1; i < size; ++i) {
        if ((byte(i) & 0xC0U) != 0x80U) return {1, {}};
        code = (code << 6U) | (byte(i) & 0x3FU);
    }
    if (!is_code(code, size)) return {1, {}};
    return {size, code};
}

bool is_control(std::uint32_t code)
{
    return code < 0x20U || (code >= 0x7FU && code < 0xA0U) || code == 0x2028U || code == 0x2029U;
}

bool is_direction_mark(std::uint32_t code)
{
    return (code >= 0x202AU && code <= 0x202EU) || (code >= 0x2066U && code <= 0x2069U);
}

// The text with `replaced(character, bytes)` in place of each of its characters.
template <typename Replaced>
std::string mapped(std::string_view text, const Replaced& replaced)
{
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        const auto character = first_character(text);
        result += replaced(character.code, text.substr(0, character.size));
        text.remove_prefix(character.size);
    }
    return result;
}

}  // namespace

bool has_control_characters(std::string_view text)
{
    while (!text.empty()) {
        const auto character = first_character(text);
        if (!character.code || is_control(*character.code)) return true;
        text.remove_prefix(character.size);
    }
    return false;
}

std::string visible(std::string_view text, bool keeps_lines)
{
    return mapped(text, [&](std::optional<std::uint32_t> code, std::string_view bytes) {
        if (!code) return fmt::format("\\x{:02X}", static_cast<unsigned char>(bytes.front()));
        if (*code == '\n' && keeps_lines) return std::string{bytes};
        const bool is_shown = !is_control(*code) && !is_direction_mark(*code);
        return is_shown ? std::string{bytes} : fmt::format("\\u{:04X}", *code);
    });
}

std::string readable(std::string_view text)
{
    return mapped(text, [](std::optional<std::uint32_t> code, std::string_view bytes) {
        const bool is_blank = code && (*code == '\n' || *code == '\r' || *code == '\t');
        return code && (is_blank || !is_control(*code)) ? std::string{bytes} : std::string{"\uFFFD"};
    });
}

}  // namespace app
