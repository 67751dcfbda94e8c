#include "app/report/output_files.h"

#include <fmt/format.h>

#include <algorithm>
#include <fstream>
#include <set>

#include "app/io/descriptor.h"
#include "app/io/distinct_name.h"
#include "app/io/visible_text.h"
#include "app/report/format.h"
#include "app/report/result_numbers.h"

namespace app {

namespace {

// The text form on pages of the given length.
std::vector<minihost::ReportPage> text_pages(const std::string& text, std::size_t lines_per_page)
{
    std::vector<minihost::ReportPage> pages;
    std::string_view rest = text;
    while (!rest.empty()) {
        const auto line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        if (pages.empty() || pages.back().size() == lines_per_page) pages.emplace_back();
        pages.back().emplace_back(line);
    }
    return pages;
}

// A heading cannot hold the line ends of a title.
std::string page_title(std::string title)
{
    std::ranges::replace_if(
        title, [](char c) { return c == '\n' || c == '\r' || c == '\f'; }, ' ');
    return visible(title);
}

// Names of distributions are free texts; those of files are not, and have a greatest length.
std::string file_part(std::string name)
{
    constexpr std::size_t longest = 100;
    if (name.size() > longest) name.resize(longest);
    std::ranges::replace_if(
        name, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)) && c != '-' && c != '_'; },
        '_');
    return name;
}

std::string wide_csv(const Table& table, CsvTexts texts)
{
    std::string csv;
    for (const auto& column : table.columns)
        csv += fmt::format("{}{}", csv.empty() ? "" : ",", csv_field(column.key, texts));
    for (const auto& row : table.rows) {
        csv += '\n';
        for (const auto& cell : row)
            csv += (&cell == row.data() ? "" : ",") +
                   (is_number(cell) ? text(cell) : csv_field(text(cell), texts));
    }
    return csv + '\n';
}

enum class CurveFile { calculated, measured };

std::string curve_file(const std::string& name, const std::string& part, CurveFile curve)
{
    return fmt::format("{}.{}{}.csv", name, part, curve == CurveFile::measured ? ".gpc" : "");
}

// By distribution, of different ones each.
class FileParts {
public:
    std::string next(const std::string& distribution)
    {
        return distinct_name(file_part(distribution), taken_);
    }

private:
    std::set<std::string> taken_{"fit"};  // the command of that name writes NAME.fit.csv
};

void add_curves(const std::string& name, const Report& report, CsvTexts texts, std::vector<OutputFile>& files)
{
    FileParts parts;
    for (const auto& section : report.sections) {
        if (section.kind != "distribution") continue;
        const auto part = parts.next(section.name);
        for (const auto& table : section.tables)
            if (table.is_long) {
                const auto curve = table.key == "gpc_curve" ? CurveFile::measured : CurveFile::calculated;
                files.push_back({curve_file(name, part, curve), wide_csv(table, texts)});
            }
    }
}

// Its first column is that of a table of curves.
bool holds_curves(const std::filesystem::path& file)
{
    if (!std::filesystem::is_regular_file(file)) return false;
    std::string heading(32, '\0');
    std::ifstream{file}.read(heading.data(), static_cast<std::streamsize>(heading.size()));
    return heading.starts_with("chain_length,") || heading.starts_with("molecular_weight,chain_length,");
}

}  // namespace

std::string report_file(const Case& input, const Report& report, const LibraryOutput& library_output)
{
    auto pages = text_pages(format_text(report), static_cast<std::size_t>(input.settings.lines_per_page));
    pages.insert(pages.end(), library_output.report_pages.begin(), library_output.report_pages.end());
    return minihost::page_text(page_title(input.title), pages);
}

std::vector<OutputFile> output_files(const std::string& name, const Case& input, const Report& report,
                                     const LibraryOutput& library_output, CsvTexts texts)
{
    std::vector<OutputFile> files{{name + ".rpt", report_file(input, report, library_output)},
                                  {name + ".sum", library_output.summary},
                                  {name + ".csv", format_csv(report, texts)},
                                  {name + ".json", format_json(report)},
                                  {name + ".html", format_html(report)}};
    add_curves(name, report, texts, files);
    return files;
}

std::vector<std::string> output_names(const std::string& name, const Case& input)
{
    std::vector<std::string> names;
    for (const auto* ending : {".rpt", ".sum", ".csv", ".json", ".html"}) names.push_back(name + ending);
    FileParts parts;
    for (const auto& distribution : input.distributions) {
        const auto part = parts.next(distribution.name.id);
        for (const auto curve : {CurveFile::calculated, CurveFile::measured})
            names.push_back(curve_file(name, part, curve));
    }
    return names;
}

std::vector<std::string> fit_names(const std::string& name)
{
    std::vector<std::string> names;
    for (const auto* ending : {"txt", "csv", "json", "html", "curves.csv"})
        names.push_back(fmt::format("{}.fit.{}", name, ending));
    return names;
}

std::vector<std::filesystem::path> earlier_files(const std::filesystem::path& directory,
                                                 const std::string& name,
                                                 const std::vector<OutputFile>& files)
{
    auto written = fit_names(name);
    for (const auto& file : files) written.push_back(file.name);
    std::vector<std::filesystem::path> earlier;
    for (const auto& found : names_in(directory))
        if (found.starts_with(name + ".") && found.ends_with(".csv") &&
            std::ranges::find(written, found) == written.end() && holds_curves(directory / found))
            earlier.push_back(directory / found);
    std::ranges::sort(earlier);
    return earlier;
}

std::vector<OutputFile> fit_files(const std::string& name, const Report& report, CsvTexts texts)
{
    std::vector<OutputFile> files{{name + ".fit.txt", format_text(report)},
                                  {name + ".fit.csv", format_csv(report, texts)},
                                  {name + ".fit.json", format_json(report)},
                                  {name + ".fit.html", format_html(report)}};
    for (const auto& table : report.sections.front().tables)
        if (table.is_long) files.push_back({name + ".fit.curves.csv", wide_csv(table, texts)});
    return files;
}

}  // namespace app
