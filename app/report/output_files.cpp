#include "app/report/output_files.h"

#include <fmt/format.h>
#include <polyprops/host.h>
#include <polyprops/polyprops.h>
#include <unistd.h>

#include <algorithm>
#include <stdexcept>

#include "app/report/format_html.h"
#include "app/report/result_numbers.h"
#include "app/evaluation/stream_moments.h"
#include "app/io/whole_file.h"

namespace app {

namespace {

using minihost::Host;

// Lines of the text form on the pages of the report file.
void write_pages(const std::string& text, Host& host)
{
    std::string_view rest = text;
    while (!rest.empty()) {
        const auto line = rest.substr(0, rest.find('\n'));
        rest.remove_prefix(std::min(line.size() + 1, rest.size()));
        host.report().reserve(1, false);
        host.report().write_line(ST_FILES[27 - 1], std::ssize(line), line.data());
    }
}

// A page cannot hold the line ends of a title.
std::string page_title(std::string title)
{
    std::ranges::replace_if(
        title, [](char c) { return c == '\n' || c == '\r' || c == '\f'; }, ' ');
    return title;
}

bool has_polymer(const PolymerResults& results)
{
    return results.mass.back() > 0;
}

// Results of the site types, or of the polymer as a whole where no sites are told apart.
void summarize(const std::string& stream, Host& host)
{
    const auto r = polymer_results(stream, host);
    if (!has_polymer(r)) return;
    const auto sites = static_cast<Int>(std::max<std::size_t>(r.mass.size() - 1, 1));
    POLY_WRTPOLSUM(host.summary().context(stream), &sites, r.mass.data(), r.segment_weight.data(),
                   r.mn.data(), r.mw.data(), r.dpn.data(), r.dpw.data(), r.pdi.data());
}

void publish_all(Evaluation& e)
{
    auto& host = *e.checked.host;
    host.report().set_title(page_title(e.input.title));
    host.report().set_lines_per_page(e.input.settings.lines_per_page);
    write_pages(format_text(e.report), host);
    for (const auto& distribution : e.distributions) publish(distribution, host);
    for (const auto& stream : e.input.streams) summarize(stream.name.id, host);
}

// Names of distributions are free texts; those of files are not.
std::string file_part(std::string name)
{
    std::ranges::replace_if(
        name, [](char c) { return !std::isalnum(static_cast<unsigned char>(c)) && c != '-' && c != '_'; },
        '_');
    return name;
}

std::string wide_csv(const Table& table)
{
    const auto field = [](const Cell& cell) { return fmt::format("{}", std::get<double>(cell)); };
    std::string csv;
    for (const auto& column : table.columns)
        csv += fmt::format("{}{}", csv.empty() ? "" : ",", csv_field(column.key));
    for (const auto& row : table.rows) {
        csv += '\n';
        for (const auto& cell : row) csv += (&cell == row.data() ? "" : ",") + field(cell);
    }
    return csv + '\n';
}

void add_curves(const std::string& name, const Report& report, std::vector<OutputFile>& files)
{
    for (const auto& section : report.sections)
        for (const auto& table : section.tables)
            if (table.is_long && section.kind == "distribution")
                files.push_back({fmt::format("{}.{}{}.csv", name, file_part(section.name),
                                             table.key == "gpc_curve" ? ".gpc" : ""),
                                 wide_csv(table)});
}

void check_unique(const std::vector<OutputFile>& files)
{
    for (auto file = files.begin(); file != files.end(); ++file)
        if (std::find_if(files.begin(), file, [&](const auto& f) { return f.name == file->name; }) != file)
            throw std::runtime_error{fmt::format(
                "two distributions would be written to {}; expected names that differ in more than "
                "punctuation",
                file->name)};
}

}  // namespace

std::vector<OutputFile> output_files(const std::string& name, Evaluation& e)
{
    publish_all(e);
    std::vector<OutputFile> files{{name + ".rpt", e.checked.host->report().text()},
                                  {name + ".sum", e.checked.host->summary().text()},
                                  {name + ".csv", format_csv(e.report)},
                                  {name + ".json", format_json(e.report)},
                                  {name + ".html", format_html(e)}};
    add_curves(name, e.report, files);
    check_unique(files);
    return files;
}

void write_files(const std::filesystem::path& directory, const std::vector<OutputFile>& files)
{
    std::filesystem::create_directories(directory);
    const auto staging = directory / fmt::format(".polyprops.{}.tmp", ::getpid());
    std::filesystem::create_directory(staging);
    try {
        for (const auto& file : files) write_whole_file(staging / file.name, file.content);
        for (const auto& file : files)
            if (std::filesystem::is_directory(directory / file.name))
                throw std::runtime_error{fmt::format("{}: cannot be written: it is a directory",
                                                     (directory / file.name).string())};
        for (const auto& file : files) std::filesystem::rename(staging / file.name, directory / file.name);
    } catch (...) {
        std::filesystem::remove_all(staging);
        throw;
    }
    std::filesystem::remove(staging);
}

}  // namespace app
