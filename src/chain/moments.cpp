// Chain-moment arrays of a stream vector, and the polymer that a second stream holds beyond a first.
//
//   Z = Σ ZMOM    F = Σ SFLOW(s)    S = Σ SMOM    W = Σ flow · M     over substreams and polymers
//
// With one result entry these are sums over whole polymers. With more, entry t belongs to the catalyst site
// type t ("SZMOM", "SSFLOW", "SSMOM"; W = Σ M(s) · SSFLOW(s), the mass of the site's segments) and the last
// entry holds the sums over all sites, with the mass flow of the polymers themselves. M is the molecular
// weight of a component. Of the differences between two streams
//
//   Mn  = W / Z      DPN = F / Z                                   number averages, ΔZ above the zero bound
//   MRS = W / F      DPW = S / F      Mw = S · (W / F) / F         weight averages, ΔF above exactly 0
//   PDI = Z · (S / F) / F
//
// Each entry is summed on its own, so that no room is needed between the streams.
#include <algorithm>
#include <array>

#include "chain/molecular_weight.h"
#include "polyprops/polyprops.h"

namespace polyprops::chain {

namespace {

constexpr Int skipped_substream_type = 3;

struct Moments {
    Real zeroth = 0.0;
    Real first = 0.0;
    Real second = 0.0;
    Real mass = 0.0;
};

// The site types that a result entry covers: one, or all of them (the whole polymer is its own only site).
struct Sites {
    Int first;
    Int last;
    bool all;

    static Sites of_entry(Int entry, Int entries)
    {
        if (entry < entries) return {entry, entry, false};
        return {1, std::max<Int>(entries - 1, 1), true};
    }
};

struct Offsets {
    Int zeroth;
    Int first;
    Int second;
};

// Where the moments of each polymer are. The host is asked once per polymer, however many substreams,
// streams and entries are read; polymers beyond the first 64 of the run are asked for again each time.
class MomentOffsets {
public:
    MomentOffsets(const ComponentList& polymers, bool by_site) : polymers_(polymers), by_site_(by_site) {}

    Offsets of(Int polymer)
    {
        if (polymer > remembered) return find(polymer);
        const std::uint64_t bit = std::uint64_t{1} << (polymer - 1);
        Offsets& offsets = offsets_[static_cast<std::size_t>(polymer - 1)];
        if ((found_ & bit) == 0) offsets = find(polymer);
        found_ |= bit;
        return offsets;
    }

private:
    static constexpr Int remembered = 64;

    Offsets find(Int polymer) const
    {
        using enum AttributeName;
        const auto offset = [&](AttributeName name) {
            return find_attribute(own_selector, polymers_(polymer), name);
        };
        if (by_site_) return {offset(szmom), offset(ssflow), offset(ssmom)};
        return {offset(zmom), offset(sflow), offset(smom)};
    }

    ComponentList polymers_;
    bool by_site_;
    std::uint64_t found_ = 0;
    std::array<Offsets, remembered> offsets_;
};

// One substream of a stream vector, from the position of its first component flow.
class Substream {
public:
    Substream(Vector<const Real> stream, Int origin) : stream_(stream), origin_(origin) {}

