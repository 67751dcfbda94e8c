#include "minihost/embedded_host.h"

#include <polyprops/host.h>
#include <polyprops/polymer_block.h>
#include <polyprops/polyprops.h>

#include "minihost/service_log.h"
#include "support/refusal.h"
#include "support/world.h"

namespace minihost {
namespace {

using support::expect_refusals;
using support::refusal;
using support::SegmentType;
using support::World;

Int offset(Int component, const char* name)
{
    const Int selector = 1;
    return CC_FIND_ATTR(&selector, &component, name_pair(name).data());
}

double stored(Position position)
{
    return real_of(ST_WORDS[position - 1]);
}

TEST(Host, BothAttributeAddressesReachTheSameValue)
{
    auto world = World{}.segments({"A", "B", "C"}).polymer("P", {{"SFLOW", {30, 10, 20}}});
    world.stream("S", {{.attributes = {{"P", {{"SFLOW", {5, 6, 7}}}}}},
                       {.type = 3, .flows = {{"P", 8}}, .attributes = {{"P", {{"SFLOW", {8, 9, 10}}}}}}});
    const Int p = world.index("P");
    const auto second_share = [p] {
        return stored(ST_GLOBAL[17 - 1] + ST_NCOMP[6 - 1] + ST_NCOMP[8 - 1] + offset(p, "SFLOW") + 1);
    };
    const auto& view = world.view("S");
    EXPECT_EQ(second_share(), 10);
    EXPECT_EQ(view.types, (std::vector<Int>{1, 3}));
    EXPECT_EQ(view.values[view.first_flow[0] - 1 + offset(p, "SFLOW") + 1], 6);
    EXPECT_EQ(view.values[view.first_flow[1] - 1 + p - 1], 8);
    EXPECT_EQ(view.values[view.first_flow[1] - 1 + offset(p, "SFLOW") + 1], 9);
    world.host().select_stream("S", 2);
    EXPECT_EQ(second_share(), 9);
    for (const Int term : {ST_GLOBAL[17 - 1], ST_NCOMP[6 - 1], ST_NCOMP[8 - 1]})
        EXPECT_NE(term, 0) << "a term that is forgotten must be missed";
    EXPECT_EQ(ST_POFF1[684 - 1], 0) << "a parameter vector of which no component has a value";
}

TEST(Host, AttributesThatAStreamDoesNotGiveAreNoneOrMissingAndHiddenOnesHaveNoOffset)
{
    auto world = World{}.segments({"A"}).polymer("P", {{"DPN", 5}, {"ZMOM", 1}, {"PDI", 2}});
    world.hidden_attribute("P", "PDI").stream("BARE", {{.flows = {}, .attributes = {}}});
    const auto& view = world.view("BARE");
    const Int p = world.index("P");
    EXPECT_EQ(view.values[view.first_flow[0] + offset(p, "DPN") - 1], support::missing);
    EXPECT_EQ(view.values[view.first_flow[0] + offset(p, "ZMOM") - 1], 0.0);
    EXPECT_EQ(offset(p, "FMOM"), 0);
    EXPECT_EQ(offset(p, "PDI"), -1);
}

TEST(Host, AttributeLengthsFollowSegmentsEndsAndSites)
{
    auto world = World{}.segments({"A", {"E", 15, SegmentType::end}, "B"}).sites(2).polymer("P");
    const std::pair<const char*, Int> lengths[] = {
        {"DPN", 1}, {"SFLOW", 3}, {"EFRAC", 1}, {"SZMOM", 2}, {"SSFLOW", 6}};
    for (const auto& [name, length] : lengths)
        EXPECT_EQ(attribute_length(*find_attribute_kind(name), world.host().dimensions()), length) << name;
}

TEST(Host, WithoutStreamsHasOffsetsOfAttributes)
{
    Host host({{.id = "P", .component_class = ComponentClass::polymer}});
    host.attributes().carry(1, {"DPN", "ZMOM"});
    EXPECT_EQ(host.attribute_offset(1, "ZMOM") - host.attribute_offset(1, "DPN"), 1);
}

TEST(Host, RefusesWhatIsWrongWithStreamsAndAttributes)
{
    auto world = World{}.segments({"A", "B"}).polymer("P", {{"SFLOW", {1, 2}}});
    auto& host = world.host();
    const Int p = world.index("P");
    const auto add = [&](const char* name, const char* flowing, const char* attribute,
                         std::vector<double> values) {
        host.add_stream({name, {{.flows = {{flowing, 1}}, .attributes = {{"P", {{attribute, values}}}}}}});
    };
    expect_refusals({
        {[&] {
             add("S", "X", "SFLOW", {1, 2});
         },
         "unknown component \"X\""},
        {[&] { add("S", "P", "SFLOW", {1}); }, "stream S: SFLOW of P has 1 values; expected 2"},
        {[&] { add("S", "P", "ZMOM", {1}); },
         "stream S: ZMOM of P is given, but the component does not carry it"},
        {[&] {
             add("CURRENT", "P", "SFLOW", {1, 2});
         },
         "stream CURRENT is defined twice"},
        {[&] { host.select_stream("CURRENT", 2); }, "stream CURRENT has no substream 2"},
        {[&] { host.select_stream("CURRENT", 0); }, "stream CURRENT has no substream 0"},
        {[&] { host.select_stream("OTHER"); }, "unknown stream \"OTHER\""},
        {[&] { host.attributes().find(0, "ZMOM"); }, "component index 0 is not in 1..4"},
        {[&] { host.attributes().find(5, "ZMOM"); }, "component index 5 is not in 1..4"},
        {[&] { host.attributes().hide(p, "SFLOW", 1); }, "a hidden attribute needs an offset of 0 or less"},
        {[&] { host.attributes().hide(p, "ZMOM", 0); }, "attribute \"ZMOM\" is not carried"},
        {[&] { host.lay_attribute_blocks().values(p, "ZMOM", 1); }, "P does not carry attribute ZMOM"},
        {[&] { host.lay_attribute_blocks().values(p, "SFLOX", 1); }, "P does not carry attribute SFLOX"},
        {[&] { host.components().at(0); }, "component index 0 is not in 1..4"},
        {[&] { host.attributes().carry(p, {"ZMON"}); }, "unknown attribute \"ZMON\""},
        {[&] { host.attributes().carry(p, {"ZMOM"}); },
         "the attributes of a component cannot change: streams already hold attribute values"},
        {[&] { host.components().at(9); }, "component index 9 is not in 1..4"},
        {[&] { Host second({}); }, "a host is already active; there is one at a time"},
    });
}

TEST(Host, RefusesComponentsInError)
{
    for (const auto& components : {std::vector<Component>{{.id = ""}},
                                   {{.id = "NINECHARS"}},
                                   {{.id = "A"}, {.id = "A"}},
                                   {{.id = "A", .name = std::string(25, 'N')}}})
        EXPECT_THROW(Host host(components), Error);
    EXPECT_THROW(Host::active(), Error) << "a host that failed leaves none behind";
}

TEST(Host, ARefusalTravelsThroughTheLibraryToItsCaller)
{
    auto world = World{}.segments({"A"}).polymer("P", {{"ZMOM", 1}});
    world.host().store().set_integer(world.host().polymer_block(), POLYPROPS_SEGMENT_LIST, 4711);
    EXPECT_EQ(refusal([&] { world.ask(POLY_GETDPN, "P"); }), "store block 4711 does not exist");
    EXPECT_THROW(world.ask(POLY_GETMWW, "P"), Error) << "and the library works as before";
}

TEST(Host, ServicesRefuseWhatNoLibraryMayAsk)
{
    auto world = World{}.segments({"A"}).polymer("P", {{"ZMOM", 1}});
    auto& host = world.host();
    host.paragraph().set({});
    const Int zero = 0, one = 1, two = 2, seven = 7, code = 3030, far = 9999;
    const NamePair name = name_pair("POLSEM");
    const Int unknown[] = {text_word("NONE"), text_word(""), text_word("")};
    const Int level = ST_GLOBAL[8 - 1];
    Int out = 0;
    const auto check_level = [&](Int severity, Int first_zero) {
        ST_ERROR_CHECK(name.data(), &severity, &one, &two, &level, &first_zero, &zero, &two);
    };
    const auto sentence = [&](Int number) {
        Int kind = number;
        UT_GET_SENTENCE(&number, &kind, &one, &zero, &zero, &zero, &zero, &out, &out, &out, &out, &out, &out,
                        &out);
    };
    const auto print = [&](const Int& lines) {
        check_level(1, 0);
        ST_PRINT_ERROR(&lines);
    };
    expect_refusals({
        {[&] { check_level(2, 1); }, "ST_ERROR_CHECK: argument 6 is 1; expected 0"},
        {[&] { check_level(3, 0); }, "message 1 of POLSEM has severity 3; expected 1 or 2"},
        {[&] { print(0); }, "a message of 0 lines was printed; expected 1 to 10"},
        {[&] { print(11); }, "a message of 11 lines was printed; expected 1 to 10"},
        {[&] { PS_FIND_COMPONENT(name.data(), &name[1], &one, &out, &out); },
         "PS_FIND_COMPONENT: argument 3 is not UT_COMPONENT_IDS"},
        {[&] { PS_PROCESS_SENTENCE(&code, &two, &one, &one, &one, &out); },
         "PS_PROCESS_SENTENCE: argument 3 is not the semantics context"},
        {[&] { ST_FIND_KEYWORD(unknown, &zero); }, "unknown keyword \"NONE\""},
        {[&] { ST_KEYWORD_TEXT(&one, &zero, &seven); }, "the keyword tables have no item 7 of row 0"},
        {[&] { KeywordTables::item(1, 1, 0); }, "the keyword tables have no item 0 of row 1"},
        {[&] { KeywordTables::item(1, 1, 8); }, "the keyword tables have no item 8 of row 1"},
        {[&] { ST_READ_TABLE(&far, &out, &out, &out, &out); }, "9999 is no entry of the keyword tables"},
        {[&] { sentence(-1); }, "sentence -1 was asked for; the paragraph has 0"},
        {[&] { sentence(1); }, "sentence 1 was asked for; the paragraph has 0"},
        {[&] { RP_RESERVE_LINES(&one, &zero, &two, &ST_RPTGLOBAL[2 - 1]); },
         "RP_RESERVE_LINES: argument 3 is 2; expected 3"},
    });
}

TEST(Host, WithoutAPolymerBlockOrItsListsHasNoDimensions)
{
    World world;
    auto& host = world.host();
    host.store().set_integer(host.polymer_block(), POLYPROPS_END_SEGMENT_LIST, 0);
    EXPECT_EQ(host.dimensions(), AttributeDimensions{});
    host.set_polymer_block(0);
    EXPECT_EQ(host.dimensions(), AttributeDimensions{});
    for (const auto& other : {AttributeDimensions{.segments = 1}, {.end_segments = 1}, {.sites = 1}})
        EXPECT_NE(host.dimensions(), other);
}

TEST(ServiceLog, CountsAndFindsRepeatedQuestions)
{
    auto world = World{}.segments({"A"}).polymer("P", {{"ZMOM", 1}});
    world.host();
    const Int p = world.index("P");
    offset(p, "ZMOM");
    ServiceLog log;
    offset(p, "ZMOM");
    offset(p, "SFLOW");
    EXPECT_EQ(log.count("CC_FIND_ATTR"), 2);
    EXPECT_TRUE(log.repeated("CC_FIND_ATTR").empty());
    for (int time = 0; time < 2; ++time) offset(p, "ZMOM");
    EXPECT_THROW(ServiceLog{}, Error) << "logs do not nest";
    EXPECT_EQ(log.repeated("CC_FIND_ATTR"), (std::vector<ServiceCall>{{"CC_FIND_ATTR", p, "ZMOM", 1}}));
}

}  // namespace
}  // namespace minihost
