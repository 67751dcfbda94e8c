// The components of a run, in the order that gives them their indices 1..count.
#pragma once

#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "minihost/store_words.h"

namespace minihost {

class Store;

enum class ComponentClass { conventional, polymer, oligomer, segment };

// Pure-component parameters that are kept as vectors with one value per component.
enum class Parameter { molecular_weight, dpn, cry, pdi };

struct Component {
    std::string id = {};    // at most 8 characters
    std::string name = {};  // databank name, at most 24 characters, "H2O" for water
    ComponentClass component_class = ComponentClass::conventional;
    std::optional<double> molecular_weight = {};  // g/mol
    std::optional<double> dpn = {};               // own number-average degree of polymerization
    std::optional<double> pdi = {};               // own polydispersity index
    std::optional<double> cry = {};               // own crystallinity parameter
};

// Lays the parameter vectors, the name table and the component-ID block into the store and points the host's
// records at them. A parameter vector exists when at least one component gives the parameter and it is not
// among `absent`; components that do not give it then hold the neutral value: 0, but 1 for DPN and PDI.
class ComponentTable {
public:
    // Throws Error for an ID or name that is empty, too long or used twice.
    ComponentTable(Store& store, std::vector<Component> components, const std::set<Parameter>& absent);

    Int count() const { return static_cast<Int>(components_.size()); }

    // The component of an index 1..count. Throws Error for another index.
    const Component& at(Int index) const;

    // The index of an ID, 0 when no component has it.
    Int find(std::string_view id) const;

    // The index of an ID. Throws Error when no component has it.
    Int index(std::string_view id) const;

    bool is(ComponentClass component_class, Int index) const;

private:
    void check_names();
    void lay_parameter(Store& store, Parameter parameter) const;
    void lay_names(Store& store) const;
    void lay_ids(Store& store) const;

    std::vector<Component> components_;
    std::unordered_map<std::string, Int> index_of_id_;
};

}  // namespace minihost
