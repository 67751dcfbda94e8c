// A case as its file states it: plain values, every name with its position.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "app/case/distribution_model.h"
#include "app/case/placed_name.h"
#include "minihost/component_table.h"

namespace app {

using minihost::ComponentClass;
using minihost::Int;
std::string_view text(ComponentClass kind);

// How many neighbours a segment is bonded to; the values are the segment types of the polymer paragraph.
enum class SegmentType { end = 1, repeat = 2, branch3 = 3, branch4 = 4 };

struct Component : minihost::Component {
    SourcePosition source;
    SourcePosition dpn_source = {};  // of the parameter, where it is given
    SourcePosition pdi_source = {};
    std::optional<double> mark_houwink_exponent;
};

struct Segment {
    PlacedName component;
    SegmentType type = SegmentType::repeat;
};

// `count` segments in one molecule of the oligomer.
struct OligomerPart {
    PlacedName oligomer;
    PlacedName segment;
    double count = 0;
    bool is_continued = false;  // belongs to the oligomer of the part before, whose reference it repeats
};

struct Catalyst {
    PlacedName component;
    double value = 0;
};

// Numbers that the host carries without reading them.
using FurtherIntegers = std::array<Int, 3>;

struct Sites {
    Int count = 0;  // catalyst site types
    FurtherIntegers integers = {};
    double real = 0;
};

struct DistributionRequest {
    PlacedName polymer;
    Int type = 1;
    FurtherIntegers integers = {};
    double real = 0;
};

// The attributes that a component carries in every stream.
struct AttributeList {
    PlacedName component;
    std::vector<PlacedName> names;
};

struct Paragraph {
    SourcePosition source;
    std::vector<PlacedName> polymers;
    std::vector<Segment> segments;
    std::vector<OligomerPart> oligomers;
    std::vector<AttributeList> attributes;
    std::vector<Catalyst> catalysts;
    std::vector<PlacedName> initiators;
    std::optional<Sites> sites;
    std::vector<DistributionRequest> distributions;
};

// Two values for every element of an attribute; the one that is absent changes nothing.
struct ScalingEntry {
    PlacedName component;
    PlacedName attribute;
    std::optional<double> first;
    std::optional<double> second;
};

// Element values in the order of the file, or each with the segment that it belongs to.
struct AttributeValue {
    PlacedName component;
    PlacedName name;
    std::vector<double> elements;
    std::vector<PlacedName> segments;  // empty: elements are given by position
    bool is_derived = false;           // from `chains` or `mix`: the file does not give it
};

struct ComponentValue {
    PlacedName component;
    double value = 0;
};
using Flow = ComponentValue;  // kmol/h, apparent basis

// Mole or mass fractions of the segments in chains.
struct SegmentFractions {
    SourcePosition source;
    bool by_mass = false;
    std::vector<ComponentValue> values;
};

// Chains by their amount, composition and averages.
struct ChainFraction {
    SourcePosition source;
    std::optional<double> mass;   // kg/h
    std::optional<double> moles;  // kmol/h of chains
    std::optional<SegmentFractions> segments;
    std::optional<double> mn, mw, mz;  // g/mol
    std::optional<double> dispersity;
    std::optional<double> dpn;
    std::optional<ChainLengthModel> type;  // that relates the averages
};

struct PolymerChains {
    PlacedName polymer;
    std::vector<ChainFraction> fractions;
};

// Other streams, each with a factor on its flows.
struct Mix {
    SourcePosition source;
    std::vector<ComponentValue> parts;  // stream names and factors
};

// The last three are other ways to give flows and attributes: `apply_natural_inputs` adds what they say.
struct Stream {
    PlacedName name;
    std::vector<Flow> flows;
    std::vector<AttributeValue> attributes;
    std::vector<ComponentValue> mass_flows;  // kg/h
    std::vector<PolymerChains> chains;
    std::optional<Mix> mix;
};

enum class Averaging { number, mass, weight_factors };

// A property of polymers and oligomers that follows from those of their segments.
struct Property {
    PlacedName name;
    std::string unit = "1";
    Averaging averaging = Averaging::number;
    std::vector<ComponentValue> segment_values;
    std::vector<ComponentValue> weight_factors;  // of the segments
    std::vector<ComponentValue> own_values;      // of polymers and oligomers, preferred to the average
};

// The polymer that the outlet stream holds beyond the inlet streams is of interest.
struct Reactor {
    PlacedName name;
    std::vector<PlacedName> inlets;
    PlacedName outlet;
};

struct Settings {
    double zero_bound = 1e-15;
    double missing_value_bound = 1e35;
    bool pdi_from_parameters = false;
    Int message_level = 2;             // severity up to which messages are printed
    std::int64_t lines_per_page = 60;  // of the report file, without the heading
};

struct Case {
    std::string file;
    std::string title;
    Settings settings;
    std::vector<Component> components;  // in the order of the file
    std::optional<Paragraph> paragraph;
    std::vector<ScalingEntry> catalyst_scaling;
    std::vector<Stream> streams;
    std::vector<Property> properties;
    std::vector<Reactor> reactors;
    std::vector<Distribution> distributions;
    std::vector<ParameterSet> parameter_sets;
    std::vector<Diagnostic> warnings;  // of the reader; evaluation adds its own

    const Component* find(std::string_view id) const;
    std::vector<std::string_view> ids() const;
};

}  // namespace app
