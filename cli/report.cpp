#include "cli/report.h"

#include <fmt/format.h>

#include <cmath>

namespace cli {

namespace {

Table chain_averages(const std::vector<ChainAverages>& averages)
{
    Table table{"chain_averages",
                "Chain averages",
                {{"component", "Component", ""},
                 {"class", "Class", ""},
                 {"mole_flow", "Mole flow", "kmol/h"},
                 {"dpn", "DPN", "1"},
                 {"mean_segment_weight", "Mean segment weight", "g/mol"},
                 {"mn", "Mn", "g/mol"},
                 {"mw", "Mw", "g/mol"},
                 {"pdi", "PDI", "1"}},
                {}};
    for (const auto& a : averages)
        table.rows.push_back({a.component, std::string{text(a.kind)}, a.mole_flow, a.dpn,
                              a.mean_segment_weight, a.mn, a.mw, a.pdi});
    return table;
}

Table segment_fractions(const std::vector<SegmentShare>& shares)
{
    Table table{"segment_fractions",
                "Segment fractions",
                {{"component", "Component", ""},
                 {"segment", "Segment", ""},
                 {"mole_fraction", "Mole fraction", "1"},
                 {"mass_fraction", "Mass fraction", "1"}},
                {}};
    for (const auto& s : shares)
        table.rows.push_back({s.component, s.segment, s.mole_fraction, s.mass_fraction});
    return table;
}

}  // namespace

Report make_report(const Case& input, const CheckedInput& checked, const std::vector<StreamResults>& results)
{
    Report report{input.title, input.file, checked.messages, {}, {}};
    for (const auto& r : results)
        report.streams.push_back({r.stream, {chain_averages(r.averages), segment_fractions(r.shares)}});
    return report;
}

std::vector<std::string> not_finite(const Report& report)
{
    std::vector<std::string> found;
    for (const auto& stream : report.streams)
        for (const auto& table : stream.tables)
            for (const auto& row : table.rows)
                for (std::size_t i = 0; i < row.size(); ++i)
                    if (const auto* value = std::get_if<double>(&row[i]); value && !std::isfinite(*value))
                        found.push_back(fmt::format("streams.{}: {} of {} is {}; expected a finite result",
                                                    stream.stream, table.columns[i].key,
                                                    std::get<std::string>(row.front()), *value));
    return found;
}

}  // namespace cli
