// Laws that hold in every run, asked of random worlds of fixed seeds: in a host that traps floating-point
// exceptions, and without a word of its store changed.
#include <functional>
#include <numeric>
#include <random>

#include "support/routine_calls.h"

using namespace support;

namespace {

constexpr int worlds = 60;
constexpr auto averages = {POLY_GETDPN, POLY_GETMRF, POLY_GETMWN, POLY_GETMRT,
                           POLY_GETMWW, POLY_GETPDI, POLY_GETPOLI};

double sum(const Values& values)
{
    return std::accumulate(values.begin(), values.end(), 0.0);
}

// Polymers with moments and flows, oligomers, conventional components; every component is listed once.
struct Mixture {
    explicit Mixture(unsigned given, bool reverse_segments = false) : seed(given), random(given)
    {
        segment_count = whole(1, 5);
        const Values weights = numbers(segment_count, 20, 150);
        for (int s = 0; s < segment_count; ++s) segment_ids.push_back("S" + std::to_string(s));
        std::vector<int> order(segment_count);
        std::iota(order.begin(), order.end(), 0);
        if (reverse_segments) std::reverse(order.begin(), order.end());
        for (const int s : order) world.segments({{segment_ids[s].c_str(), weights[s]}});
        for (int left = whole(1, 4); left > 0; --left) add_polymer("P" + std::to_string(left), order);
        for (int left = whole(0, 3); left > 0; --left) add_oligomer("O" + std::to_string(left));
        for (const char* id : {"C0", "C1"}) {
            ids.emplace_back(id);
            world.conventional(id, number(10, 90));
        }
        world.host();
        idx = world.indices(ids);
        n = static_cast<Int>(idx.size());
        nc = world.component_count();
        mw = world.molecular_weights();
        iseg = world.segment_list();
        nseg = static_cast<Int>(iseg.size());
        apparent = numbers(static_cast<int>(n), 0.1, 1);
        for (const double all = sum(apparent); double& x : apparent) x /= all;
        flags.resize(nc);
        scm.resize(nc * nc);
        Values work(nc);
        Ints segments(nc);
        call(POLY_GETPOL3, n, idx, nc, work, count_of_segments, segments, flags, scm);
    }

    int whole(int from, int to) { return std::uniform_int_distribution<int>{from, to}(random); }
    double number(double from, double to) { return std::uniform_real_distribution<double>{from, to}(random); }
    Values numbers(int count, double from, double to)
    {
        Values all(static_cast<std::size_t>(count));
        for (double& value : all) value = number(from, to);
        return all;
    }
    void add_polymer(const std::string& id, const std::vector<int>& order)
    {
        const Values flows = numbers(segment_count, 1, 9);
        Attribute sflow{"SFLOW", 0};
        sflow.values.clear();
        for (const int s : order) sflow.values.push_back(flows[s]);
        const double segments = sum(flows);
        const double chains = segments / number(2, 900);
        const double second = number(1, 8) * segments * segments / chains;
        ids.push_back(id);
        world.polymer(id, {{"ZMOM", chains}, {"SMOM", second}, sflow}, number(40, 400));
    }
    void add_oligomer(const std::string& id)
    {
        std::map<std::string, double> counts;
        for (const auto& segment : segment_ids) counts[segment] = whole(1, 4);
        ids.push_back(id);
        world.oligomer(id, counts, number(50, 500));
    }
    Values ask(auto* routine) { return world.ask(routine, ids); }

