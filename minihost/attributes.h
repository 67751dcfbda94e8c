// The attributes that each component carries, and the places of their values.
//
// Attribute values follow the component flows of each substream. With k0 the position of component 1's flow
// in a stream vector SV and j the attribute's offset, element e is SV(k0 + j + e - 1); an offset therefore
// starts behind the flows of all components.
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "minihost/store_words.h"

namespace minihost {

// The counts that attribute lengths depend on.
struct AttributeDimensions {
    Int segments = 0;
    Int end_segments = 0;
    Int sites = 0;  // catalyst site types; none counts as one: the whole catalyst
    bool operator==(const AttributeDimensions&) const = default;
};

enum class AttributeShape { scalar, by_segment, by_end_segment, by_site, by_segment_and_site };

struct AttributeKind {
    std::string_view name;
    AttributeShape shape;
    bool extensive;  // an amount per time: a stream that does not give it holds 0, otherwise "missing"
    std::string_view meaning;
};

// Every attribute that a component may carry.
const std::vector<AttributeKind>& attribute_kinds();

// The kind of a name, or null for a name that is no attribute.
const AttributeKind* find_attribute_kind(std::string_view name);

// Number of values of an attribute.
Int attribute_length(const AttributeKind& kind, const AttributeDimensions& dimensions);

class AttributeTable {
public:
    struct Entry {
        const AttributeKind* kind;
        Int length = 0;
        Int offset = 0;
    };

    explicit AttributeTable(Int component_count);

    // Appends attributes to those that a component carries; one that it carries already stays where it is.
    // Throws Error for an unknown name and once values are laid out in a stream.
    void carry(Int component, const std::vector<std::string>& names);

    // Makes the offset that is reported of a carried attribute one that is not positive (0 or less).
    void hide(Int component, std::string_view name, Int offset);

    // Assigns offsets. Throws Error when the dimensions change after `freeze`.
    void lay_out(const AttributeDimensions& dimensions);

    // Streams hold values from now on: the layout stays as it is.
    void freeze() { frozen_ = true; }
    bool frozen() const { return frozen_; }

    // The attribute of a component, null when it does not carry it.
    const Entry* find(Int component, std::string_view name) const;

    // The offset that the library gets, of an attribute that the component carries.
    Int reported_offset(Int component, std::string_view name) const;

    const std::vector<Entry>& carried_by(Int component) const;

    // Words of one substream from component 1's flow to its last attribute value.
    Int substream_length() const { return substream_length_; }

private:
    void check_open(const char* subject) const;
    std::size_t row(Int component) const;

    std::vector<std::vector<Entry>> rows_;
    std::map<std::pair<Int, std::string>, Int> hidden_;
    std::optional<AttributeDimensions> dimensions_;
    Int substream_length_ = 0;
    bool frozen_ = false;
};

}  // namespace minihost
