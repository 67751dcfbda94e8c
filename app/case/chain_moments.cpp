// Moments of chains.
//
//   m0 = Σ f M                      f mole fraction, M molecular weight of a segment    [g/mol]
//   m0 = 1 / Σ (w / M)              w mass fraction
//   F  = W / m0, Z = W / Mn         W mass flow: segments and chains                    [kmol/h]
//   S  = (Mw / m0) F, T = (Mz / m0) S
//
// Fractions of a polymer add Z, F, W, W Mw and W Mw Mz, so that their averages are those by mass even where
// their segment weights differ; m0 is then that of the whole, W / F.
//
// A type of distribution relates the averages, with D = Mw / Mn: Mz / Mw is D for a log-normal one and
// 2 - 1/D for that of Schulz and Zimm.
#include "app/case/chain_moments.h"

#include <fmt/format.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <cmath>

namespace app {

namespace {

constexpr double fraction_sum_tolerance = 1e-6;
constexpr double agreement = 1e-3;  // of averages that are given twice: published values are rounded
constexpr double rounding = 1e-9;   // relative, of averages that were converted

using Number = std::optional<double>;

struct Averages {
    double mn = 0, mw = 0;  // g/mol
    Number mz;
};

double z_ratio(ChainLengthModel type, double dispersity)
{
    return type == ChainLengthModel::log_normal ? dispersity : 2 - 1 / dispersity;
}

// Mw/Mn from Mz/Mw; empty where the type has none.
Number dispersity_by_z_ratio(ChainLengthModel type, double ratio)
{
    if (type == ChainLengthModel::log_normal) return ratio;
    return ratio < 2 ? Number{1 / (2 - ratio)} : Number{};
}

// Mw/Mn from Mz/Mn.
double dispersity_by_whole_ratio(ChainLengthModel type, double ratio)
{
    return type == ChainLengthModel::log_normal ? std::sqrt(ratio) : (ratio + 1) / 2;
}

// Sums over fractions, with W the mass flow of each.
struct FractionSums {
    double mass = 0;                    // W, kg/h
    double chains = 0;                  // kmol/h
    double segments = 0;                // kmol/h
    double by_mw = 0;                   // W Mw
    Number by_mz = 0.0;                 // W Mw Mz; empty where Mz of a fraction is not known
    std::vector<double> segment_flows;  // kmol/h
};

// One fraction of a polymer.
class FractionReader {
public:
    FractionReader(const ChainFraction& fraction, const Segments& segments, Diagnostics& diagnostics)
        : fraction_(fraction), segments_(segments), diagnostics_(diagnostics)
    {
    }

    std::optional<FractionSums> sums()
    {
        const auto shares = mole_fractions();
        if (shares.empty()) return {};
        double m0 = 0;
        for (std::size_t s = 0; s < shares.size(); ++s) m0 += shares[s] * weight(s);
        const auto averages = read_averages(m0);
        if (!averages) return {};
        return sums(*averages, shares, m0);
    }

private:
    double weight(std::size_t s) const { return segments_[s]->molecular_weight.value_or(0); }

    std::nullopt_t refuse(const SourcePosition& source, const std::string& why)
    {
        diagnostics_.add(source, why);
        return std::nullopt;
    }
    std::nullopt_t refuse(const std::string& why)
    {
        return refuse(fraction_.source, fraction_.source.key + why);
    }

    // By segment; empty when they are unusable.
    std::vector<double> mole_fractions()
    {
        auto shares = given_fractions();
        if (shares.empty() || !fraction_.segments || !fraction_.segments->by_mass) return shares;
        double moles = 0;
        for (std::size_t s = 0; s < shares.size(); ++s) moles += shares[s] / weight(s);
        for (std::size_t s = 0; s < shares.size(); ++s) shares[s] = shares[s] / weight(s) / moles;
        return shares;
    }

    std::vector<double> given_fractions()
    {
        if (!fraction_.segments && segments_.size() == 1) return {1.0};
        std::vector<double> shares(segments_.size());
        double sum = 0;
        if (!fraction_.segments) {
            refuse(fmt::format(" has no mole_fractions or mass_fractions; expected those of {}", ids()));
            return {};
        }
        const auto& [source, by_mass, values] = *fraction_.segments;
        for (const auto& [segment, value] : values) {
            sum += value;
            for (std::size_t s = 0; s < shares.size(); ++s)
                if (segments_[s]->id == segment.id) shares[s] = value;
        }
        if (std::abs(sum - 1) <= fraction_sum_tolerance) return shares;
        refuse(source, fmt::format("{} add up to {:.9g}; expected 1 within 1e-6", source.key, sum));
        return {};
    }

    std::string ids() const
    {
        std::vector<std::string_view> ids;
        for (const auto* segment : segments_) ids.push_back(segment->id);
        return fmt::format("{}", fmt::join(ids, ", "));
    }

