#include "minihost/host.h"

#include <gtest/gtest.h>
#include <polyprops/host.h>
#include <polyprops/polyprops.h>

#include <functional>

#include "minihost/service_log.h"
#include "support/refusal.h"
#include "support/world.h"

namespace minihost {
namespace {

using support::refusal;
using support::SegmentType;
using support::World;

NamePair pair(const char* name)
{
    return name_pair(name);
}

Int offset(Int component, const char* name)
{
    const Int selector = 1;
    return CC_FIND_ATTR(&selector, &component, pair(name).data());
}

double stored(Position position)
{
    return real_of(ST_WORDS[position - 1]);
}

TEST(Host, BothAttributeAddressesReachTheSameValue)
{
    auto world =
        World{}
            .segments({"A", "B", "C"})
            .polymer("P", {{"ZMOM", 4}, {"SFLOW", {30, 10, 20}}})
            .polymer("Q", {{"SFLOW", {1, 2, 3}}})
            .stream("S",
                    {{.flows = {{"P", 7}}, .attributes = {{"P", {{"SFLOW", {5, 6, 7}}}}}},
                     {.type = 3,
                      .flows = {{"Q", 8}},
                      .attributes = {{"P", {{"SFLOW", {8, 9, 10}}}}, {"Q", {{"SFLOW", {11, 12, 13}}}}}}});
    auto& host = world.host();
    const Int p = world.index("P");
    const Int q = world.index("Q");
    const auto origin = [] { return ST_GLOBAL[17 - 1] + ST_NCOMP[6 - 1] + ST_NCOMP[8 - 1]; };
    EXPECT_EQ(stored(origin() + offset(p, "ZMOM")), 4);
    EXPECT_EQ(stored(origin() + offset(p, "SFLOW") + 2), 20);
    EXPECT_EQ(stored(origin() + offset(q, "SFLOW")), 1);

    const auto& view = world.view("S");
    EXPECT_EQ(view.types, (std::vector<Int>{1, 3}));
    const auto sv = [&view](Int k) { return view.values[k - 1]; };
    EXPECT_EQ(sv(view.first_flow[0] + p - 1), 7);
    EXPECT_EQ(sv(view.first_flow[1] + q - 1), 8);
    EXPECT_EQ(sv(view.first_flow[1] + offset(p, "SFLOW") + 1), 9);
    EXPECT_EQ(sv(view.first_flow[1] + offset(q, "SFLOW") + 2), 13);

    host.select_stream("S", 2);
    EXPECT_EQ(stored(origin() + offset(p, "SFLOW") + 1), 9);
    for (const Int term : {ST_GLOBAL[17 - 1], ST_NCOMP[6 - 1], ST_NCOMP[8 - 1]})
        EXPECT_NE(term, 0) << "a term that is forgotten must be missed";
}

TEST(Host, AttributesThatAStreamDoesNotGiveAreNoneOrMissing)
{
    auto world = World{}
                     .segments({"A"})
                     .polymer("P", {{"DPN", 5}, {"ZMOM", 1}})
                     .stream("BARE", {{.flows = {}, .attributes = {}}});
    const auto& view = world.view("BARE");
    const Int p = world.index("P");
    EXPECT_EQ(view.values[view.first_flow[0] + offset(p, "DPN") - 1], support::missing);
    EXPECT_EQ(view.values[view.first_flow[0] + offset(p, "ZMOM") - 1], 0.0);
}

TEST(Host, AttributeLengthsFollowSegmentsEndsAndSites)
{
    auto world = World{}.segments({"A", {"E", 15, SegmentType::end}, "B"}).sites(2).polymer("P");
    auto& attributes = world.host().attributes();
    const struct {
        const char* name;
        Int length;
    } cases[] = {{"DPN", 1}, {"SFLOW", 3}, {"EFRAC", 1}, {"SZMOM", 2}, {"SSFLOW", 6}};
    const auto dimensions = world.host().dimensions();
    for (const auto& c : cases)
        EXPECT_EQ(attribute_length(*find_attribute_kind(c.name), dimensions), c.length) << c.name;
    EXPECT_EQ(attributes.find(world.index("P"), "SFLOW"), nullptr);
}

TEST(Host, AbsentAndHiddenAttributesHaveNoPositiveOffset)
{
    auto world =
        World{}.segments({"A"}).polymer("P", {{"ZMOM", 1}, {"SMOM", 9}}).hidden_attribute("P", "ZMOM");
    world.host();
    const Int p = world.index("P");
    EXPECT_EQ(offset(p, "FMOM"), 0);
    EXPECT_EQ(offset(p, "ZMOM"), -1);
    EXPECT_GT(offset(p, "SMOM"), 0);
}

TEST(Host, ParameterVectorsExistWhenAComponentGivesThem)
{
    auto world = World{}
                     .conventional("A", 18)
                     .conventional("B", 44)
                     .parameter("B", Parameter::dpn, 7)
                     .parameter("A", Parameter::cry, 0.5)
                     .without(Parameter::cry);
    world.host();
    const auto value = [](int entry, Int component) { return stored(ST_POFF1[entry - 1] + component); };
    EXPECT_EQ(value(306, world.index("B")), 44);
    EXPECT_EQ(value(540, world.index("A")), 1);
    EXPECT_EQ(value(540, world.index("B")), 7);
    EXPECT_EQ(ST_POFF1[601 - 1], 0) << "given, but forced absent";
    EXPECT_EQ(ST_POFF1[684 - 1], 0) << "given by none";
}

TEST(Host, RefusesWhatIsWrongWithStreamsAndAttributes)
{
    auto world = World{}.segments({"A", "B"}).polymer("P", {{"SFLOW", {1, 2}}});
    auto& host = world.host();
    const Int p = world.index("P");
    const auto stream = [](std::map<std::string, double> flows, const char* attribute,
                           std::vector<double> values) {
        return Stream{"S",
                      {{.flows = std::move(flows), .attributes = {{"P", {{attribute, std::move(values)}}}}}}};
    };
    const struct {
        std::function<void()> action;
        const char* text;
    } cases[] = {
        {[&] {
             host.add_stream(stream({{"X", 1}}, "SFLOW", {1, 2}));
         },
         "unknown component \"X\""},
        {[&] { host.add_stream(stream({}, "SFLOW", {1})); }, "stream S: SFLOW of P has 1 values; expected 2"},
        {[&] { host.add_stream(stream({}, "ZMOM", {1})); },
         "stream S: ZMOM of P is given, but the component does not carry it"},
        {[&] {
             host.add_stream({"CURRENT", {}});
         },
         "stream CURRENT is defined twice"},
        {[&] { host.select_stream("CURRENT", 2); }, "stream CURRENT has no substream 2"},
        {[&] { host.attributes().carry(p, {"ZMON"}); }, "unknown attribute \"ZMON\""},
        {[&] { host.attributes().carry(p, {"ZMOM"}); },
         "the attributes of a component cannot change: streams already hold attribute values"},
        {[&] { host.components().at(9); }, "component index 9 is not in 1..4"},
        {[&] { Host second({}); }, "a host is already active; there is one at a time"},
    };
    for (const auto& c : cases) EXPECT_EQ(refusal(c.action), c.text);
}

TEST(Host, RefusesComponentsInError)
{
    const std::vector<Component> cases[] = {
        {{.id = ""}},
        {{.id = "NINECHARS"}},
        {{.id = "A"}, {.id = "A"}},
    };
    for (const auto& components : cases) EXPECT_THROW(Host host(components), Error);
    EXPECT_THROW(Host::active(), Error) << "a host that failed leaves none behind";
}

TEST(Host, ARefusalTravelsThroughTheLibraryToItsCaller)
{
    auto world = World{}.segments({"A"}).polymer("P", {{"ZMOM", 1}});
    auto& store = world.host().store();
    store.set_integer(world.host().polymer_block(), 2, 4711);
    EXPECT_EQ(refusal([&] { world.ask(POLY_GETDPN, "P"); }), "store block 4711 does not exist");
    EXPECT_THROW(world.ask(POLY_GETMWW, "P"), Error) << "and the library works as before";
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
    offset(p, "ZMOM");
    const ServiceCall twice{"CC_FIND_ATTR", p, "ZMOM", 1};
    EXPECT_EQ(log.repeated("CC_FIND_ATTR"), std::vector<ServiceCall>{twice});
}

}  // namespace
}  // namespace minihost
