#include "minihost/component_table.h"

#include <polyprops/host.h>

#include <algorithm>

#include "minihost/error.h"
#include "minihost/store.h"

namespace minihost {
namespace {

struct ParameterVector {
    int offset_entry;  // in ST_POFF1
    double neutral;
    std::optional<double> Component::*value;
};

const ParameterVector& vector_of(Parameter parameter)
{
    static const ParameterVector vectors[] = {
        {306, 0.0, &Component::molecular_weight},
        {540, 1.0, &Component::dpn},
        {601, 0.0, &Component::cry},
        {684, 1.0, &Component::pdi},
    };
    return vectors[static_cast<int>(parameter)];
}

constexpr Parameter all_parameters[] = {Parameter::molecular_weight, Parameter::dpn, Parameter::cry,
                                        Parameter::pdi};

constexpr std::size_t longest_id = 8;
constexpr std::size_t longest_name = 24;
constexpr Int name_words = 3;
constexpr Int id_entry_words = 6;

}  // namespace

ComponentTable::ComponentTable(Store& store, std::vector<Component> components,
                               const std::set<Parameter>& absent)
    : components_(std::move(components))
{
    check_names();
    for (const Parameter parameter : all_parameters)
        if (!absent.contains(parameter)) lay_parameter(store, parameter);
    lay_names(store);
    lay_ids(store);
}

void ComponentTable::check_names()
{
    for (const Component& component : components_) {
        const std::string& id = component.id;
        if (id.empty() || id.size() > longest_id)
            throw Error("component ID \"" + id + "\" has " + std::to_string(id.size()) +
                        " characters; 1 to 8 fit");
        if (component.name.size() > longest_name)
            throw Error("name of component " + id + " has more than 24 characters: \"" + component.name +
                        "\"");
        if (!index_of_id_.emplace(id, static_cast<Int>(index_of_id_.size()) + 1).second)
            throw Error("component ID " + id + " is used twice");
    }
}

void ComponentTable::lay_parameter(Store& store, Parameter parameter) const
{
    const ParameterVector& vector = vector_of(parameter);
    const auto given = [&vector](const Component& component) {
        return (component.*vector.value).has_value();
    };
    if (std::none_of(components_.begin(), components_.end(), given)) return;
    const BlockId id = store.allocate_reals(count(), Placement::pinned);
    for (Int c = 1; c <= count(); ++c) store.set_real(id, c, (at(c).*vector.value).value_or(vector.neutral));
    ST_POFF1[vector.offset_entry - 1] = store.reals(id) - 1;
}

void ComponentTable::lay_names(Store& store) const
{
    const BlockId id = store.allocate_integers(name_words * count(), Placement::pinned);
    for (Int c = 1; c <= count(); ++c) {
        std::string name = at(c).name;
        name.resize(longest_name, ' ');
        for (Int w = 0; w < name_words; ++w)
            store.set_integer(id, name_words * (c - 1) + w + 1,
                              text_word(name.substr(8 * static_cast<std::size_t>(w), 8)));
    }
    ST_POFF4[1 - 1] = store.integers(id) - 1;
}

void ComponentTable::lay_ids(Store& store) const
{
    const BlockId id = store.allocate_integers(1 + id_entry_words * count());
    store.set_integer(id, 1, count());
    for (Int c = 1; c <= count(); ++c) {
        const NamePair words = name_pair(at(c).id);
        const Int first = 2 + id_entry_words * (c - 1);
        for (Int w = 0; w < id_entry_words; ++w)
            store.set_integer(id, first + w, w < 2 ? words[static_cast<std::size_t>(w)] : 0);
    }
    UT_COMPONENT_IDS[1 - 1] = id;
}

const Component& ComponentTable::at(Int index) const
{
    if (index < 1 || index > count())
        throw Error("component index " + std::to_string(index) + " is not in 1.." + std::to_string(count()));
    return components_[static_cast<std::size_t>(index - 1)];
}

Int ComponentTable::find(std::string_view id) const
{
    const auto found = index_of_id_.find(std::string(id));
    return found == index_of_id_.end() ? 0 : found->second;
}

Int ComponentTable::index(std::string_view id) const
{
    const Int found = find(id);
    if (found == 0) throw Error("unknown component \"" + std::string(id) + "\"");
    return found;
}

bool ComponentTable::is(ComponentClass component_class, Int index) const
{
    return at(index).component_class == component_class;
}

}  // namespace minihost