    std::optional<Averages> read_averages(double m0)
    {
        const auto& f = fraction_;
        if (f.dispersity && *f.dispersity < 1) return {};  // reported when it was read
        const Number by_dpn = f.dpn ? Number{*f.dpn * m0} : Number{};
        const Number mn = f.mn ? f.mn : by_dpn;
        const Number mw = mn && f.dispersity ? Number{*mn * *f.dispersity} : Number{};
        if (f.mn && by_dpn && !agree(*f.mn, *by_dpn)) return contradiction("mn", *f.mn, "dpn", *by_dpn);
        if (f.mw && mw && !agree(*f.mw, *mw))
            return contradiction("mw", *f.mw, f.mn ? "mn and dispersity" : "dpn and dispersity", *mw);
        if (mn && f.mw) return with_mz(*mn, *f.mw, m0);
        if (mw) return with_mz(*mn, *mw, m0);
        return without_mn_and_mw(mn, m0);
    }

    std::optional<Averages> without_mn_and_mw(const Number& mn, double m0)
    {
        const auto& f = fraction_;
        if (f.mw && f.dispersity) return with_mz(*f.mw / *f.dispersity, *f.mw, m0);
        const auto& smaller = f.mw ? f.mw : mn;
        if (f.mz && smaller && *f.mz < *smaller)
            return too_small("mz", *f.mz, f.mw ? "mw" : f.mn ? "mn" : "dpn", *smaller);
        if (const auto dispersity = dispersity_by_mz(mn)) {
            const double mw = *f.mz / z_ratio(*f.type, *dispersity);
            return with_mz(mw / *dispersity, mw, m0);
        }
        if (f.mz && f.mw && f.type)
            return refuse(
                fmt::format(": mz is {:.6g} g/mol; expected less than twice mw, {:.6g} g/mol, by the type",
                            *f.mz, 2 * *f.mw));
        return refuse(
            fmt::format(" gives {}; expected Mn and Mw by two of mn (or dpn), mw and dispersity, or "
                        "by one of them, mz and a type that relates them",
                        given()));
    }

    // Mw/Mn from Mz and one other average.
    Number dispersity_by_mz(const Number& mn) const
    {
        const auto& f = fraction_;
        if (!f.mz || !f.type) return {};
        if (f.dispersity) return f.dispersity;
        if (f.mw) return dispersity_by_z_ratio(*f.type, *f.mz / *f.mw);
        return mn ? Number{dispersity_by_whole_ratio(*f.type, *f.mz / *mn)} : Number{};
    }

    std::optional<Averages> with_mz(double mn, double mw, double m0)
    {
        const auto& f = fraction_;
        if (!f.type) return in_order({mn, mw, f.mz}, m0);
        const double follows = mw * z_ratio(*f.type, mw / mn);
        if (f.mz && !agree(*f.mz, follows)) return contradiction("mz", *f.mz, "the type", follows);
        return in_order({mn, mw, f.mz ? f.mz : follows}, m0);
    }

    static bool agree(double a, double b) { return std::abs(a - b) <= agreement * std::max(a, b); }

    std::nullopt_t contradiction(std::string_view key, double value, std::string_view others, double follows)
    {
        return refuse(
            fmt::format(": {} is {:.6g}, but {:.6g} follows from {}; expected values that agree within {} %",
                        key, value, follows, others, 100 * agreement));
    }

    std::string given() const
    {
        const std::pair<const char*, Number> all[] = {{"mn", fraction_.mn},
                                                      {"mw", fraction_.mw},
                                                      {"mz", fraction_.mz},
                                                      {"dispersity", fraction_.dispersity},
                                                      {"dpn", fraction_.dpn}};
        std::vector<std::string_view> names;
        for (const auto& [name, value] : all)
            if (value) names.emplace_back(name);
        return names.empty() ? "no averages" : fmt::format("{}", fmt::join(names, ", "));
    }

    std::nullopt_t too_small(std::string_view low, double a, std::string_view high, double b)
    {
        return refuse(
            fmt::format(": {} is {:.6g} g/mol; expected at least {}, {:.6g} g/mol", low, a, high, b));
    }

    // The averages of any distribution rise: m0 ≤ Mn ≤ Mw ≤ Mz.
    std::optional<Averages> in_order(Averages averages, double m0)
    {
        const auto& [mn, mw, mz] = averages;
        const auto is_less = [](double a, double b) { return a < b * (1 - rounding); };
        if (is_less(mn, m0)) return too_small("Mn", mn, "the mean segment weight", m0);
        if (is_less(mw, mn)) return too_small("Mw", mw, "Mn", mn);
        if (mz && is_less(*mz, mw)) return too_small("Mz", *mz, "Mw", mw);
        // Chains of one length have one average.
        if (!mz && !is_less(mn, mw)) averages.mz = mw;
        return averages;
    }

