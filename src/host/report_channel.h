// The host's report file: lines written one by one under the host's pagination.
#pragma once

#include <algorithm>
#include <charconv>

#include "host/words.h"

namespace polyprops {

// One line of the report, composed in place. Text beyond its capacity is cut.
class ReportLine {
public:
    ReportLine& text(std::string_view text)
    {
        const std::size_t copied = std::min(text.size(), characters_.size() - length_);
        std::copy_n(text.begin(), copied, characters_.begin() + static_cast<std::ptrdiff_t>(length_));
        length_ += copied;
        return *this;
    }
    ReportLine& blanks(std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i) text(" ");
        return *this;
    }
    // Right-aligned; a number that is wider widens its field.
    ReportLine& integer(Int value, std::size_t width)
    {
        std::array<char, 20> digits;
        const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), value).ptr;
        const auto count = static_cast<std::size_t>(end - digits.data());
        return blanks(width > count ? width - count : 0).text({digits.data(), count});
    }

    std::string_view view() const { return {characters_.data(), length_}; }

private:
    std::array<char, 132> characters_;
    std::size_t length_ = 0;
};

inline void write_report_line(std::string_view text)
{
    const Int length = static_cast<Int>(text.size());
    RP_WRITE_LINE(&word(ST_FILES, 27), &length, text.data());
}

enum class PageStart : Int { where_it_fits = 0, new_page = 1 };

// The host starts a new page first when asked to or when the lines do not fit on this one.
inline void reserve_report_lines(Int lines, PageStart start)
{
    const Int new_page = static_cast<Int>(start);
    const Int three = 3;
    RP_RESERVE_LINES(&lines, &new_page, &three, &word(ST_RPTGLOBAL, 2));
}

inline Int report_lines_used()
{
    return word(RP_PAGE, 1);
}
inline Int report_lines_per_page()
{
    return word(RP_PAGE, 4);
}

}  // namespace polyprops
