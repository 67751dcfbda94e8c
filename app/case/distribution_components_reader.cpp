// Components of a distribution whose chain lengths follow a model, and Mark-Houwink exponents.
#include <fmt/format.h>

#include "app/case/case_reader.h"

namespace app {

namespace {

constexpr Word<ChainLengthModel> models[] = {{"log-normal", ChainLengthModel::log_normal},
                                             {"schulz-zimm", ChainLengthModel::schulz_zimm},
                                             {"poisson", ChainLengthModel::poisson}};

constexpr double greatest_exponent = 2;

ChainLengthModel read_model(TableReader& table)
{
    const auto type = table.entry("type");
    if (!type) table.missing("type", R"("log-normal", "schulz-zimm" or "poisson")");
    return type ? read_word(*type, models, table.diagnostics()).value_or(ChainLengthModel::log_normal)
                : ChainLengthModel::log_normal;
}

void read_mean(TableReader& table, DistributionComponent& component)
{
    component.mn = table.number("mn", Range::positive);
    component.dpn = table.number("dpn", Range::positive);
    const bool has_mn = table.entry("mn").has_value();
    if (has_mn == table.entry("dpn").has_value())
        table.diagnostics().add(table.source(),
                                fmt::format("{} has {}; expected one of them", table.path(),
                                            has_mn ? "both mn and dpn" : "neither mn nor dpn"));
    if (component.dpn && !(*component.dpn > 1))
        table.diagnostics().add(
            table.entry("dpn")->source,
            fmt::format("{}.dpn is {}; expected greater than 1", table.path(), *component.dpn));
}

void read_dispersity(TableReader& table, DistributionComponent& component)
{
    const auto given = table.entry("dispersity");
    if (component.model == ChainLengthModel::poisson) {
        if (given)
            table.diagnostics().add(given->source, given->path +
                                                       " is given; a Poisson distribution has one "
                                                       "that follows from its length");
        return;
    }
    const auto value = table.required_number("dispersity", Range::positive);
    if (value && !(*value > 1))
        table.diagnostics().add(given->source,
                                fmt::format("{} is {}; expected greater than 1", given->path, *value));
    component.dispersity = value.value_or(0);
}

DistributionComponent read_component(TableReader table, std::size_t number)
{
    DistributionComponent component;
    component.name = {table.text("name").value_or(fmt::format("{}", number)), table.source()};
    component.model = read_model(table);
    read_mean(table, component);
    read_dispersity(table, component);
    component.amount = table.required_number("amount", Range::not_negative).value_or(0);
    table.finish_part();
    return component;
}

}  // namespace

std::vector<DistributionComponent> read_distribution_components(TableReader& table)
{
    std::vector<DistributionComponent> components;
    for (const auto& element : table.array("components", "at least one component"))
        if (const auto component = read_table(element, table.diagnostics()))
            components.push_back(read_component(*component, components.size() + 1));
    return components;
}

std::optional<double> read_mark_houwink_exponent(TableReader& table)
{
    const auto exponent = table.number("mark_houwink_exponent", Range::positive);
    if (exponent && *exponent > greatest_exponent)
        table.diagnostics().add(
            table.entry("mark_houwink_exponent")->source,
            fmt::format("{}.mark_houwink_exponent is {}; expected greater than 0 and at most {}",
                        table.path(), *exponent, greatest_exponent));
    return exponent;
}

}  // namespace app
