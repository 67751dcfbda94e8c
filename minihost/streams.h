// Streams: vectors of reals in the store that hold, substream by substream, component flows and attribute
// values.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "minihost/store_words.h"

namespace minihost {

class AttributeTable;
class ComponentTable;
class Store;

// Contents of a substream, by component ID. Flows that are not named are 0.
struct Substream {
    Int type = 1;  // type code; 3 holds no polymer for the moment routines
    std::map<std::string, double> flows = {};
    std::map<std::string, std::map<std::string, std::vector<double>>> attributes = {};  // [component][name]
};

struct Stream {
    std::string name;
    std::vector<Substream> substreams = {Substream{}};
};

// The place of a stream in the store. `values` points to word 1 of its vector; first_flow[i] is the 1-based
// position of component 1's flow of substream i+1 in it.
struct StreamView {
    const double* values = nullptr;
    Position position = 0;
    Int length = 0;
    std::vector<Int> first_flow;
    std::vector<Int> types;
};

class StreamTable {
public:
    StreamTable(Store& store, const ComponentTable& components, const AttributeTable& attributes)
        : store_(store), components_(components), attributes_(attributes)
    {
    }

    // Lays a stream into the store. Throws Error for a name used twice, an unknown component, an attribute
    // that the component does not carry and a wrong number of values. Values that are not finite are
    // refused.
    void add(const Stream& stream, double missing);

    // Makes a substream (1-based) the one whose attributes the library reads from the store.
    void select(std::string_view name, Int substream = 1) const;

    const StreamView& view(std::string_view name) const;
    bool contains(std::string_view name) const { return views_.contains(std::string(name)); }

private:
    StreamView lay(const Stream& stream);
    void fill_flows(const Stream& stream, std::size_t i, const StreamView& view);
    // Every attribute that a component carries, 0 or missing where the stream gives none.
    void fill_defaults(Int first, const StreamView& view, double missing);
    void fill_attributes(const Substream& substream, Int first, const StreamView& view);
    void check(const Stream& stream) const;
    void check_attribute(const std::string& stream, const std::string& id, const std::string& name,
                         const std::vector<double>& values) const;

    Store& store_;
    const ComponentTable& components_;
    const AttributeTable& attributes_;
    std::map<std::string, StreamView> views_;
};

}  // namespace minihost
