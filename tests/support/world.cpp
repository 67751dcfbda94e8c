#include "support/world.h"

#include <polyprops/polymer_block.h>

#include <algorithm>

namespace support {
namespace {

using minihost::Store;

// A block of two parts when reals are given.
BlockId lay(Store& store, const std::vector<Int>& integers, const std::vector<double>* reals = nullptr)
{
    const auto size = std::ssize(integers);
    const BlockId id =
        reals ? store.allocate_two_part(size, std::ssize(*reals)) : store.allocate_integers(size);
    for (Int k = 0; const Int word : integers) store.set_integer(id, ++k, word);
    if (reals)
        for (Int k = 0; const double word : *reals) store.set_real(id, ++k, word);
    return id;
}

// A list begins with the number of its entries.
BlockId lay_list(Store& store, std::vector<Int> entries)
{
    entries.insert(entries.begin(), std::ssize(entries));
    return lay(store, entries);
}

void set_attributes(minihost::Substream& substream, const std::string& id, const Attributes& attributes)
{
    for (const Attribute& attribute : attributes) substream.attributes[id][attribute.name] = attribute.values;
}

}  // namespace

BlockId lay_polymer_block(Store& store, const PolymerLists& lists)
{
    std::vector<Int> segments{std::ssize(lists.segments)}, oligomers{std::ssize(lists.oligomers)};
    for (const auto& segment : lists.segments) segments.push_back(segment.component);
    for (const auto& segment : lists.segments) segments.push_back(static_cast<Int>(segment.type));
    std::vector<double> counts;
    for (auto oligomer : lists.oligomers) {
        oligomers.push_back(oligomer.component);
        for (const auto& segment : lists.segments) counts.push_back(oligomer.counts[segment.component]);
    }
    std::vector<Int> parameters(POLYPROPS_PARAMETER_INTEGERS), block(POLYPROPS_POLYMER_BLOCK_LENGTH);
    const std::vector<double> parameter_reals{0};
    parameters[POLYPROPS_SITE_TYPES - 1] = lists.sites;
    block[0] = std::ssize(block);
    block[POLYPROPS_SEGMENT_LIST - 1] = lay(store, segments);
    block[POLYPROPS_POLYMER_LIST - 1] = lay_list(store, lists.polymers);
    block[POLYPROPS_OLIGOMER_LIST - 1] = lay(store, oligomers, &counts);
    block[POLYPROPS_PARAMETERS - 1] = lay(store, parameters, &parameter_reals);
    block[POLYPROPS_END_SEGMENT_LIST - 1] = lay_list(store, lists.end_segments);
    return lay(store, block);
}

World::World() : streams_{{"CURRENT"}}
{
    options_.store_mode = minihost::Store::Mode::checked;
    conventional("UNNAMED", 17);
}

World& World::component(const std::string& id, ComponentClass component_class, double molecular_weight)
{
    if (slot_) throw minihost::Error("the facts of a world stand once it was asked");
    components_.push_back(
        {.id = id, .name = "", .component_class = component_class, .molecular_weight = molecular_weight});
    return *this;
}

World& World::segments(std::initializer_list<Segment> segments)
{
    for (const Segment& segment : segments) {
        component(segment.id, ComponentClass::segment, segment.molecular_weight);
        lists_.segments.push_back({component_count(), segment.type});
        if (segment.type == SegmentType::end) lists_.end_segments.push_back(component_count());
    }
    return *this;
}

World& World::polymer(const std::string& id, const Attributes& given, double molecular_weight)
{
    component(id, ComponentClass::polymer, molecular_weight);
    lists_.polymers.push_back(component_count());
    return attributes(id, given);
}

World& World::oligomer(const std::string& id, const std::map<std::string, double>& counts,
                       double molecular_weight)
{
    component(id, ComponentClass::oligomer, molecular_weight);
    auto& listed = lists_.oligomers.emplace_back(PolymerLists::Oligomer{component_count(), {}});
    for (const auto& [segment, count] : counts) listed.counts[index(segment)] = count;
    return *this;
}

World& World::conventional(const std::string& id, double molecular_weight, const std::string& name)
{
    component(id, ComponentClass::conventional, molecular_weight);
    return set(components_.back().name, name);
}

World& World::parameter(const std::string& id, Parameter parameter, double value)
{
    auto& own = at(id);
    return set(parameter == Parameter::dpn   ? own.dpn
               : parameter == Parameter::pdi ? own.pdi
                                             : own.cry,
               value);
}

World& World::attributes(const std::string& id, const Attributes& given)
{
    set_attributes(streams_.front().substreams.front(), id, given);
    return *this;
}

World& World::stream(const std::string& name, const std::vector<Part>& parts)
{
    auto& substreams = streams_.emplace_back(minihost::Stream{name, {}}).substreams;
    for (const Part& part : parts) {
        substreams.push_back({.type = part.type, .flows = part.flows});
        for (const auto& [id, given] : part.attributes) set_attributes(substreams.back(), id, given);
    }
    return *this;
}

minihost::Host& World::host()
{
    static std::weak_ptr<Slot> asked_last;
    if (slot_ && *slot_) return **slot_;
    if (const auto other = asked_last.lock()) other->reset();
    slot_ = std::make_shared<Slot>(make_host());
    asked_last = slot_;
    return **slot_;
}

World::Slot World::make_host() const
{
    auto host = std::make_unique<minihost::Host>(components_, options_);
    host->set_polymer_block(lay_polymer_block(host->store(), lists_));
    for (const auto& stream : streams_)
        for (const auto& substream : stream.substreams)
            for (const auto& [id, attributes] : substream.attributes)
                for (const auto& [name, values] : attributes) host->attributes().carry(index(id), {name});
    for (const auto& [which, offset] : hidden_) {
        host->attributes().carry(index(which.first), {which.second});
        host->attributes().hide(index(which.first), which.second, offset);
    }
    for (const auto& stream : streams_) host->add_stream(stream);
    host->select_stream(streams_.front().name);
    if (pdi_mode_) host->set_pdi_mode(*pdi_mode_);
    if (polymer_count_) host->set_polymer_count(*polymer_count_);
    if (polymer_block_) host->set_polymer_block(*polymer_block_);
    return host;
}

minihost::Component& World::at(const std::string& id)
{
    return components_[static_cast<std::size_t>(index(id) - 1)];
}

Int World::index(const std::string& id) const
{
    const auto found = std::ranges::find(components_, id, &minihost::Component::id);
    if (found == components_.end()) throw minihost::Error("unknown component \"" + id + "\"");
    return found - components_.begin() + 1;
}

std::vector<Int> World::indices(const std::vector<std::string>& ids) const
{
    std::vector<Int> result;
    for (const std::string& id : ids) result.push_back(index(id));
    return result;
}

std::vector<double> World::molecular_weights() const
{
    std::vector<double> result;
    for (const auto& component : components_) result.push_back(component.molecular_weight.value_or(0.0));
    return result;
}

std::vector<Int> World::segment_list() const
{
    std::vector<Int> result;
    for (const auto& segment : lists_.segments) result.push_back(segment.component);
    return result;
}

}  // namespace support
