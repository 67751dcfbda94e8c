// A process that is a host of its own and uses the case layer as well: neither disturbs the other.
#include <dlfcn.h>

#include "case/interface.h"
#include "minihost/records.h"
#include "support/routine_calls.h"

namespace {

using namespace support;

// The case layer, loaded when first it is asked.
template <typename Function>
Function* loaded(const char* name, Function* /*declared*/)
{
    static void* const library = ::dlopen(POLYPROPS_CASE_LIBRARY, RTLD_NOW | RTLD_GLOBAL);
    auto* const found = library ? ::dlsym(library, name) : nullptr;
    if (!found) throw std::runtime_error(::dlerror());
    return reinterpret_cast<Function*>(found);
}
#define CASE_LAYER(function) loaded(#function, static_cast<decltype(function)*>(nullptr))

std::string json(const std::filesystem::path& file)
{
    polyprops_case* input = CASE_LAYER(polyprops_case_from_file)(file.c_str());
    polyprops_run* results = CASE_LAYER(polyprops_case_run)(input);
    std::string all = CASE_LAYER(polyprops_run_text)(results, POLYPROPS_JSON, nullptr);
    CASE_LAYER(polyprops_run_free)(results);
    CASE_LAYER(polyprops_case_free)(input);
    return all;
}

// Every word that the engine's host owns.
std::vector<minihost::Word> state(World& engine)
{
    auto words = engine.host().store().contents();
    for (const auto* record : {ST_GLOBAL, ST_NCOMP, ST_POFF1, ST_POFF4, ST_TABLES, ST_INITV, ST_SUMGLOBAL,
                               ST_RPTGLOBAL, RP_PAGE, ST_PROPTAB, UT_COMPONENT_IDS})
        words.insert(words.end(), record, record + minihost::record_size);
    for (int i = 0; i < minihost::record_size; ++i) {
        words.push_back(std::bit_cast<minihost::Word>(ST_RGLOBAL[i]));
        words.push_back(ST_FILES[i]);
        words.push_back(ST_ERROUT[i]);
    }
    return words;
}

TEST(EngineProcess, KeepsItsNumbersAndItsStateWhileTheCaseLayerRuns)
{
    const auto chains = {Attribute{"ZMOM", 2}, {"FMOM", 100}, {"SMOM", 12000}, {"SFLOW", {60, 40}}};
    auto engine = World{}.segments({{"A", 50}, {"B", 75}}).polymer("P", chains);
    const auto ask = [&] {
        return std::vector<double>{engine.ask(POLY_GETDPN, "P"), engine.ask(POLY_GETPDI, "P"),
                                   engine.ask(POLY_GETMWN, "P"), engine.ask(POLY_GETMWW, "P")};
    };
    // Segments per chain, S·Z/F², and with a mean segment weight of 60 the chain weights.
    const std::vector<double> expected = {50, 2.4, 3000, 7200};
    EXPECT_EQ(ask(), expected);
    // Values that a host with a fresh start would not have.
    RP_PAGE[5 - 1] = 41;
    ST_GLOBAL[6 - 1] = 3;
    ST_SUMGLOBAL[4 - 1] = 77;
    ST_RGLOBAL[900 - 1] = 0.125;
    ST_ERROUT[3] = 'x';
    const auto before = state(engine);

    for (int round = 0; round < 3; ++round)
        for (const auto& file : case_test::case_files(case_test::examples)) {
            SCOPED_TRACE(file);
            EXPECT_EQ(json(file), case_test::output(std::string{POLYPROPS_PROGRAM} + " run '" +
                                                    file.string() + "' --format json 2>/dev/null"));
            EXPECT_EQ(ask(), expected);
            EXPECT_TRUE(state(engine) == before);
        }
}

}  // namespace
