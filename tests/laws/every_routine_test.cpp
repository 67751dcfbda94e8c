// Laws of all routines that do not write to the host: what a trapping host survives, what counts below one
// read and write, what several threads get.
#include "support/every_routine.h"

#include <polyprops/polymer_block.h>

#include <set>
#include <thread>

#include "support/files.h"
#include "support/routine_calls.h"

using namespace support;

namespace {

void expect_no_exceptions(World& world, double every_real)
{
    world.host();
    for (const Routine& routine : routines_that_only_read()) {
        Arguments arguments{world, every_real};
        std::feclearexcept(FE_ALL_EXCEPT);
        routine.call(arguments);
        EXPECT_EQ(std::fetestexcept(FE_DIVBYZERO | FE_INVALID | FE_OVERFLOW), 0) << routine.name;
    }
}

TEST(EveryRoutine, IsCalledByTheseTests)
{
    std::set<std::string> names{"POLY_POLSEM", "POLY_CATSCALESEM", "POLY_CSDPLOT", "POLY_WRTPOLSUM"};
    for (const Routine& routine : routines_that_only_read()) names.insert(routine.name);
    std::istringstream map{stored("../src/exports/polyprops.map")};
    std::set<std::string> exported;
    for (std::string word; map >> word;)
        if (word.starts_with("POLY_")) exported.insert(word.substr(0, word.size() - 1));
    EXPECT_EQ(names, exported);
}

TEST(EveryRoutine, RaisesNoExceptionForValuesThatAreNotNumbers)
{
    for (const std::string attribute :
         {"DPN", "MWN", "MWSEG", "ZMOM", "FMOM", "SMOM", "SFLOW", "SFRAC", "SZMOM", "SSFLOW", "SSMOM", ""}) {
        SCOPED_TRACE("NaN in " + (attribute.empty() ? "every attribute" : attribute));
        World world = world_with(attribute, not_a_number);
        expect_no_exceptions(world, infinity);
    }
    World parameters = world_with("none", 0);
    for (const auto parameter : {Parameter::dpn, Parameter::pdi, Parameter::cry})
        for (const char* id : {"P", "R", "O", "W"}) parameters.parameter(id, parameter, not_a_number);
    SCOPED_TRACE("NaN in every parameter");
    expect_no_exceptions(parameters, infinity);
    SCOPED_TRACE("NaN in every argument");
    expect_no_exceptions(parameters, not_a_number);
}

// Without a sanitizer these calls can only crash; with one, a pointer beyond its array ends the test.
TEST(EveryRoutine, ReadsAndWritesNothingForCountsBelowOne)
{
    World world = world_with("none", 0);
    auto& store = world.host().store();
    for (const Int count : {Int{0}, Int{-1}, -(Int{1} << 60), std::numeric_limits<Int>::min()})
        for (const bool of_host : {false, true}) {
            if (of_host)
                for (const auto list : {POLYPROPS_SEGMENT_LIST, POLYPROPS_POLYMER_LIST,
                                        POLYPROPS_OLIGOMER_LIST, POLYPROPS_END_SEGMENT_LIST})
                    store.set_integer(store.integer(world.host().polymer_block(), list), 1, count);
            for (const Routine& routine : routines_that_only_read()) {
                Arguments arguments{world};
                const auto before = arguments;
                SCOPED_TRACE(routine.name);
                routine.call(arguments);
                EXPECT_TRUE(arguments.fences_hold());
                arguments = before;
                arguments.set_counts(count);
                routine.call(arguments);
                // Of no sites, POLY_CSDINI clears the weight of all.
                const bool may_write = !of_host || (count == 0 && routine.name == "POLY_CSDINI");
                EXPECT_TRUE(may_write || arguments.untouched());
            }
        }
}

TEST(EveryRoutine, GivesSeveralThreadsTheSameResults)
{
    World world = world_with("none", 0);
    world.host();
    std::vector<std::vector<Int>> expected;
    const auto& routines = routines_that_only_read();
    for (const Routine& routine : routines) {
        Arguments arguments{world};
        routine.call(arguments);
        expected.push_back(arguments.results());
    }
    const auto repeat_calls = [&](std::size_t first) {
        for (std::size_t call = 0; call < 20 * routines.size(); ++call) {
            const std::size_t which = (first + call) % routines.size();
            Arguments arguments{world};
            routines[which].call(arguments);
            EXPECT_EQ(arguments.results(), expected[which]) << routines[which].name;
        }
    };
    std::thread other{repeat_calls, routines.size() / 2};
    repeat_calls(0);
    other.join();
}

}  // namespace
