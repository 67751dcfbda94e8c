#include "minihost/report_file.h"

#include <polyprops/host.h>

#include "minihost/error.h"

namespace minihost {
namespace {

constexpr std::size_t heading_width = 80;

// The library reads both words.
Int& lines_used()
{
    return RP_PAGE[1 - 1];
}
Int& lines_per_page()
{
    return RP_PAGE[4 - 1];
}

std::string heading(const std::string& title, std::size_t page)
{
    const std::string number = "Page " + std::to_string(page);
    const std::size_t used = title.size() + number.size();
    const std::string gap(used + 2 < heading_width ? heading_width - used : 2, ' ');
    return title + gap + number + "\n\n";
}

}  // namespace

std::string page_text(const std::string& title, const std::vector<ReportPage>& pages)
{
    std::string text;
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (i > 0) text += '\f';
        text += heading(title, i + 1);
        for (const std::string& line : pages[i]) text += line + '\n';
    }
    return text;
}

void ReportFile::set_lines_per_page(Int lines)
{
    if (lines < 1) throw Error("lines per page: " + std::to_string(lines) + "; expected 1 or more");
    lines_per_page() = lines;
}

void ReportFile::reserve(Int lines, bool new_page)
{
    if (lines < 0) throw Error("reserved report lines: " + std::to_string(lines) + "; expected 0 or more");
    const bool fits = lines <= lines_per_page() - lines_used();
    if (pages_.empty() || (lines_used() > 0 && (new_page || !fits))) start_page();
}

void ReportFile::write_line(Int unit, Int length, const char* text)
{
    if (unit != ST_FILES[27 - 1])
        throw Error("report line on unit " + std::to_string(unit) + "; the report unit is " +
                    std::to_string(ST_FILES[27 - 1]));
    if (length < 0) throw Error("report line of length " + std::to_string(length) + "; expected 0 or more");
    const std::string_view line(text, static_cast<std::size_t>(length));
    if (line.find_first_of("\n\r\f") != std::string_view::npos)
        throw Error("report line with a line end in it");
    if (pages_.empty()) start_page();
    pages_.back().emplace_back(line);
    ++lines_used();
}

void ReportFile::start_page()
{
    pages_.emplace_back();
    lines_used() = 0;
}

}  // namespace minihost
