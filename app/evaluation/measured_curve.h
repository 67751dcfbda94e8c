// Measured curves of gel permeation chromatography: two columns, molecular weight and signal.
//
// A signal is proportional to dw/dlog10(M). It is compared with ln(10)·x·w(x) of a composite distribution, x
// the chain length at M, w the weight fraction per unit of chain length; both are scaled to area 1 over
// log10(M) in the measured range.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "app/evaluation/distributions.h"

namespace app {

struct GpcCurve {
    std::vector<std::string> notes;        // lines before the first pair of numbers
    std::vector<double> molecular_weight;  // g/mol, increasing
    std::vector<double> signal;            // any unit

    std::size_t size() const { return signal.size(); }
};

// Throws std::runtime_error with file and line of what is no such curve.
GpcCurve read_gpc(const std::filesystem::path& file);
GpcCurve parse_gpc(std::string_view text, const std::string& file);

struct GpcComparison {
    std::string file;
    std::vector<std::string> notes;
    std::vector<double> molecular_weight;     // g/mol
    std::vector<double> chain_length;         // 1
    std::vector<double> measured;             // dw/dlog10(M), area 1
    std::vector<double> calculated;           // the same
    std::vector<double> overlay;              // measured, in the form of the distribution's curves
    double residual = 0;                      // root mean square difference over the largest measured value
    double largest_difference = 0;            // over the largest measured value
    double mn_measured = 0, mw_measured = 0;  // g/mol
    double mn_calculated = 0, mw_calculated = 0;  // g/mol
};

// Throws std::runtime_error when the distribution has no segment weight, or nothing in the measured range.
GpcComparison compare(const GpcCurve& measured, const std::string& file,
                      const DistributionResults& distribution);

// The composite in the form that read_gpc reads.
std::string format_gpc(const DistributionResults& distribution);

}  // namespace app
