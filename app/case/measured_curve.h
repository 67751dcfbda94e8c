// A measured curve of gel permeation chromatography: two columns, molecular weight and signal.
//
// A file is read in this order: columns, baseline, integration window, negative signals, calibration. So
// baseline and window are in the molecular weights of the file.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace app {

// Content of the first column.
enum class WeightColumn { evident, m, log10m };

// A signal below zero ends the reading, or counts as zero.
enum class NegativeSignal { refuse, cut };

struct WeightRange {
    double low = 0;   // g/mol
    double high = 0;  // g/mol, greater than low
};

// Mark-Houwink parameters of the standards and of the polymer: [η] = K·M^a, K of both in the same unit.
//
//   log M2 = log(K1/K2)/(1 + a2) + log M1·(1 + a1)/(1 + a2)
struct UniversalCalibration {
    double k_standard = 1, a_standard = 0;
    double k_polymer = 1, a_polymer = 0;
};

struct MeasuredCurveOptions {
    WeightColumn column = WeightColumn::evident;
    std::optional<WeightRange> baseline;  // ends of a straight line over log10(M), which is subtracted
    std::optional<WeightRange> window;    // points outside are dropped
    NegativeSignal negative = NegativeSignal::refuse;
    std::optional<UniversalCalibration> calibration;
    std::optional<double> mark_houwink_exponent;  // for Mv
};

struct MeasuredCurve {
    std::string file;
    std::vector<std::string> notes;        // lines before the first pair of numbers
    std::vector<double> molecular_weight;  // g/mol, increasing
    std::vector<double> signal;            // proportional to dw/dlog10(M), any unit, 0 or greater
    std::vector<std::size_t> lines;        // of the file, by point
    std::optional<double> mark_houwink_exponent;

    std::size_t size() const { return signal.size(); }
};

// Both throw std::runtime_error with file and line of text that is no such curve.
MeasuredCurve read_measured_curve(const std::filesystem::path& file,
                                  const MeasuredCurveOptions& options = {});
MeasuredCurve parse_measured_curve(std::string_view text, const std::string& file,
                                   const MeasuredCurveOptions& options = {});

}  // namespace app
