#include <cmath>
#include <nlohmann/json.hpp>
#include <set>
#include <string>

#include "app/case/case_document.h"
#include "app/case/measured_options.h"
#include "app/evaluation/evaluation.h"
#include "app/evaluation/input_results.h"
#include "app/fit/deconvolution.h"
#include "app/io/visible_text.h"
#include "app/report/format.h"
#include "app/report/make_report.h"
#include "app/report/output_files.h"
#include "fuzz/cases.h"

namespace polyprops_fuzz {
namespace {

bool fits_a_terminal(std::string text)
{
    std::erase(text, '\n');
    return !app::has_control_characters(text);
}

// Sums of what makes a run long: such cases are slow, and find nothing that smaller ones do not.
bool is_small(const app::Case& input)
{
    std::size_t points = 0;
    for (const auto& distribution : input.distributions)
        points += static_cast<std::size_t>(distribution.points) *
                  (1 + distribution.components.size() + distribution.sections.size());
    for (const auto& set : input.parameter_sets)
        points += set.temperatures.size() * set.components.size() * set.components.size();
    return points < 2000 &&
           (!input.paragraph || !input.paragraph->sites || input.paragraph->sites->count < 40);
}

void check_forms(const app::Report& report)
{
    require(fits_a_terminal(app::format_text(report)), "the text holds control characters");
    require(nlohmann::json::accept(app::format_json(report)), "the JSON form is no JSON");
    require(!app::format_html(report).empty(), "there is no HTML form");
    for (const auto texts : {app::CsvTexts::exact, app::CsvTexts::guarded})
        require(app::format_csv(report, texts).ends_with('\n'), "the CSV form does not end its last line");
    for (const auto& found : report.diagnostics)
        require(fits_a_terminal(line(found, report.file)), "a diagnostic holds control characters");
    for (const auto& section : report.sections)
        for (const auto& table : section.tables) {
            std::set<std::string> keys;
            for (const auto& column : table.columns)
                require(keys.insert(column.key).second, "two columns have one key");
            for (const auto& row : table.rows)
                require(row.size() == table.columns.size(), "a row has other columns than its table");
        }
}

void check_run(const app::Case& input)
{
    check_forms(make_input_report(input, app::evaluate_input(input)));
    const auto results = app::evaluate(input);
    const auto report = make_report(input, results);
    check_forms(report);
    std::set<std::string> names;
    for (const auto& file : output_files("case", input, report, results.library_output))
        require(names.insert(file.name).second, "two files have one name");
}

// Sites of 28 g/mol per segment, with some of their mass in every decade up to 10⁶.
app::CompositeCurve some_composite()
{
    app::CompositeCurve curve{"D", false, 28, {}, {}};
    for (double x = 2; x < 4e4; x *= 1.1) {
        curve.lengths.push_back(x);
        curve.heights.push_back(x * 1e-6 * x * std::exp(-1e-3 * x));
    }
    return curve;
}

app::MeasuredCurveOptions options_of(std::string_view text)
{
    app::MeasuredCurveOptions options;
    for (std::size_t at = 0; at < text.size();) {
        const auto end = std::min(text.find(' ', at), text.size());
        const auto word = text.substr(at, end - at);
        const auto key = word.substr(0, word.find('='));
        for (const auto& option : app::measured_options())
            if (key == option.key) set(option, word.substr(std::min(key.size() + 1, word.size())), options);
        at = end + 1;
    }
    return options;
}

bool is_finite(const app::MolecularWeightAverages& a)
{
    return std::isfinite(a.mn) && std::isfinite(a.mw) && std::isfinite(a.mz) && std::isfinite(a.mz1) &&
           std::isfinite(a.mv.value_or(0));
}

// What a curve may be refused for.
template <typename Action>
void allow_refusal(const Action& action)
{
    try {
        action();
    } catch (const std::runtime_error& error) {
        require(fits_a_terminal(error.what()), "a refusal holds control characters");
    } catch (const std::invalid_argument& error) {
        require(fits_a_terminal(error.what()), "a refusal holds control characters");
    }
}

}  // namespace

void check_case_text(std::string_view text)
{
    const app::CaseDocument document{text, "case.toml"};
    for (const auto& key : document.keys()) document.number(key);
    app::Diagnostics diagnostics;
    const auto input = document.read(diagnostics);
    for (const auto& found : diagnostics.lines("case.toml"))
        require(!app::has_control_characters(found), "a diagnostic holds control characters");
    if (diagnostics.empty() && is_small(input)) check_run(input);
}

void check_curve_text(std::string_view text)
{
    static const auto composite = some_composite();
    const auto options = text.substr(0, text.find('\n'));
    const auto lines = text.substr(std::min(options.size() + 1, text.size()));
    allow_refusal([&] {
        const auto curve = app::parse_measured_curve(lines, "curve.csv", options_of(options));
        require(std::ranges::is_sorted(curve.molecular_weight), "molecular weights fall");
        allow_refusal([&] {
            require(is_finite(compare(curve, composite).measured_averages), "an average is not finite");
        });
        const auto report = make_fit_report({}, fit(curve, 28, {1, 2, false}));
        check_forms(report);
        require(!has_errors(report), "a result of the fit is not finite");
    });
}

}  // namespace polyprops_fuzz
