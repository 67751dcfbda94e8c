// A measured curve of gel permeation chromatography: two columns, molecular weight and signal.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace app {

struct MeasuredCurve {
    std::string file;
    std::vector<std::string> notes;        // lines before the first pair of numbers
    std::vector<double> molecular_weight;  // g/mol, increasing
    std::vector<double> signal;            // proportional to dw/dlog10(M), any unit

    std::size_t size() const { return signal.size(); }
};

// Both throw std::runtime_error with file and line of text that is no such curve.
MeasuredCurve read_measured_curve(const std::filesystem::path& file);
MeasuredCurve parse_measured_curve(std::string_view text, const std::string& file);

}  // namespace app
