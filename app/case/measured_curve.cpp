#include "app/case/measured_curve.h"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>
#include <cmath>
#include <stdexcept>

#include "app/case/curve_columns.h"
#include "app/io/file_contents.h"
#include "app/io/visible_text.h"

namespace app {

namespace {

// A column that ends below the first may hold logarithms to base 10 or e, below the second even under a
// heading of molecular weights; a logarithm beyond the third is a mistake.
constexpr double least_evident_weight = 100;  // g/mol
constexpr double least_headed_weight = 10;    // g/mol
constexpr double largest_exponent = 15;
// Averages and residuals of numbers within these have no infinity.
constexpr double largest_weight = 1e15;  // g/mol; its reciprocal is the least
constexpr double largest_signal = 1e100;

[[noreturn]] void refuse(const std::string& file, const std::string& why)
{
    throw std::runtime_error{fmt::format("{}: {}", visible(file), why)};
}

std::string lower_case(std::string text)
{
    for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    return text;
}

// `log M`, `log10(MW)`, `lg_m`, but not the derivative `dw/dlog10(M)`.
bool names_logarithm(const std::string& note)
{
    for (const std::string_view name : {"log", "lg"})
        for (auto at = note.find(name); at != std::string::npos; at = note.find(name, at + 1)) {
            const auto next = note.find_first_not_of("10 _([", at + name.size());
            const bool is_derivative = at > 0 && note[at - 1] == 'd';
            if (next != std::string::npos && note[next] == 'm' && !is_derivative) return true;
        }
    return false;
}

// `g/mol`, `molecular weight`, `molar mass`, or a first column headed `M` or `Mw`.
bool names_molecular_weight(const std::string& note)
{
    for (const std::string_view name : {"g/mol", "molecular", "molar mass"})
        if (note.find(name) != std::string::npos) return true;
    const auto first = note.substr(0, note.find_first_of(" \t,;"));
    return first == "m" || first == "mw";
}

WeightColumn evident_column(const CurveColumns& columns, const std::string& file)
{
    bool is_headed = false;
    for (const auto& note : columns.notes) {
        const auto text = lower_case(note);
        if (names_logarithm(text)) return WeightColumn::log10m;
        is_headed = is_headed || names_molecular_weight(text);
    }
    const auto [least, largest] = std::ranges::minmax(columns.pairs, {}, &ColumnPair::first);
    if (largest.first >= (is_headed ? least_headed_weight : least_evident_weight)) return WeightColumn::m;
    refuse(file,
           fmt::format("the first column goes from {} to {}, small for M in g/mol, and no heading names "
                       "log10(M); expected the option --gpc-column m or --gpc-column log10m",
                       least.first, largest.first));
}

bool is_weight(double m)
{
    return m >= 1 / largest_weight && m <= largest_weight;
}

double signal(const ColumnPair& pair, const std::string& file)
{
    if (std::abs(pair.second) > largest_signal)
        refuse_line(file, pair.line, pair.text, "a signal of 1e100 at most");
    return pair.second;
}

double molecular_weight(const ColumnPair& pair, WeightColumn column, const std::string& file)
{
    if (column == WeightColumn::m) {
        if (!(pair.first > 0)) refuse_line(file, pair.line, pair.text, "a molecular weight greater than 0");
        if (!is_weight(pair.first))
            refuse_line(file, pair.line, pair.text, "a molecular weight from 1e-15 to 1e15 g/mol");
        return pair.first;
    }
    if (std::abs(pair.first) > largest_exponent)
        refuse_line(file, pair.line, pair.text,
                    fmt::format("log10 of a molecular weight, {} at most", largest_exponent));
    return std::pow(10.0, pair.first);
}

MeasuredCurve uncorrected(const CurveColumns& columns, const std::string& file, WeightColumn column)
{
    MeasuredCurve curve;
    curve.file = file;
    curve.notes = columns.notes;
    if (column == WeightColumn::evident && !columns.pairs.empty()) column = evident_column(columns, file);
    for (const auto& pair : columns.pairs) {
        curve.molecular_weight.push_back(molecular_weight(pair, column, file));
        curve.signal.push_back(signal(pair, file));
        curve.lines.push_back(pair.line);
    }
    return curve;
}

// A detector writes in the order of elution: molecular weights may fall as well as rise.
void put_in_order(MeasuredCurve& curve)
{
    auto& m = curve.molecular_weight;
    if (m.size() < 2)
        refuse(curve.file,
               fmt::format("{} with two numbers; expected at least 2: molecular weight and signal",
                           m.empty() ? "no line" : "1 line"));
    if (m.front() > m.back()) {
        std::ranges::reverse(m);
        std::ranges::reverse(curve.signal);
        std::ranges::reverse(curve.lines);
    }
    const auto fault = std::ranges::adjacent_find(m, std::greater_equal{});
    if (fault != m.end())
        refuse(
            fmt::format("{}:{}", curve.file, curve.lines[static_cast<std::size_t>(fault - m.begin()) + 1]),
            fmt::format("molecular weight {} is followed by {}; expected molecular weights that all rise or "
                        "all fall",
                        *fault, *(fault + 1)));
}

// How far the second molecular weight is on the way from the first to the third, over log10(M).
double share(double low, double m, double high)
{
    return std::log(m / low) / std::log(high / low);
}

double signal_at(const MeasuredCurve& curve, double weight)
{
    const auto& m = curve.molecular_weight;
    if (weight < m.front() || weight > m.back())
        refuse(curve.file,
               fmt::format("--gpc-baseline: {} g/mol is {:.6g} g/mol {} the curve; expected two molecular "
                           "weights within its {} points, {} to {} g/mol",
                           weight, weight < m.front() ? m.front() - weight : weight - m.back(),
                           weight < m.front() ? "below" : "above", m.size(), m.front(), m.back()));
    const auto above = std::ranges::upper_bound(m.begin() + 1, m.end() - 1, weight);
    const auto k = static_cast<std::size_t>(above - m.begin());
    return std::lerp(curve.signal[k - 1], curve.signal[k], share(m[k - 1], weight, m[k]));
}

void subtract_baseline(MeasuredCurve& curve, const WeightRange& ends)
{
    const double low = signal_at(curve, ends.low);
    const double high = signal_at(curve, ends.high);
    for (std::size_t k = 0; k < curve.size(); ++k)
        curve.signal[k] -= std::lerp(low, high, share(ends.low, curve.molecular_weight[k], ends.high));
}

template <typename Value>
void keep(std::vector<Value>& values, std::size_t first, std::size_t end)
{
    values.erase(values.begin() + static_cast<std::ptrdiff_t>(end), values.end());
    values.erase(values.begin(), values.begin() + static_cast<std::ptrdiff_t>(first));
}

void keep_window(MeasuredCurve& curve, const WeightRange& window)
{
    const auto& m = curve.molecular_weight;
    const auto first = static_cast<std::size_t>(std::ranges::lower_bound(m, window.low) - m.begin());
    const auto end = static_cast<std::size_t>(std::ranges::upper_bound(m, window.high) - m.begin());
    if (end < first + 2)
        refuse(curve.file, fmt::format("--gpc-window: {} of {} points are within {} to {} g/mol; expected at "
                                       "least 2 of the points from {} to {} g/mol",
                                       end - first, m.size(), window.low, window.high, m.front(), m.back()));
    keep(curve.molecular_weight, first, end);
    keep(curve.signal, first, end);
    keep(curve.lines, first, end);
}

void settle_negative(MeasuredCurve& curve, NegativeSignal choice, bool has_baseline)
{
    for (std::size_t k = 0; k < curve.size(); ++k) {
        if (!(curve.signal[k] < 0)) continue;
        if (choice == NegativeSignal::refuse)
            throw std::runtime_error{fmt::format(
                "{}:{}: the signal {}is {}; expected 0 or more, a --gpc-baseline or --gpc-window that leaves "
                "no such point, or --gpc-negative cut, which counts it as 0",
                curve.file, curve.lines[k], has_baseline ? "above the baseline " : "", curve.signal[k])};
        curve.signal[k] = 0;
    }
}

// A curve of tails only has no averages.
void check_height(const MeasuredCurve& curve)
{
    const double highest = std::ranges::max(curve.signal);
    if (highest > 0 && highest < 1 / largest_signal)
        refuse(curve.file, fmt::format("the greatest signal is {}; expected 1e-100 to 1e100", highest));
}

void calibrate(MeasuredCurve& curve, const UniversalCalibration& c)
{
    const double slope = (1 + c.a_standard) / (1 + c.a_polymer);
    const double offset = std::log10(c.k_standard / c.k_polymer) / (1 + c.a_polymer);
    for (auto& m : curve.molecular_weight) {
        m = std::pow(10.0, offset + slope * std::log10(m));
        if (!is_weight(m))
            refuse(
                curve.file,
                fmt::format("--gpc-calibration: a molecular weight becomes {} g/mol; expected 1e-15 to 1e15 "
                            "g/mol, and K1 and K2 in the same unit",
                            m));
    }
    // dw/dlog10(M) keeps its area.
    for (auto& signal : curve.signal) signal /= slope;
}

}  // namespace

MeasuredCurve parse_measured_curve(std::string_view text, const std::string& file,
                                   const MeasuredCurveOptions& options)
{
    if (text.size() > largest_input) refuse(file, "is too large: " + too_large(text.size()));
    auto curve = uncorrected(read_columns(text, file), file, options.column);
    put_in_order(curve);
    if (options.baseline) subtract_baseline(curve, *options.baseline);
    if (options.window) keep_window(curve, *options.window);
    settle_negative(curve, options.negative, options.baseline.has_value());
    check_height(curve);
    if (options.calibration) calibrate(curve, *options.calibration);
    curve.mark_houwink_exponent = options.mark_houwink_exponent;
    return curve;
}

MeasuredCurve read_measured_curve(const std::filesystem::path& file, const MeasuredCurveOptions& options)
{
    return parse_measured_curve(input_file_contents(file), file.string(), options);
}

}  // namespace app
