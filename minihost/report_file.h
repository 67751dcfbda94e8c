// The report file: lines under a heading on numbered pages.
//
// A page is a form feed (but before the first), a heading with title and page number, an empty line, and the
// lines written to it. Lines per page counts the lines under the heading. Reserving lines starts a new page
// when they do not fit; a routine that then writes more than it reserved gets them on the same page.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "minihost/store_words.h"

namespace minihost {

// The lines under the heading, without line ends.
using ReportPage = std::vector<std::string>;

// The text of a report file with these pages.
std::string page_text(const std::string& title, const std::vector<ReportPage>& pages);

class ReportFile {
public:
    // Heads every page.
    void set_title(std::string_view title) { title_ = title; }
    // Throws Error below 1.
    void set_lines_per_page(Int lines);

    // Starts a new page when asked to, or when the lines do not fit on this one; never behind an empty page.
    void reserve(Int lines, bool new_page);
    // Throws Error for a unit that is not the report unit, a negative length, and a line end within the
    // line.
    void write_line(Int unit, Int length, const char* text);

    const std::vector<ReportPage>& pages() const { return pages_; }
    std::string text() const { return page_text(title_, pages_); }

private:
    void start_page();

    std::string title_;
    std::vector<ReportPage> pages_;
};

}  // namespace minihost
