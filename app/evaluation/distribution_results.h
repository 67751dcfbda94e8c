// Chain-length distributions of a case: curves, averages, and checks of both.
//
// Averages by the trapezoid rule of the library's report, with h the weight fraction per unit of chain length
// and each trapezoid weighted by the chain length at its right-hand end:
//
//   a(k) = 0.5·(h(k) + h(k+1))·(x(k+1) − x(k))      area = Σ a(k)
//   1/Pn = Σ a(k)/x(k+1)      Pw = Σ a(k)·x(k+1)      PDI = Pw/Pn
//
// A site's curve is its part of the composite: its area is its mass fraction, and its averages are divided by
// it. So 1/Pn of the composite is the sum of area/Pn of the sites, and its Pw that of area·Pw, on any grid.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/evaluation/measured_comparison.h"

namespace app {

struct CurveAverages {
    double area = 0;  // 1
    double pn = 0;    // segments per chain, number average
    double pw = 0;    // the same, weight average
    double pdi = 0;   // Pw/Pn
    double mn = 0;    // g/mol; 0 when the segment weight is not known
    double mw = 0;    // g/mol; the same

    // What the grid leaves open: the relative distance to the average that weights by left-hand chain
    // lengths.
    double pn_spread = 0;
    double pw_spread = 0;
};

struct Curve {
    enum class Kind { composite, section, site };

    std::string name;
    Kind kind = Kind::composite;
    double amount = 0;
    std::vector<double> values;  // by grid point
    CurveAverages averages;
};

// Averages of a curve from another source.
struct CurveCheck {
    std::string curve;
    std::string source;
    CurveAverages averages;
    double pn = 0;
    double pw = 0;
    double pn_tolerance = 0;  // relative
    double pw_tolerance = 0;

    double pn_difference() const { return averages.pn / pn - 1; }
    double pw_difference() const { return averages.pw / pw - 1; }
    bool agrees() const;
};

struct DistributionResults {
    std::string name;
    bool is_gpc = false;
    std::optional<double> segment_weight;   // g/mol
    std::vector<double> lengths;            // segments
    std::vector<double> molecular_weights;  // g/mol; empty when the segment weight is not known
    std::vector<Curve> curves;              // the composite first, then each section and its sites
    std::vector<double> cumulative;         // mass fraction of the chains up to each length
    std::vector<double> chromatogram;       // dw/dlog10(M) of the composite
    std::vector<CurveCheck> checks;
    std::optional<MeasuredComparison> measured;

    const Curve& composite() const { return curves.front(); }
    // Weight fraction per unit of chain length.
    double height(const Curve& curve, std::size_t k) const
    {
        return is_gpc ? curve.values[k] / lengths[k] : curve.values[k];
    }
};

}  // namespace app
