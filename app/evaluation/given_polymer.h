// A polymer of a stream as the case file gives it: values that the host accepted, none of them derived.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "app/case/case_model.h"
#include "minihost/embedded_host.h"
#include "minihost/polymer_input.h"

namespace app {

struct GivenSegment {
    std::string id;
    double molecular_weight;  // g/mol
    SegmentType type;
};

// In the order of the segment list.
std::vector<GivenSegment> given_segments(const minihost::Host& host, const minihost::PolymerInput& input);

class GivenPolymer {
public:
    GivenPolymer(const Stream& stream, const Flow& flow, minihost::Host& host);

    const std::string& stream() const { return stream_; }
    const std::string& id() const { return flow_.component.id; }
    const Flow& flow() const { return flow_; }       // kmol/h, apparent basis
    double mass_flow() const;                        // kg/h, by the component's molecular weight
    bool carries(std::string_view attribute) const;  // in every stream
    bool gives(std::string_view attribute) const { return values_.contains(attribute); }
    bool states(std::string_view attribute) const;  // gives it in `attributes`
    bool gives_all(std::initializer_list<std::string_view> attributes) const;

    // Of an attribute that is given.
    const std::vector<double>& elements(std::string_view attribute) const;
    double value(std::string_view attribute) const { return elements(attribute).front(); }
    double sum(std::string_view attribute) const;
    const SourcePosition& source(std::string_view attribute) const;

    // The keys in the file of an attribute and of the flow, those of `chains` or `mix` when they follow from
    // it.
    std::string key(std::string_view attribute) const;
    std::string flow_key() const;

private:
    struct Given {
        SourcePosition source;
        std::vector<double> elements;
        bool is_derived;  // from `chains` or `mix`
    };

    const std::string& stream_;
    const Flow& flow_;
    minihost::Host& host_;
    Int component_;
    std::map<std::string, Given, std::less<>> values_;
};

// The polymers that flow in a stream.
std::vector<GivenPolymer> given_polymers(const Stream& stream, minihost::Host& host);

}  // namespace app