    std::optional<FractionSums> sums(const Averages& averages, const std::vector<double>& shares, double m0)
    {
        FractionSums sums;
        sums.mass = fraction_.mass ? *fraction_.mass : fraction_.moles.value_or(0) * averages.mn;
        sums.chains = fraction_.mass ? sums.mass / averages.mn : *fraction_.moles;
        sums.by_mw = sums.mass * averages.mw;
        sums.segments = sums.mass / m0;
        sums.by_mw = sums.mass * averages.mw;
        sums.by_mz = averages.mz ? Number{sums.by_mw * *averages.mz} : Number{};
        if (sums.mass == 0) sums.by_mz = 0;
        for (const auto share : shares) sums.segment_flows.push_back(share * sums.segments);
        return sums;
    }

    const ChainFraction& fraction_;
    const Segments& segments_;
    Diagnostics& diagnostics_;
};

void add(const FractionSums& part, FractionSums& whole)
{
    whole.mass += part.mass;
    whole.chains += part.chains;
    whole.segments += part.segments;
    whole.by_mw += part.by_mw;
    whole.by_mz = whole.by_mz && part.by_mz ? Number{*whole.by_mz + *part.by_mz} : Number{};
    for (std::size_t s = 0; s < part.segment_flows.size(); ++s)
        whole.segment_flows[s] += part.segment_flows[s];
}

ChainMoments moments(FractionSums sums)
{
    ChainMoments moments{sums.chains, sums.segments, 0.0, {}, std::move(sums.segment_flows), sums.mass};
    if (sums.by_mz) moments.third = 0;
    if (!(sums.mass > 0)) return moments;
    const double m0 = sums.mass / sums.segments;
    moments.second = sums.by_mw / m0 / m0;
    if (sums.by_mz) moments.third = *sums.by_mz / m0 / m0 / m0;
    return moments;
}

Number ratio(const Number& a, const Number& b)
{
    return a && b && *b > 0 ? Number{*a / *b} : Number{};
}

Number product(const Number& a, const Number& b)
{
    return a && b ? Number{*a * *b} : Number{};
}

std::vector<double> values(const Number& number)
{
    return number ? std::vector<double>{*number} : std::vector<double>{};
}

std::vector<double> segment_fractions(const ChainMoments& m)
{
    double sum = 0;
    for (const auto flow : m.segment_flows) sum += flow;
    if (!(sum > 0)) return {};
    std::vector<double> fractions;
    for (const auto flow : m.segment_flows) fractions.push_back(flow / sum);
    return fractions;
}

Number number_average(const ChainMoments& m)
{
    return ratio(m.first, m.zeroth);
}
Number weight_average(const ChainMoments& m)
{
    return ratio(m.second, m.first);
}
Number z_average(const ChainMoments& m)
{
    return ratio(m.third, m.second);
}
Number segment_weight(const ChainMoments& m)
{
    return ratio(m.mass, m.first);
}

struct Scalar {
    std::string_view attribute;
    Number (*value)(const ChainMoments&);
};

constexpr Scalar scalars[] = {
    {"ZMOM", [](const ChainMoments& m) { return m.zeroth; }},
    {"FMOM", [](const ChainMoments& m) { return m.first; }},
    {"SMOM", [](const ChainMoments& m) { return m.second; }},
    {"TMOM", [](const ChainMoments& m) { return m.third; }},
    {"DPN", number_average},
    {"DPW", weight_average},
    {"DPZ", z_average},
    {"PDI", [](const ChainMoments& m) { return ratio(weight_average(m), number_average(m)); }},
    {"MWSEG", segment_weight},
    {"MWN", [](const ChainMoments& m) { return product(number_average(m), segment_weight(m)); }},
    {"MWW", [](const ChainMoments& m) { return product(weight_average(m), segment_weight(m)); }},
    {"MWZ", [](const ChainMoments& m) { return product(z_average(m), segment_weight(m)); }},
};

}  // namespace

std::optional<ChainMoments> chain_moments(const PolymerChains& chains, const Segments& segments,
                                          Diagnostics& diagnostics)
{
    FractionSums whole;
    whole.segment_flows.resize(segments.size());
    bool is_usable = true;
    for (const auto& fraction : chains.fractions) {
        const auto part = FractionReader{fraction, segments, diagnostics}.sums();
        is_usable = is_usable && part;
        if (part) add(*part, whole);
    }
    if (!is_usable) return {};
    auto all = moments(std::move(whole));
    if (std::isfinite(*all.second) && std::isfinite(all.third.value_or(0))) return all;
    diagnostics.add(chains.polymer.source,
                    chains.polymer.source.key + " has moments that are not finite; expected smaller values");
    return {};
}

std::vector<double> attribute_values(const ChainMoments& moments, std::string_view attribute)
{
    if (attribute == "SFLOW") return moments.segment_flows;
    if (attribute == "SFRAC") return segment_fractions(moments);
    const auto* found = std::ranges::find(scalars, attribute, &Scalar::attribute);
    return found == std::end(scalars) ? std::vector<double>{} : values(found->value(moments));
}

}  // namespace app
