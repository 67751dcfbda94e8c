#include "app/report/format.h"

#include <fmt/format.h>

#include <algorithm>

#include "app/io/visible_text.h"
#include "app/report/html/embedded.h"

namespace app {

namespace {

// Replaces each {{name}} of a template once.
std::string filled(std::string_view text, const std::vector<std::pair<std::string_view, std::string>>& parts)
{
    std::string result;
    for (std::size_t at = 0; at < text.size();) {
        const auto open = std::min(text.find("{{", at), text.size());
        result += text.substr(at, open - at);
        at = open;
        if (open == text.size()) break;
        const auto close = text.find("}}", open);
        const auto name = text.substr(open + 2, close - open - 2);
        for (const auto& [key, value] : parts)
            if (key == name) result += value;
        at = close + 2;
    }
    return result;
}

// JSON within a script element: no sequence in it may end the element or open a comment.
std::string script_data(const std::string& json)
{
    std::string text;
    for (const char c : json) text += c == '<' ? "\\u003c" : std::string{c};
    return text;
}

std::string unit(const Column& column)
{
    if (column.unit.empty()) return {};
    return fmt::format("<span class=\"unit\">{}</span>", column.unit == "1" ? "–" : html_text(column.unit));
}

// A number shows six digits; data-value holds all of them and is empty without data.
std::string cell(const Cell& cell)
{
    if (const auto* value = std::get_if<double>(&cell))
        return fmt::format(R"(<td class="number" data-value="{}">{:.6g}</td>)", *value, *value);
    if (const auto* value = std::get_if<Int>(&cell))
        return fmt::format(R"(<td class="number" data-value="{}">{}</td>)", *value, *value);
    if (std::holds_alternative<NoData>(cell)) return R"(<td class="number" data-value="">–</td>)";
    return fmt::format("<td>{}</td>", html_text(std::get<std::string>(cell)));
}

std::string table(const Table& table)
{
    std::string html =
        fmt::format("<h3>{}</h3>\n<div class=\"scroll\"><table data-table=\"{}\">\n<thead><tr>",
                    html_text(table.heading), html_text(table.key));
    for (std::size_t i = 0; i < table.columns.size(); ++i) {
        const bool is_text = std::holds_alternative<std::string>(table.rows.front()[i]);
        html += fmt::format(R"(<th scope="col" data-key="{}"{}>{}{}</th>)", html_text(table.columns[i].key),
                            is_text ? "" : " class=\"number\"", html_text(table.columns[i].heading),
                            unit(table.columns[i]));
    }
    html += "</tr></thead>\n<tbody>\n";
    for (const auto& row : table.rows) {
        html += "<tr>";
        for (const auto& value : row) html += cell(value);
        html += "</tr>\n";
    }
    return html + "</tbody></table></div>\n";
}

bool has_chart(const Section& section)
{
    if (section.kind == "distribution" || section.kind == "fit") return true;
    if (section.kind != "parameter") return false;
    // One temperature is no curve.
    for (const auto& table : section.tables)
        if (table.key == "binary_parameters")
            return !table.rows.empty() && table.rows.front()[0] != table.rows.back()[0];
    return false;
}

std::string label(std::string key)
{
    std::ranges::replace(key, '_', ' ');
    return key;
}

std::string facts(const Section& section)
{
    std::string html;
    for (const auto& [key, text] : section.facts)
        if (!text.empty())
            html += fmt::format("<p class=\"fact\"><span>{}</span> {}</p>\n", html_text(label(key)),
                                html_text(text));
    return html;
}

std::string html(const Section& section)
{
    std::string html =
        fmt::format("<section data-kind=\"{}\" data-name=\"{}\">\n<h2>{}</h2>\n{}", html_text(section.kind),
                    html_text(section.name), html_text(section.heading), facts(section));
    if (has_chart(section)) html += "<div class=\"chart\"><canvas></canvas></div>\n";
    std::size_t shown = 0;
    for (const auto& t : section.tables) {
        if (t.rows.empty()) continue;
        ++shown;
        if (!t.is_long) html += table(t);
    }
    if (shown == 0) html += "<p>Nothing flows here.</p>\n";
    for (const auto& [key, excerpt] : section.excerpts)
        html += fmt::format("<pre data-key=\"{}\">{}</pre>\n", html_text(key), html_text(excerpt));
    return html + "</section>\n";
}

std::string messages(const Report& report)
{
    if (report.diagnostics.empty()) return {};
    std::string html = "<section class=\"messages\">\n<h2>Messages</h2>\n<ul>\n";
    for (const auto& found : report.diagnostics)
        html += fmt::format("<li{}>{}</li>\n", found.severity == Severity::warning ? "" : " class=\"error\"",
                            html_text(line(found, report.file)));
    return html + "</ul>\n</section>\n";
}

}  // namespace

std::string html_text(std::string_view text)
{
    std::string result;
    for (const char c : readable(text)) {
        switch (c) {
            case '&':
                result += "&amp;";
                break;
            case '<':
                result += "&lt;";
                break;
            case '>':
                result += "&gt;";
                break;
            case '"':
                result += "&quot;";
                break;
            default:
                result += c;
        }
    }
    return result;
}

std::string format_html(const Report& report)
{
    const auto title = report.title.empty() ? report.file : report.title;
    std::string body = messages(report);
    for (const auto& section : report.sections) body += html(section);
    return filled(embedded::page, {{"title", html_text(title)},
                                   {"file", html_text(report.file)},
                                   {"version", POLYPROPS_VERSION},
                                   {"style", std::string{embedded::style}},
                                   {"body", body},
                                   {"data", script_data(format_json(report))},
                                   {"chart_library", std::string{embedded::chart_library}},
                                   {"script", std::string{embedded::charts}}});
}

}  // namespace app
