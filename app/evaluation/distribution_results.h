// Chain-length distributions of a case: curves, exact averages, averages on the grid, and checks.
//
// Every curve is its part of the composite: its area is the share of its amount in the whole, but for the
// mass outside the grid. Sites add up to their section, sections and components to the composite.
//
// Averages on the grid are those of the library's report, by the trapezoid rule, with h the weight fraction
// per unit of chain length and each trapezoid weighted by the chain length at its right-hand end:
//
//   a(k) = 0.5·(h(k) + h(k+1))·(x(k+1) − x(k))      area = Σ a(k)
//   1/Pn = Σ a(k)/x(k+1) / share      Pw = Σ a(k)·x(k+1) / share      PDI = Pw/Pn
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/case/diagnostics.h"
#include "app/evaluation/measured_comparison.h"

namespace app {

// In closed form, without the grid.
struct DistributionAverages {
    double pn = 0;             // segments per chain, number average
    double pw = 0;             // the same, weight average
    double pz = 0;             // the same, z-average
    double pz1 = 0;            // the same, (z+1)-average
    double pdi = 0;            // Pw/Pn
    double mn = 0;             // g/mol; this and the next only with a segment weight
    double mw = 0;             // g/mol
    double mz = 0;             // g/mol
    double mz1 = 0;            // g/mol
    std::optional<double> mv;  // g/mol; with a Mark-Houwink exponent and a segment weight
    double below_grid = 0;     // mass fraction of chains shorter than the first grid point
    double above_grid = 0;     // mass fraction of chains longer than the last grid point
};

struct GridAverages {
    double area = 0;           // 1
    double pn = 0;             // segments per chain
    double pw = 0;             // segments per chain
    double pdi = 0;            // Pw/Pn
    double pn_grid_error = 0;  // percent of the closed form
    double pw_grid_error = 0;  // percent of the closed form
};

struct Curve {
    enum class Kind { composite, section, site, component };

    std::string name;
    Kind kind = Kind::composite;
    double amount = 0;
    std::vector<double> values;                    // by grid point
    std::vector<double> chromatogram;              // dw/dlog10(M), by grid point
    std::optional<DistributionAverages> averages;  // empty when nothing was made
    std::optional<GridAverages> on_grid;           // empty when the grid reaches nothing
};

// As the key of its chromatogram.
inline std::string chromatogram_name(const Curve& curve)
{
    return curve.kind == Curve::Kind::composite ? "dw_dlog10m" : "dw_dlog10m " + curve.name;
}

// Averages of a curve by its parameters and by the moments of a stream.
struct CurveCheck {
    std::string curve;
    double pn = 0;           // by its parameters
    double pn_expected = 0;  // by moments
    double pw = 0;
    double pw_expected = 0;

    double pn_difference() const { return pn / pn_expected - 1; }
    double pw_difference() const { return pw / pw_expected - 1; }
};

struct DistributionResults {
    std::string name;
    bool is_gpc = false;
    std::optional<double> segment_weight;   // g/mol
    std::optional<double> exponent;         // of Mark and Houwink
    std::vector<double> lengths;            // segments
    std::vector<double> molecular_weights;  // g/mol; empty when the segment weight is not known
    std::vector<Curve> curves;              // the composite, each section and its sites, components
    std::vector<double> cumulative;         // mass fraction on the grid of the chains up to each length
    std::vector<CurveCheck> checks;
    std::optional<MeasuredComparison> measured;
    std::vector<std::vector<double>> parts;  // of the composite, each of area 1
    std::vector<std::string> notes;          // about results that are as they should be
    std::vector<Diagnostic> warnings;

    const Curve& composite() const { return curves.front(); }
    // Weight fraction per unit of chain length.
    double height(const Curve& curve, std::size_t k) const
    {
        return is_gpc ? curve.values[k] / lengths[k] : curve.values[k];
    }
};

}  // namespace app
