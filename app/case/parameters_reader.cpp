// The [parameters] section: binary parameter sets, their coefficients given once per pair.
#include <fmt/format.h>

#include <algorithm>
#include <set>

#include "app/case/case_reader.h"
#include "app/io/memory.h"

namespace app {

namespace {

constexpr WholeRange position_counts{1, 100};
constexpr WholeRange temperature_counts{2, 10000};

constexpr Word<ParameterForm> forms[] = {{"general", ParameterForm::general},
                                         {"linear", ParameterForm::linear},
                                         {"reciprocal", ParameterForm::reciprocal}};
constexpr Word<bool> symmetries[] = {{"symmetric", false}, {"antisymmetric", true}};

// The routines know the short forms by the number of positions.
std::optional<std::int64_t> positions_of(ParameterForm form)
{
    if (form == ParameterForm::linear) return 2;
    if (form == ParameterForm::reciprocal) return 4;
    return {};
}

// Coefficients are at the first positions.
std::int64_t coefficient_count(const ParameterSet& set)
{
    if (set.form == ParameterForm::linear) return 2;
    if (set.form == ParameterForm::reciprocal) return 3;
    return std::min<std::int64_t>(set.positions, 5);
}

void read_positions(TableReader& table, ParameterSet& set)
{
    const auto fixed = positions_of(set.form);
    set.positions = table.whole_number("positions", position_counts).value_or(fixed.value_or(6));
    set.reference_position =
        table.whole_number("reference_position", {0, set.positions}).value_or(fixed ? 0 : set.positions);
    const auto complain = [&](std::string_view key, std::int64_t seen, std::string_view expected) {
        const auto entry = table.entry(key);
        table.diagnostics().add(entry ? entry->source : table.source(),
                                fmt::format("{}.{} is {}; expected {}", table.path(), key, seen, expected));
    };
    if (fixed ? set.positions != *fixed : set.positions == 2 || set.positions == 4)
        complain("positions", set.positions,
                 fixed ? fmt::format("{} in this form", *fixed)
                       : "another number than 2 and 4, which are the linear and the reciprocal form");
    else if (set.reference_position > 0 && set.reference_position <= coefficient_count(set))
        complain("reference_position", set.reference_position,
                 fmt::format("0 or a position behind the {} coefficients", coefficient_count(set)));
}

std::vector<double> read_numbers(const std::vector<Entry>& entries, Range range, Diagnostics& diagnostics)
{
    std::vector<double> numbers;
    for (const auto& entry : entries)
        if (const auto number = read_number(entry, range, diagnostics)) numbers.push_back(*number);
    return numbers;
}

std::vector<double> read_temperatures(const Entry& entry, Diagnostics& diagnostics)
{
    if (!entry.node->is_table())
        return read_numbers(read_array(entry, diagnostics, "at least one temperature"), Range::positive,
                            diagnostics);
    auto table = *read_table(entry, diagnostics);
    const auto from = table.required_number("from", Range::positive);
    const auto to = table.required_number("to", Range::positive);
    const auto count = table.required_whole_number("count", temperature_counts);
    table.finish_part();
    if (!from || !to || !count) return {};
    const double step = (*to - *from) / static_cast<double>(*count - 1);
    std::vector<double> temperatures;
    for (std::int64_t k = 0; k < *count - 1; ++k)
        temperatures.push_back(*from + step * static_cast<double>(k));
    temperatures.push_back(*to);
    return temperatures;
}

void read_values(TableReader& table, const ParameterSet& set, ParameterPair& pair)
{
    const auto entry = table.entry("values");
    if (!entry) return table.missing("values", fmt::format("{} numbers", set.positions));
    const auto elements = read_array(*entry, table.diagnostics());
    pair.values = read_numbers(elements, Range::any, table.diagnostics());
    if (!entry->node->is_array() || std::ssize(elements) == set.positions) return;
    table.diagnostics().add(entry->source, fmt::format("{} has {} values; expected {}, one for each position",
                                                       entry->path, elements.size(), set.positions));
}

std::optional<ParameterPair> read_pair(TableReader table, const ParameterSet& set)
{
    ParameterPair pair;
    const auto components = table.array("components");
    std::vector<PlacedName> ids;
    ids.reserve(components.size());
    for (const auto& entry : components)
        ids.push_back({read_text(entry, table.diagnostics()).value_or(""), entry.source});
    if (ids.size() == 2) {
        pair.first = ids[0];
        pair.second = ids[1];
    } else if (const auto entry = table.entry("components"); !entry || entry->node->is_array()) {
        table.diagnostics().add(entry ? entry->source : table.source(),
                                fmt::format("{}.components has {} entries; expected two component IDs",
                                            table.path(), ids.size()));
    }
    read_values(table, set, pair);
    if (!table.finish()) return {};
    return pair;
}

void read_pairs(TableReader& table, ParameterSet& set)
{
    for (const auto& entry : table.array("pairs"))
        if (const auto reader = read_table(entry, table.diagnostics()))
            if (auto pair = read_pair(*reader, set)) set.pairs.push_back(std::move(*pair));
}

std::optional<ParameterSet> read_set(const Entry& entry, TableReader table)
{
    ParameterSet set;
    set.name = {entry.key, entry.source};
    if (const auto form = table.entry("form"))
        set.form = read_word(*form, forms, table.diagnostics()).value_or(set.form);
    set.unit = table.text("unit").value_or("1");
    for (const auto& component : table.required_array("components", "at least one component ID"))
        if (const auto id = read_text(component, table.diagnostics()))
            set.components.push_back({*id, component.source});
    read_positions(table, set);
    set.leading_positions = table.whole_number("leading_positions", {0, set.positions}).value_or(0);
    if (const auto symmetry = table.entry("leading_symmetry"))
        set.is_antisymmetric = read_word(*symmetry, symmetries, table.diagnostics()).value_or(false);
    if (set.is_antisymmetric && set.reference_position > 0 && set.reference_position <= set.leading_positions)
        table.diagnostics().add(table.entry("leading_positions")->source,
                                fmt::format("{}.leading_positions is {}; expected less than the "
                                            "reference_position, {}: a reference temperature has one sign",
                                            table.path(), set.leading_positions, set.reference_position));
    read_pairs(table, set);
    if (const auto temperatures = table.entry("temperatures"))
        set.temperatures = read_temperatures(*temperatures, table.diagnostics());
    else
        table.missing("temperatures", "an array of temperatures or a table with from, to and count");
    if (!table.finish()) return {};
    return set;
}

class SetCheck {
public:
    SetCheck(const Case& input, const ParameterSet& set, Diagnostics& diagnostics)
        : input_(input), set_(set), path_("parameters." + set.name.id), diagnostics_(diagnostics)
    {
        for (const auto& component : set.components) ids_.push_back(component.id);
    }