    Real flow(Component c) const { return stream_(origin_ + c.index - 1); }
    // Element of the attribute at an offset; 0 when the component does not carry it.
    Real value(Int offset, Int element) const
    {
        return offset > 0 ? stream_(origin_ + offset + element - 1) : 0.0;
    }

private:
    Vector<const Real> stream_;
    Int origin_;
};

// The data that both streams of a call share.
struct Layout {
    Int substreams;
    Vector<const Int> origins;
    Vector<const Int> types;
    ByComponent<const Real> molecular_weights;
    PolymerData data;
};

// Moments of one polymer of a substream in some of its sites.
Moments polymer_moments(const Layout& layout, const Substream& substream, const Offsets& offsets, Sites sites,
                        Real polymer_mass)
{
    const ComponentList& segments = layout.data.segments();
    Moments sum;
    for (Int t = sites.first; t <= sites.last; ++t) {
        Moments site;
        for (Int s = 1; s <= segments.count(); ++s) {
            const Real flow = substream.value(offsets.first, (t - 1) * segments.count() + s);
            site.first += flow;
            if (!sites.all) site.mass += layout.molecular_weights(segments(s)) * flow;
        }
        sum.zeroth += substream.value(offsets.zeroth, t);
        sum.first += site.first;
        sum.second += substream.value(offsets.second, t);
        sum.mass += site.mass;
    }
    if (sites.all) sum.mass = polymer_mass;
    return sum;
}

Moments stream_moments(const Layout& layout, Vector<const Real> stream, MomentOffsets& offsets, Sites sites)
{
    const ComponentList& polymers = layout.data.polymers();
    Moments sum;
    for (Int i = 1; i <= layout.substreams; ++i) {
        if (layout.types(i) == skipped_substream_type) continue;
        const Substream substream{stream, layout.origins(i)};
        for (Int p = 1; p <= polymers.count(); ++p) {
            const Real mass = substream.flow(polymers(p)) * layout.molecular_weights(polymers(p));
            if (below(mass, zero_bound())) continue;
            const Moments polymer = polymer_moments(layout, substream, offsets.of(p), sites, mass);
            sum.zeroth += polymer.zeroth;
            sum.first += polymer.first;
            sum.second += polymer.second;
            sum.mass += polymer.mass;
        }
    }
    return sum;
}

Moments difference(const Moments& later, const Moments& earlier)
{
    return {later.zeroth - earlier.zeroth, later.first - earlier.first, later.second - earlier.second,
            later.mass - earlier.mass};
}

struct NumberAverages {
    Real mwn = 0.0;
    Real dpn = 0.0;
};

NumberAverages number_averages(const Moments& m)
{
    if (!above(m.zeroth, zero_bound())) return {};
    return {m.mass / m.zeroth, m.first / m.zeroth};
}

struct WeightAverages {
    Real mrs = 0.0;
    Real mww = 0.0;
    Real dpw = 0.0;
    Real pdi = 0.0;
};

// The bound is exactly 0 here, where the number averages take the zero bound.
WeightAverages weight_averages(const Moments& m)
{
    if (!above(m.first, 0.0)) return {};
    return {m.mass / m.first, m.second * (m.mass / m.first) / m.first, m.second / m.first,
            m.zeroth * (m.second / m.first) / m.first};
}

}  // namespace

}  // namespace polyprops::chain

using namespace polyprops;

void POLY_GETMOMENTS(const Real* SV, const Int* NSS, const Int* K0, const Int* KTYPE, const Real* MW,
                     const Int* NS, Real* Z, Real* F, Real* S, Real* W)
{
    const chain::Layout layout{*NSS, Vector{K0, *NSS}, Vector{KTYPE, *NSS}, ByComponent{MW},
                               PolymerData::locate(chain::moment_parts)};
    if (layout.data.polymers().count() < 1) return;
    chain::MomentOffsets offsets{layout.data.polymers(), *NS > 1};
    const Vector zeroth{Z, *NS};
    const Vector first{F, *NS};
    const Vector second{S, *NS};
    const Vector mass{W, *NS};
    for (Int t = 1; t <= *NS; ++t) {
        const auto sites = chain::Sites::of_entry(t, *NS);
        const chain::Moments sum = chain::stream_moments(layout, Vector{SV}, offsets, sites);
        zeroth(t) = sum.zeroth;
        first(t) = sum.first;
        second(t) = sum.second;
        mass(t) = sum.mass;
    }
}

void POLY_POLYRESULTS(const Real* SV1, const Real* SV2, const Int* NSS, const Int* K0, const Int* KTYPE,
                      const Real* MW, const Int* NS, Real* PMASS, Real* PMRS, Real* PMWN, Real* PMWW,
                      Real* PDPN, Real* PDPW, Real* PPDI)
{
    const chain::Layout layout{*NSS, Vector{K0, *NSS}, Vector{KTYPE, *NSS}, ByComponent{MW},
                               PolymerData::locate(chain::moment_parts)};
    chain::MomentOffsets offsets{layout.data.polymers(), *NS > 1};
    const Vector mass{PMASS, *NS};
    const Vector mrs{PMRS, *NS};
    const Vector mwn{PMWN, *NS};
    const Vector mww{PMWW, *NS};
    const Vector dpn{PDPN, *NS};
    const Vector dpw{PDPW, *NS};
    const Vector pdi{PPDI, *NS};
    for (Int t = 1; t <= *NS; ++t) {
        const auto sites = chain::Sites::of_entry(t, *NS);
        const auto moments = [&](const Real* stream) {
            return chain::stream_moments(layout, Vector{stream}, offsets, sites);
        };
        const chain::Moments made = chain::difference(moments(SV2), moments(SV1));
        const chain::NumberAverages by_number = chain::number_averages(made);
        const chain::WeightAverages by_weight = chain::weight_averages(made);
        mass(t) = made.mass;
        mrs(t) = by_weight.mrs;
        mwn(t) = by_number.mwn;
        mww(t) = by_weight.mww;
        dpn(t) = by_number.dpn;
        dpw(t) = by_weight.dpw;
        pdi(t) = by_weight.pdi;
    }
}