    unsigned seed;
    std::mt19937 random;
    World world;
    int segment_count;
    std::vector<std::string> segment_ids, ids;
    Ints idx, iseg;
    Int n, nc, nseg;
    Values mw, apparent;
    // What the matrix routines are given: built by POLY_GETPOL3.
    Int count_of_segments = -1;
    Ints flags;
    Values scm;
};

void expect_close(const Values& a, const Values& b, const char* what)
{
    ASSERT_EQ(a.size(), b.size()) << what;
    for (std::size_t i = 0; i < a.size(); ++i)
        EXPECT_NEAR(a[i], b[i], 1e-12 * std::abs(b[i])) << what << ", entry " << i + 1;
}

// Runs the law in every world, with the traps on, and looks whether the store is as before.
void in_every_world(const std::function<void(Mixture&)>& law)
{
    for (unsigned seed = 1; seed <= worlds; ++seed) {
        SCOPED_TRACE(seed);
        Mixture mixture{seed};
        const auto store = mixture.world.host().store().contents();
        {
            const TrapFloatingPoint traps;
            law(mixture);
        }
        ASSERT_TRUE(store == mixture.world.host().store().contents());
    }
}

TEST(Laws, MatrixRoutinesAgreeWithAttributeRoutines)
{
    in_every_world([](Mixture& m) {
        ASSERT_EQ(m.count_of_segments, m.nseg);
        Values dpn(m.n), mwn(m.n), mwp(m.n), wwp(m.n), mws(m.nc);
        call(POLY_GETDPN1, m.nc, m.nseg, m.iseg, m.scm, m.n, m.idx, dpn, m.flags);
        expect_close(dpn, m.ask(POLY_GETDPN), "segments per chain");
        call(POLY_GETMWN1, m.nc, m.mw, m.nseg, m.iseg, m.scm, m.n, m.idx, mwn, m.flags);
        expect_close(mwn, m.ask(POLY_GETMWN), "number-average weight");
        call(POLY_GETMWP, m.n, m.idx, m.nc, m.mw, m.nseg, m.iseg, m.flags, m.scm, mwp);
        EXPECT_EQ(mwp, mwn);
        call(POLY_GETWWP, m.n, m.idx, m.nc, m.mw, m.nseg, m.iseg, m.flags, m.scm, wwp);
        expect_close(wwp, m.ask(POLY_GETMWW), "weight-average weight");
        call(POLY_GETMWS, m.n, m.idx, m.nc, m.mw, m.nseg, m.iseg, m.flags, m.scm, mws);
        Values by_position;
        for (const Int c : m.idx) by_position.push_back(mws[c - 1]);
        expect_close(by_position, m.ask(POLY_GETMRF), "mean segment weight");

        // The matrix straight from the attributes is the same, column 1 of conventional rows included.
        Int nseg = 0, npol = 0;
        Ints iseg(m.nc), flags(m.nc);
        Values scm(m.nc * m.nc), lengths(m.nc);
        call(POLY_GETPALL, 1, m.n, m.idx, m.nc, nseg, iseg, npol, flags, scm, lengths);
        EXPECT_EQ(npol, m.n - 2);
        EXPECT_EQ(flags, m.flags);
        expect_close(scm, m.scm, "segment counts");
    });
}

TEST(Laws, FractionsSumToOne)
{
    in_every_world([](Mixture& m) {
        for (const Int c : m.idx) {
            Values mole(m.nseg), mass(m.nseg), from_row(m.nseg), mass_from_row(m.nseg);
            call(POLY_GETSMF1, c, m.nc, m.scm, m.nseg, m.iseg, from_row);
            call(POLY_GETSWF1, c, m.nc, m.mw, m.scm, m.nseg, m.iseg, mass_from_row);
            call(POLY_GETSMF, 1, c, mole);
            call(POLY_GETSWF, 1, c, mass);
            if (m.flags[c - 1] != 1) continue;
            for (const auto& fractions : {mole, mass}) EXPECT_NEAR(sum(fractions), 1, 1e-14);
            expect_close(from_row, mole, "mole fractions");
            expect_close(mass_from_row, mass, "mass fractions");
        }
    });
}

TEST(Laws, MassIsTheSameOnEveryBasis)
{
    in_every_world([](Mixture& m) {
        const Values mwn = m.ask(POLY_GETMWN);
        Values true_x(m.n), from_counts(m.n), mass(m.n), true_mass(m.n);
        call(POLY_XATOXT, m.n, m.idx, m.mw, m.apparent, true_x);
        EXPECT_NEAR(sum(true_x), 1, 1e-14);
        call(POLY_GETXTRUE, m.n, m.idx, m.apparent, m.nc, m.mw, m.nseg, m.iseg, m.flags, m.scm, from_counts);
        expect_close(from_counts, true_x, "true fractions");
        call(POLY_XATOWT, m.apparent, m.n, m.idx, mass);
        call(POLY_XTTOWT, m.n, true_x, mwn, true_mass);
        expect_close(true_mass, mass, "mass fractions");

        Int count = 0;
        Ints members(m.n + m.nseg);
        Values amounts(members.size());
        call(POLY_PFTOSF, m.n, m.idx, true_x, m.flags, m.nc, m.scm, m.nseg, m.iseg, count, members, amounts,
             0);
        double chain_mass = 0, segment_mass = 0;
        for (Int i = 0; i < m.n; ++i) chain_mass += true_x[i] * mwn[i];
        for (Int k = 0; k < count; ++k) segment_mass += amounts[k] * m.mw[members[k] - 1];
        EXPECT_NEAR(segment_mass, chain_mass, 1e-12 * chain_mass);
    });
}

TEST(Laws, SegmentListsFromAttributesAndFromCountsAreTheSame)
{
    in_every_world([](Mixture& m) {
        Int count = 0, count_from_matrix = 0;
        Ints members(m.n + m.nseg), of_matrix(members.size()), work_list(m.nc);
        Values amounts(members.size()), from_matrix(members.size()), work(m.nc);
        call(POLY_XPTOXS, m.n, m.idx, m.apparent, nullptr, work_list, work, count, members, amounts, 1);
        call(POLY_XTTOXS, m.n, m.idx, m.flags, m.apparent, m.nc, m.scm, m.nseg, m.iseg, count_from_matrix,
             of_matrix, from_matrix);
        EXPECT_EQ(members, of_matrix);
        expect_close(amounts, from_matrix, "amounts");
        EXPECT_NEAR(sum(amounts), 1, 1e-14);

        // A property that all entries share is that of every member.
        const Values shared(m.n, 7.0);
        Values properties(count), weights(count);
        call(POLY_PTTOPS, m.n, m.idx, m.flags, shared, m.nc, m.scm, m.nseg, m.iseg, count, members,
             properties, weights);
        expect_close(properties, Values(count, 7.0), "property");
    });
}

TEST(Laws, ConversionsMeetTheirInverse)
{
    in_every_world([](Mixture& m) {
        const Values mwn = m.ask(POLY_GETMWN);
        Values weights_by_position, chain_weights(m.mw), true_x(m.n), back(m.n);
        for (Int i = 0; i < m.n; ++i) {
            weights_by_position.push_back(m.mw[m.idx[i] - 1]);
            chain_weights[m.idx[i] - 1] = mwn[i];
        }
        for (const Int mode : {0, 1}) {
            call(POLY_VATOVT, m.n, m.idx, m.mw, mwn, m.apparent, true_x, mode);
            call(POLY_VATOVT, m.n, m.idx, chain_weights, weights_by_position, true_x, back, mode);
            expect_close(back, m.apparent, "there and back");
        }
    });
}

TEST(Laws, PermutedListsGivePermutedResultsAndPermutedSegmentsTheSame)
{
    in_every_world([](Mixture& m) {
        Mixture reversed_segments{m.seed, true};
        const std::vector<std::string> reversed{m.ids.rbegin(), m.ids.rend()};
        for (const auto routine : averages) {
            const Values expected = m.ask(routine);
            EXPECT_EQ(m.world.ask(routine, reversed), Values(expected.rbegin(), expected.rend()));
            expect_close(reversed_segments.ask(routine), expected, "average");
        }
    });
}

}  // namespace
