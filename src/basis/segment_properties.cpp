// A property of polymers and oligomers as the mean over their segments.
//
//   Q = Σ f(m) · QS(SEG(m))                                      fractions by number
//   Q = Σ QS(SEG(m)) · f(m) · WS(SEG(m)) / Σ f(m) · WS(SEG(m))   weighted
//
// A component without known segments has its own property. The two means find a polymer's fractions by
// different rules: missing flows count nothing in one total and equal shares in the other, and only the
// weighted mean turns to "SFRAC" and asks the host what an oligomer is.
#include "host/species.h"
#include "polyprops/polyprops.h"

namespace polyprops::basis {

namespace {

constexpr unsigned segment_property_parts = PolymerData::segment_list | PolymerData::oligomer_block;

using Properties = ByComponent<const Real>;

// Sum of value(m) over the positions of the segment list.
template <class Value>
Real sum_over(const ComponentList& segments, Value value)
{
    Real sum = 0.0;
    for (Int m = 1; m <= segments.count(); ++m) sum += value(m);
    return sum;
}

Real equal_share(const ComponentList& segments)
{
    return 1.0 / static_cast<Real>(segments.count());
}

Real total_count(const PolymerData& data, Int column)
{
    return sum_over(data.segments(), [&](Int m) { return data.oligomers().segments(m, column); });
}

// ---- by number ----

Real polymer_mean(const ComponentList& segments, const Attribute& flows, Properties properties)
{
    const auto property = [&](Int m) { return properties(segments(m)); };
    const Real total = sum_over(segments, [&](Int m) { return is_missing(flows(m)) ? 0.0 : flows(m); });
    if (!above(total, zero_bound()))
        return sum_over(segments, property) / static_cast<Real>(segments.count());
    return sum_over(segments, [&](Int m) {
        const Real flow = is_missing(flows(m)) ? equal_share(segments) : flows(m);
        return flow * property(m) / total;
    });
}

Real mean(const PolymerData& data, const Species& species, Properties properties)
{
    const Component c = species.component();
    if (!data.exists()) return properties(c);
    const ComponentList& segments = data.segments();
    if (species.is_polymer()) {
        if (segments.count() < 1) return properties(c);
        return polymer_mean(segments, species.attribute(AttributeName::sflow), properties);
    }
    const Int column = data.oligomers().column_of(c);
    if (column < 1) return properties(c);
    const Real total = total_count(data, column);
    return sum_over(segments, [&](Int m) {
        return data.oligomers().segments(m, column) / total * properties(segments(m));
    });
}

// ---- weighted ----

struct Weighting {
    const ComponentList& segments;
    Properties properties;
    Properties weights;

    template <class Fraction>
    Real mean(Fraction fraction) const
    {
        Real numerator = 0.0;
        Real denominator = 0.0;
        for (Int m = 1; m <= segments.count(); ++m) {
            const Component s = segments(m);
            const Real f = fraction(m);
            numerator += properties(s) * f * weights(s);
            denominator += f * weights(s);
        }
        return numerator / denominator;
    }
};

Real polymer_weighted_mean(const Weighting& weighting, const Species& polymer)
{
    const ComponentList& segments = weighting.segments;
    const Attribute flows = polymer.attribute(AttributeName::sflow);
    const auto flow = [&](Int m) { return is_missing(flows(m)) ? equal_share(segments) : flows(m); };
    const Real total_flow = sum_over(segments, flow);
    if (above(total_flow, zero_bound())) return weighting.mean([&](Int m) { return flow(m) / total_flow; });

    const Attribute fractions = polymer.attribute(AttributeName::sfrac);
    const Real total = fractions.sum(segments.count());
    if (is_between_bounds(total)) return weighting.mean([&](Int m) { return fractions(m) / total; });
    return weighting.mean([&](Int) { return equal_share(segments); });
}

Real weighted_mean(const PolymerData& data, const Species& species, Properties weights, Properties properties)
{
    const Component c = species.component();
    if (!data.exists()) return properties(c);
    const Weighting weighting{data.segments(), properties, weights};
    if (species.is_polymer())
        return data.segments().count() < 1 ? properties(c) : polymer_weighted_mean(weighting, species);
    const Int column = species.is_oligomer() ? data.oligomers().column_of(c) : 0;
    if (column < 1) return properties(c);
    const Real total = total_count(data, column);
    return weighting.mean([&](Int m) { return data.oligomers().segments(m, column) / total; });
}

}  // namespace

}  // namespace polyprops::basis

using namespace polyprops;

void POLY_QSGTOQ(const Int* N, const Int* IDX, const Real* QS, Real* Q)
{
    const auto data = PolymerData::locate(basis::segment_property_parts);
    const ComponentList components{*N, IDX};
    const Vector<Real> out{Q, *N};
    for (Int i = 1; i <= components.count(); ++i)
        out(i) = basis::mean(data, {own_selector, components(i)}, ByComponent{QS});
}

void POLY_QSTOQA(const Real* WS, const Int* N, const Int* IDX, const Real* QS, Real* Q)
{
    const auto data = PolymerData::locate(basis::segment_property_parts);
    const ComponentList components{*N, IDX};
    const Vector<Real> out{Q, *N};
    for (Int i = 1; i <= components.count(); ++i)
        out(i) = basis::weighted_mean(data, {own_selector, components(i)}, ByComponent{WS}, ByComponent{QS});
}
