// The distribution report.
//
// Averages from trapezoids of area a(k) between x(k) and x(k+1) under a curve of height h:
//
//   h    = y, or y/x when y holds length times weight fraction
//   Area = Σ a(k)
//   Pn   = 1 / Σ a(k)/x(k+1)
//   Pw   = Σ a(k)·x(k+1)
//   PDI  = Pw · Σ a(k)/x(k+1)
//
// The table reserves its rows and four of the five lines of its heading: hosts count the pages of a
// distribution this way.
#include "report/distribution_report.h"

#include "host/report_channel.h"
#include "numeric/trapezoid_averages.h"
#include "report/real_field.h"

namespace polyprops::report {

namespace {

constexpr std::size_t indent = 6;
constexpr Int heading_lines = 5;
constexpr Int shortest_page = 6;  // a heading and two rows, one line more than is reserved

numeric::TrapezoidSums sums_of(Int n, Vector<const Real> x, Vector<const Real> y, bool is_gpc)
{
    return numeric::trapezoid_sums(n, x, [&](Int k) { return is_gpc ? y(k) / x(k) : y(k); });
}

void write_indented(std::string_view text)
{
    write_report_line(ReportLine{}.blanks(indent).text(text).view());
}

void write_heading(Int first, bool is_gpc)
{
    write_indented(first > 1 ? "Composite chain length distribution, continued"
                   : is_gpc  ? "Composite chain length distribution (GPC style)"
                             : "Composite chain length distribution (standard)");
    write_report_line("");
    write_indented("Cut      Chain       Mass");
    write_indented("Number   Length      Fraction");
    write_indented("---------------------------------");
}

void write_row(Int k, Real length, Real value)
{
    ReportLine line;
    line.blanks(indent).integer(k, 4).blanks(4);
    line.text(RealField{length}.view()).blanks(1).text(RealField{value}.view()).blanks(1);
    write_report_line(line.view());
}

Int page_length()
{
    return std::max(report_lines_per_page(), shortest_page);
}

// Returns how the lines that follow the table are to be reserved.
PageStart write_table(Int n, Vector<const Real> x, Vector<const Real> y, bool is_gpc)
{
    const Int left = page_length() - report_lines_used();
    PageStart start = left > 10 ? PageStart::where_it_fits : PageStart::new_page;
    Int rows = left > 10 ? std::min(n + 4, left) : page_length();
    for (Int first = 1; first <= n;) {
        const Int last = std::min(n, first + rows - heading_lines);
        reserve_report_lines(rows, start);
        write_heading(first, is_gpc);
        for (Int k = first; k <= last; ++k) write_row(k, x(k), y(k));
        first = last + 1;
        rows = std::min(n - last + 4, page_length());
        start = PageStart::where_it_fits;
    }
    return start;
}

void write_averages(const numeric::TrapezoidSums& sums)
{
    const Real number_average = 1.0 / sums.over_length;
    const Real weight_average = sums.times_length;
    const Real polydispersity = sums.times_length * sums.over_length;
    write_indented("Properties of local composite CLD:");
    ReportLine line;
    line.blanks(indent).text("Area = ").text(RealField{sums.area}.view());
    line.text("  Pn = ").text(RealField{number_average}.view());
    line.text("  Pw = ").text(RealField{weight_average}.view());
    line.text("  PDI = ").text(RealField{polydispersity}.view());
    write_report_line(line.view());
}

void write_title()
{
    reserve_report_lines(2, PageStart::where_it_fits);
    write_report_line("");
    write_report_line(ReportLine{}.blanks(23).text("*** POLYMER DISTRIBUTIONS *** ").view());
}

}  // namespace

void write_report(Int n, Vector<const Real> x, Vector<const Real> y, bool is_gpc)
{
    write_title();
    const auto sums = sums_of(n, x, y, is_gpc);
    if (below(sums.area, zero_bound())) return;
    const PageStart start = write_table(n, x, y, is_gpc);
    reserve_report_lines(2, start);
    write_averages(sums);
}

}  // namespace polyprops::report
