#include "minihost/summary_file.h"

#include <polyprops/host.h>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

#include "minihost/error.h"

namespace minihost {
namespace {

using Kind = SummaryToken::Kind;

constexpr Int longest_text = 10;

[[noreturn]] void refuse(Int kind, Int length, const std::string& seen)
{
    throw Error("summary token of kind " + std::to_string(kind) + " and length " + std::to_string(length) +
                ": " + seen);
}

// Text of a token: four characters and four blanks in each word.
std::string text_of(Int kind, Int length, const Word* data)
{
    if (length < 1 || length > longest_text) refuse(kind, length, "expected 1 to 10 characters");
    std::string text;
    for (Int k = 0; k <= (length - 1) / 4; ++k) {
        const Word word = data[k];
        text.append(reinterpret_cast<const char*>(&word), 4);
        if (word != text_word(std::string_view(text).substr(text.size() - 4)))
            refuse(kind, length, "word " + std::to_string(k + 1) + " does not end in four blanks");
    }
    const auto end = static_cast<std::size_t>(length);
    if (text.find_first_not_of(' ', end) != std::string::npos)
        refuse(kind, length, "characters beyond the length");
    text.resize(end);
    return text;
}

void expect_no_real(Int kind, Int length, double real)
{
    if (word_of(real) != ST_INITV[1 - 1]) refuse(kind, length, "a real where none belongs");
}

SummaryToken break_token(Int kind, Int length, Int data)
{
    if (length != 0) refuse(kind, length, "expected length 0");
    if (data == ST_INITV[2 - 1]) return {Kind::definition_break};
    if (data != 0) refuse(kind, length, "break with data " + std::to_string(data));
    return {Kind::data_break};
}

SummaryToken plain_token(Int kind, Int length, const Word* data)
{
    if (length == 0) return {.kind = Kind::integer, .integer = *data};
    return {Kind::word, text_of(kind, length, data)};
}

SummaryToken bracket_token(Int kind, Int length, const Word* data)
{
    const std::string text = text_of(kind, length, data);
    if (kind == 2) return {Kind::close, text == " " ? "" : text};
    if (text != " ") refuse(kind, length, "expected one blank");
    return {Kind::open};
}

SummaryToken separator_token(Int kind, Int length, Int data)
{
    if (length != 0 || data != 1) refuse(kind, length, "expected length 0 and the integer 1");
    return {Kind::separator};
}

SummaryToken token_of(Int kind, Int length, const Word* data)
{
    if (kind == ST_GLOBAL[8 - 1]) return break_token(kind, length, *data);
    switch (kind) {
        case 0:
            return plain_token(kind, length, data);
        case 1:
        case 2:
            return bracket_token(kind, length, data);
        case 3:
            return {Kind::name, text_of(kind, length, data)};
        case 7:
            return {Kind::label, text_of(kind, length, data)};
        case 8:
            return separator_token(kind, length, *data);
        default:
            refuse(kind, length, "unknown kind");
    }
}

std::string quoted(const std::string& text)
{
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\') result.push_back('\\');
        result.push_back(c);
    }
    return result + "\"";
}

// The shortest digits that read back as the same value.
std::string digits(double value)
{
    std::array<char, 32> text;
    return {text.data(), std::to_chars(text.data(), text.data() + text.size(), value).ptr};
}

}  // namespace

std::string SummaryToken::line() const
{
    switch (kind) {
        case Kind::definition_break:
            return "break definition";
        case Kind::data_break:
            return "break data";
        case Kind::word:
            return "word " + quoted(text);
        case Kind::integer:
            return "integer " + std::to_string(integer);
        case Kind::real:
            return "real " + digits(real);
        case Kind::open:
            return "open";
        case Kind::close:
            return text.empty() ? "close" : "close " + quoted(text);
        case Kind::name:
            return "name " + quoted(text);
        case Kind::label:
            return "label " + quoted(text);
        case Kind::separator:
            return "separator";
        default:
            return "header " + quoted(text) + " " + quoted(context);
    }
}

SummaryFile::SummaryFile()
{
    ST_SUMGLOBAL[3 - 1] = 1;
    ST_SUMGLOBAL[4 - 1] = 1;
    set_report_switch(1);
}

void SummaryFile::set_report_switch(Int value)
{
    ST_RPTGLOBAL[12 - 1] = value;
}

void SummaryFile::write_token(Int kind, Int length, const Word* data, double real)
{
    if (kind == 0 && length == -1) {
        if (*data != ST_INITV[2 - 1]) refuse(kind, length, "an integer where none belongs");
        tokens_.push_back({.kind = Kind::real, .real = real});
        return;
    }
    expect_no_real(kind, length, real);
    tokens_.push_back(token_of(kind, length, data));
}

void SummaryFile::write_header(const void* context, const Word* block_name, Int zero)
{
    const auto is_given = [context](const std::string& name) { return context == &name; };
    const auto found = std::find_if(contexts_.begin(), contexts_.end(), is_given);
    if (found == contexts_.end()) throw Error("summary block " + name_of(block_name) + ": unknown context");
    if (zero != 0) throw Error("summary block " + name_of(block_name) + ": third argument is not 0");
    tokens_.push_back({.kind = Kind::header, .text = name_of(block_name), .context = *found});
}

std::string SummaryFile::text() const
{
    std::string text = "summary 1\n";
    for (const SummaryToken& token : tokens_) text += token.line() + "\n";
    return text;
}

}  // namespace minihost
