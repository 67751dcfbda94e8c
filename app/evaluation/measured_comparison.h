// A measured curve compared with a composite distribution.
//
// The signal is compared with ln(10)·x·w(x) of the composite, x the chain length at M, w the weight fraction
// per unit of chain length; both are scaled to area 1 over log10(M) in the measured range.
#pragma once

#include <string>
#include <vector>

#include "app/case/measured_curve.h"

namespace app {

struct MeasuredComparison {
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

// The composite of a distribution.
struct CompositeCurve {
    std::string distribution;
    bool is_gpc = false;          // the form of the distribution's curves
    double segment_weight = 0;    // g/mol
    std::vector<double> lengths;  // segments
    std::vector<double> heights;  // x·w(x)
};

// Throws std::runtime_error when the composite has nothing in the measured range.
MeasuredComparison compare(const MeasuredCurve& measured, const CompositeCurve& composite);

}  // namespace app
