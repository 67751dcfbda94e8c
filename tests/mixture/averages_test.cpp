// Averages over rows of a segment-count matrix: properties, chain weights and polydispersity.

#include "support/routine_calls.h"

using namespace support;

namespace {

// Of five components 4 and 2 are segments, in this order.
constexpr Int ld = 5, segments[] = {4, 2}, flags[] = {1, 0, 2, 0, 0}, row = 1;
constexpr double weights[] = {1, 50, 1, 100, 1};

TEST(SegmentAverages, ByNumberAndByMass)
{
    World world;
    world.host();  // sets the bounds
    const double above = std::nextafter(zero_bound, 1.0), below = std::nextafter(missing, 0.0);
    const struct {
        const char* name;
        double of_4, of_2, own;
        Int nseg;
        double total, number, listed, mass, own_or_mass;
    } cases[] = {
        {"both segments", 3, 1, 0, 2, 44, 11, 11, 3400.0 / 350, 3400.0 / 350},
        {"own value at the zero bound", 3, 0, zero_bound, 2, 24, 8, 8, 8, 8},
        {"own value above it", 3, 0, above, 2, 24, 8, 8, 8, above},
        {"own value missing", 3, 0, missing, 2, 24, 8, 8, 8, 8},
        {"own value below missing", 3, 0, below, 2, 24, 8, 8, 8, below},
        {"no segments", 3, 1, -7, 0, 0, 0, -7, 0, 0},
        {"row sum at the zero bound", zero_bound, 0, -7, 2, 8 * zero_bound, 8, -7, 8, 8},
        {"row sum above it", above, 0, -7, 2, 8 * above, 8, 8, 8, 8},
        {"row sum of exactly 0", 1, -1, -7, 2, -12, -12, -7, -4, -4},
        {"weighted sum of exactly 0", 1, -2, -7, 2, -32, 32, -7, -1200, -1200},
    };
    const Int list[] = {3, 1}, n = 2;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const Values q{c.own, 20, 33, 8, 0};
        Values scm(25, 77.0);  // elements other than those of components 4 and 2 must not count
        scm[15] = c.of_4;
        scm[5] = c.of_2;
        double number, twin, mass, own_or_mass;
        Values listed(2), by_component(3, -1.0), by_position(2);
        POLY_GETMAVG(&ld, q.data(), &c.nseg, segments, scm.data(), &n, list, listed.data(), flags);
        POLY_GETFAVG(&ld, &c.nseg, segments, scm.data(), &row, q.data(), &number);
        POLY_GETFAVGT(&ld, &c.nseg, segments, scm.data(), &row, q.data(), &twin);
        POLY_GETSAVG(&ld, weights, &c.nseg, segments, scm.data(), &row, q.data(), &mass);
        POLY_GETPOLQ(&ld, weights, &c.nseg, segments, scm.data(), &row, q.data(), &own_or_mass);
        POLY_GETMWS(&n, list, &ld, q.data(), &c.nseg, segments, flags, scm.data(), by_component.data());
        POLY_GETMWP(&n, list, &ld, q.data(), &c.nseg, segments, flags, scm.data(), by_position.data());
        EXPECT_EQ((Values{number, twin, mass, own_or_mass}),
                  (Values{c.number, c.number, c.mass, c.own_or_mass}));
        // A flag of 2 is no flag: component 3 has its own 33.
        EXPECT_EQ(listed, (Values{33, c.listed}));
        EXPECT_EQ(by_component, (Values{c.number, -1, 33}));
        EXPECT_EQ(by_position, (Values{33, c.total}));
    }
    double out[2];
    POLY_GETMAVG(&ld, weights, &n, segments, Values(25, std::nan("")).data(), &n, list, out, flags);
    EXPECT_EQ(out[1], 1) << "a row sum that is not a number";
}

World homopolymer(const Attributes& attributes)
{
    auto world = World{}.segments({{"A", 1}}).polymer("P", attributes, 1000).conventional("W", 18);
    return world.parameter("P", Parameter::pdi, 0.5).parameter("W", Parameter::pdi, 1.5);
}

TEST(Polydispersity, OfAMixtureIsAtLeastOneFromMomentsAndScalesChainWeights)
{
    const Attribute z{"ZMOM", 1}, flow{"SFLOW", 100}, second{"SMOM", 20000};
    const struct {
        const char* name;
        World world;
        double expected;
    } cases[] = {
        {"from moments", homopolymer({z, flow, second}), 2},
        {"raised to 1", homopolymer({z, flow, {"SMOM", 5000}}), 1},
        {"second moment missing", homopolymer({z, flow, {"SMOM", missing}}), 1},
        {"second moment at the zero bound", homopolymer({{"ZMOM", 1e30}, flow, {"SMOM", zero_bound}}), 1},
        {"no second moment", homopolymer({z, flow}), 0.5},
        {"PDI mode of the parameters", homopolymer({z, flow, second}).pdi_mode(100), 0.5},
        {"no polymer block", homopolymer({z, flow, second}).without_polymer_block(), 0.5},
        // A zero bound of 0 lets flows of 0 pass; they are not divided by.
        {"zero bound of 0", homopolymer({z, {"SFLOW", 0.0}, second}).bounds(missing, 0), 0.5},
    };
    for (auto c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(c.world.ask(POLY_GETPOLI, {"W", "P"}), (Values{1.5, c.expected}));
        // Each of 60 segments has a weight of 1.
        const AskedOnce once;
        const Ints list{4, 3}, segment{2}, polymer_flags{0, 0, 1, 0};
        const Values mw = c.world.molecular_weights(), scm(16, 60.0);
        Values weight_averages(2);
        call(POLY_GETWWP, 2, list, 4, mw, 1, segment, polymer_flags, scm, weight_averages);
        EXPECT_EQ(weight_averages, (Values{27, 60 * c.expected}));
    }
    EXPECT_EQ(homopolymer({z, flow, second}).ask(POLY_GETPOLI, "P"), 2);
    EXPECT_EQ(homopolymer({}).without(Parameter::pdi).ask(POLY_GETPOLI, {"P", "W"}), (Values{1, 1}));
}

}  // namespace