    void run()
    {
        check_memory();
        std::set<std::string> seen;
        for (const auto& component : set_.components) {
            if (!input_.find(component.id))
                report(component, "{}.components names \"{}\", which is not a component{}", path_,
                       component.id, suggestion(component.id, input_.ids()));
            else if (!seen.insert(component.id).second)
                report(component, "{}.components names \"{}\" twice", path_, component.id);
        }
        std::set<std::pair<std::string, std::string>> given;
        for (const auto& pair : set_.pairs) check_pair(pair, given);
    }

private:
    // Matrices of all pairs: coefficients, and parameters, slopes and derivatives at each temperature.
    void check_memory()
    {
        constexpr double bytes_of_number = 500;
        const auto pairs =
            static_cast<double>(set_.components.size()) * static_cast<double>(set_.components.size());
        const auto matrices =
            static_cast<double>(set_.positions) + 3.0 * static_cast<double>(set_.temperatures.size());
        if (const auto lacking = lacking_memory(pairs * matrices * bytes_of_number); !lacking.empty())
            report(set_.name, "{}: {} temperatures of the pairs of {} components need {}", path_,
                   set_.temperatures.size(), set_.components.size(), lacking);
    }

    void check_pair(const ParameterPair& pair, std::set<std::pair<std::string, std::string>>& given)
    {
        for (const auto& end : {pair.first, pair.second})
            if (std::ranges::find(ids_, end.id) == ids_.end())
                return report(end, "{}.pairs names \"{}\", which is not in {}.components{}", path_, end.id,
                              path_, suggestion(end.id, ids_));
        if (pair.first.id == pair.second.id)
            report(pair.second, "{}.pairs pairs \"{}\" with itself", path_, pair.first.id);
        if (!given.insert({pair.first.id, pair.second.id}).second)
            report(pair.first, "{}.pairs gives the pair {}, {} twice", path_, pair.first.id, pair.second.id);
        check_reference(pair);
    }

    // The reduced temperature is a temperature over this one.
    void check_reference(const ParameterPair& pair)
    {
        if (set_.reference_position < 1) return;
        const double reference = pair.values[static_cast<std::size_t>(set_.reference_position - 1)];
        if (!(reference > 0))
            report(
                pair.first,
                "{}.pairs: the reference temperature of {}, {} at position {} is {}; expected greater than 0",
                path_, pair.first.id, pair.second.id, set_.reference_position, reference);
    }

    template <typename... Arguments>
    void report(const PlacedName& at, fmt::format_string<Arguments...> format, Arguments&&... arguments)
    {
        diagnostics_.add(at.source, fmt::format(format, std::forward<Arguments>(arguments)...));
    }

    const Case& input_;
    const ParameterSet& set_;
    std::string path_;
    std::vector<std::string_view> ids_;
    Diagnostics& diagnostics_;
};

}  // namespace

std::vector<ParameterSet> read_parameter_sets(TableReader table)
{
    std::vector<ParameterSet> sets;
    for (const auto& entry : table.entries())
        if (const auto reader = read_table(entry, table.diagnostics()))
            if (auto set = read_set(entry, *reader)) sets.push_back(std::move(*set));
    return sets;
}

void check_parameter_sets(const Case& input, Diagnostics& diagnostics)
{
    for (const auto& set : input.parameter_sets) SetCheck{input, set, diagnostics}.run();
}

}  // namespace app
