#include "app/report/fit_tables.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include "app/report/columns.h"

namespace app {

namespace {

std::string site_name(std::size_t j)
{
    return fmt::format("{}", j + 1);
}

// A column of values and two of their limits, below the column of the sites.
void add_estimates(const Column& of, const FitResults& results, Estimate FittedSite::*estimate, Table& table)
{
    table.columns.insert(table.columns.end(),
                         {of, {of.key + "_low", "from", of.unit}, {of.key + "_high", "to", of.unit}});
    for (std::size_t j = 0; j < results.sites.size(); ++j) {
        const auto& [value, low, high] = results.sites[j].*estimate;
        table.rows[j].insert(table.rows[j].end(), {value, low, high});
    }
}

void add_values(const Column& of, const FitResults& results, double (*value)(const FittedSite&), Table& table)
{
    table.columns.push_back(of);
    for (std::size_t j = 0; j < results.sites.size(); ++j)
        table.rows[j].emplace_back(value(results.sites[j]));
}

// A β that is fixed has no limits.
Table sites(const FitResults& results)
{
    const Column beta{"beta", "β", "1"};
    Table table{"fit_sites", "Sites, with 95 % confidence limits within 0 to 1", {{"site", "Site", ""}}, {}};
    for (std::size_t j = 0; j < results.sites.size(); ++j) table.rows.push_back({site_name(j)});
    add_estimates({"tau", "τ", "1"}, results, &FittedSite::tau, table);
    if (results.has_free_beta)
        add_estimates(beta, results, &FittedSite::beta, table);
    else
        add_values(
            beta, results, [](const FittedSite& site) { return site.beta.value; }, table);
    add_estimates({"mass_fraction", "Mass fraction", "1"}, results, &FittedSite::amount, table);
    add_values(
        columns::pn, results, [](const FittedSite& site) { return site.averages.pn; }, table);
    add_values(
        columns::pw, results, [](const FittedSite& site) { return site.averages.pw; }, table);
    add_values(
        columns::mn, results, [](const FittedSite& site) { return site.averages.mn; }, table);
    add_values(
        columns::mw, results, [](const FittedSite& site) { return site.averages.mw; }, table);
    add_values(
        columns::mz, results, [](const FittedSite& site) { return site.averages.mz; }, table);
    add_values(
        columns::pdi, results, [](const FittedSite& site) { return site.averages.pdi; }, table);
    if (results.measured_averages.mv)
        add_values(
            columns::mv, results, [](const FittedSite& site) { return site.averages.mv.value_or(0); }, table);
    return table;
}

Table summary(const FitResults& results)
{
    return {"fit_summary",
            "Fit",
            {{"file", "File", ""},
             {"notes", "Notes", ""},
             {"points", "Points", ""},
             {"sites", "Sites", ""},
             {"segment_weight", "Segment weight", "g/mol"},
             {"residual", "Residual", "1"}},
            {{results.file, static_cast<Int>(results.notes.size()), static_cast<Int>(results.measured.size()),
              static_cast<Int>(results.sites.size()), results.segment_weight, results.residual}}};
}

Table averages(const FitResults& results)
{
    Table table{"fit_averages",
                "Averages between the first and the last point",
                {{"curve", "Curve", ""}, columns::mn, columns::mw, columns::mz, columns::mz1, columns::pdi},
                {}};
    if (results.measured_averages.mv) table.columns.push_back(columns::mv);
    const auto add = [&](const char* curve, const MolecularWeightAverages& a) {
        auto& row =
            table.rows.emplace_back(std::vector<Cell>{std::string{curve}, a.mn, a.mw, a.mz, a.mz1, a.pdi});
        if (a.mv) row.emplace_back(*a.mv);
    };
    add("measured", results.measured_averages);
    add("fitted", results.fitted_averages);
    return table;
}

Table residuals(const FitResults& results)
{
    Table table{"fit_residuals",
                "Residual by number of sites",
                {{"sites", "Sites", ""},
                 {"sites_with_mass", "with mass", ""},
                 {"residual", "Residual", "1"},
                 {"reduction", "Reduction", "1"}},
                {}};
    for (const auto& row : results.residuals)
        table.rows.push_back({static_cast<Int>(row.sites), static_cast<Int>(row.sites_with_mass),
                              row.residual, row.reduction});
    return table;
}

Table curves(const FitResults& results)
{
    Table table{"fit_curves",
                "Measured curve and sites",
                {columns::molecular_weight,
                 columns::chain_length,
                 {"measured", "Measured", "1"},
                 {"fitted", "Sum of the sites", "1"}},
                {},
                true};
    for (std::size_t j = 0; j < results.sites.size(); ++j)
        table.columns.push_back({"site_" + site_name(j), "Site " + site_name(j), "1"});
    for (std::size_t k = 0; k < results.measured.size(); ++k) {
        auto& row = table.rows.emplace_back(std::vector<Cell>{
            results.molecular_weight[k], results.chain_length[k], results.measured[k], results.fitted[k]});
        for (const auto& site : results.sites) row.emplace_back(site.values[k]);
    }
    return table;
}

// The key `sites` of a distribution.
std::string case_sites(const FitResults& results)
{
    std::string text = "sites = [\n";
    for (std::size_t j = 0; j < results.sites.size(); ++j) {
        const auto& site = results.sites[j];
        const double beta = site.beta.value;
        const auto beta_text = beta > 0 ? fmt::format(", beta = {:.8g}", beta) : "";
        text += fmt::format("    {{ name = \"{}\", tau = {:.8g}{}, amount = {:.8g} }},\n", site_name(j),
                            site.tau.value, beta_text, site.amount.value);
    }
    return text + "]";
}

}  // namespace

Section fit_section(const FitResults& results)
{
    Section section{
        "fit",
        results.file,
        "Fit of " + results.file,
        {{"gpc_notes", fmt::format("{}", fmt::join(results.notes, "\n"))}},
        {summary(results), sites(results), averages(results), residuals(results), curves(results)}};
    section.excerpts.emplace_back("sites", case_sites(results));
    return section;
}

}  // namespace app
