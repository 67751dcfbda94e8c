// A measured curve compared with a composite distribution.
//
// The signal is compared with ln(10)·x·w(x) of the composite, x the chain length at M, w the weight fraction
// per unit of chain length; both are scaled to area 1 over log10(M) in the measured range.
//
// Averages of a curve w over log10(M), by trapezoids between its points:
//
//   Mn = ∫w / ∫(w/M)   Mw = ∫wM / ∫w   Mz = ∫wM² / ∫wM   Mz+1 = ∫wM³ / ∫wM²   Mv = (∫wM^a / ∫w)^(1/a)
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/case/measured_curve.h"

namespace app {

struct MolecularWeightAverages {
    double mn = 0, mw = 0, mz = 0, mz1 = 0;  // g/mol; Mz+1 is mz1
    double pdi = 0;                          // Mw/Mn
    std::optional<double> mv;                // g/mol; of a given Mark-Houwink exponent
};

// The curve needs an area greater than 0.
MolecularWeightAverages averages_over_log10(const std::vector<double>& molecular_weight,
                                            const std::vector<double>& curve,
                                            std::optional<double> mark_houwink_exponent = {});

struct MeasuredComparison {
    std::string file;
    std::vector<std::string> notes;
    std::vector<double> molecular_weight;  // g/mol
    std::vector<double> chain_length;      // 1
    std::vector<double> measured;          // dw/dlog10(M), area 1
    std::vector<double> calculated;        // the same
    std::vector<double> overlay;           // measured, in the form of the distribution's curves
    double residual = 0;                   // root mean square difference over the largest measured value
    double largest_difference = 0;         // over the largest measured value
    MolecularWeightAverages measured_averages;
    MolecularWeightAverages calculated_averages;  // in the measured range
};

// The composite of a distribution.
struct CompositeCurve {
    std::string distribution;
    bool is_gpc = false;          // the form of the distribution's curves
    double segment_weight = 0;    // g/mol
    std::vector<double> lengths;  // segments
    std::vector<double> heights;  // x·w(x)
};

// Throws std::runtime_error when the composite has nothing in the measured range.
// A warning for each end of the curve at which the signal is more than 10 % of its largest value.
std::vector<std::string> cut_ends(const MeasuredCurve& curve);

MeasuredComparison compare(const MeasuredCurve& measured, const CompositeCurve& composite);

}  // namespace app
