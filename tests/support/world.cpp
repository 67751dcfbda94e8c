#include "support/world.h"

#include <algorithm>

namespace support {
namespace {

constexpr const char* current_stream = "CURRENT";

minihost::Substream substream_of(const Part& part)
{
    minihost::Substream result{.type = part.type, .flows = part.flows, .attributes = {}};
    for (const auto& [id, attributes] : part.attributes)
        for (const Attribute& attribute : attributes)
            result.attributes[id][attribute.name] = attribute.values;
    return result;
}

std::optional<double>& value_of(minihost::Component& component, Parameter parameter)
{
    switch (parameter) {
        case Parameter::dpn:
            return component.dpn;
        case Parameter::pdi:
            return component.pdi;
        case Parameter::cry:
            return component.cry;
        default:
            return component.molecular_weight;
    }
}

}  // namespace

World::World()
{
    options_.store_mode = minihost::Store::Mode::checked;
    conventional("UNNAMED", 17);
}

World& World::add(minihost::Component component)
{
    if (slot_) throw minihost::Error("the facts of a world stand once it was asked");
    components_.push_back(std::move(component));
    return *this;
}

World& World::component(const std::string& id, ComponentClass component_class, double molecular_weight)
{
    return add(
        {.id = id, .name = "", .component_class = component_class, .molecular_weight = molecular_weight});
}

World& World::segments(std::initializer_list<Segment> segments)
{
    for (const Segment& segment : segments) {
        component(segment.id, ComponentClass::segment, segment.molecular_weight);
        segments_.push_back(segment);
        if (segment.type == SegmentType::end) end_segments_.push_back(segment.id);
    }
    return *this;
}

World& World::polymer(const std::string& id, const Attributes& given, double molecular_weight)
{
    component(id, ComponentClass::polymer, molecular_weight);
    polymers_.push_back(id);
    return attributes(id, given);
}

World& World::oligomer(const std::string& id, const std::map<std::string, double>& counts,
                       double molecular_weight)
{
    oligomers_[id] = counts;
    return component(id, ComponentClass::oligomer, molecular_weight);
}

World& World::conventional(const std::string& id, double molecular_weight, const std::string& name)
{
    return add({.id = id,
                .name = name,
                .component_class = ComponentClass::conventional,
                .molecular_weight = molecular_weight});
}

World& World::parameter(const std::string& id, Parameter parameter, double value)
{
    value_of(at(id), parameter) = value;
    return *this;
}

World& World::without(Parameter parameter)
{
    options_.absent_parameters.insert(parameter);
    return *this;
}

World& World::class_of(const std::string& id, ComponentClass component_class)
{
    at(id).component_class = component_class;
    return *this;
}

World& World::attributes(const std::string& id, const Attributes& given)
{
    auto& held = current_.attributes[id];
    held.insert(held.end(), given.begin(), given.end());
    return *this;
}

World& World::hidden_attribute(const std::string& id, const std::string& attribute, Int offset)
{
    hidden_[{id, attribute}] = offset;
    return *this;
}

World& World::flow(const std::string& id, double flow)
{
    current_.flows[id] = flow;
    return *this;
}

World& World::stream(const std::string& name, const std::vector<Part>& parts)
{
    streams_.emplace_back(name, parts);
    return *this;
}

World& World::sites(Int count)
{
    sites_ = count;
    return *this;
}

World& World::end_segments(const std::vector<std::string>& ids)
{
    end_segments_ = ids;
    return *this;
}

World& World::bounds(double missing_value_bound, double zero)
{
    options_.missing_value_bound = missing_value_bound;
    options_.zero_bound = zero;
    return *this;
}

World& World::pdi_mode(Int mode)
{
    pdi_mode_ = mode;
    return *this;
}

World& World::polymer_count(Int count)
{
    polymer_count_ = count;
    return *this;
}

World& World::without_polymer_block(minihost::BlockId id)
{
    polymer_block_ = id;
    return *this;
}

World& World::store_mode(minihost::Store::Mode mode)
{
    options_.store_mode = mode;
    return *this;
}

minihost::Host& World::host()
{
    static std::weak_ptr<Slot> asked_last;
    if (slot_ && slot_->host) return *slot_->host;
    if (const auto other = asked_last.lock()) other->host.reset();
    slot_ = std::make_shared<Slot>();
    slot_->host = make_host();
    asked_last = slot_;
    return *slot_->host;
}

std::unique_ptr<minihost::Host> World::make_host() const
{
    auto host = std::make_unique<minihost::Host>(components_, options_);
    host->set_polymer_block(lay_polymer_block(host->store(), lists()));
    carry_attributes(*host);
    for (const minihost::Stream& stream : all_streams()) host->add_stream(stream);
    host->select_stream(current_stream);
    set_records(*host);
    return host;
}

PolymerLists World::lists() const
{
    PolymerLists lists;
    lists.sites = sites_;
    lists.polymers = indices(polymers_);
    lists.end_segments = indices(end_segments_);
    for (const Segment& segment : segments_) lists.segments.push_back({index(segment.id), segment.type});
    for (const auto& [id, counts] : oligomers_) {
        PolymerLists::Oligomer oligomer{.component = index(id), .counts = {}};
        for (const auto& [segment, count] : counts) oligomer.counts[index(segment)] = count;
        lists.oligomers.push_back(oligomer);
    }
    return lists;
}

std::vector<minihost::Stream> World::all_streams() const
{
    std::vector<minihost::Stream> result{{current_stream, {substream_of(current_)}}};
    for (const auto& [name, parts] : streams_) {
        minihost::Stream stream{name, {}};
        for (const Part& part : parts) stream.substreams.push_back(substream_of(part));
        result.push_back(stream);
    }
    return result;
}

void World::carry_attributes(minihost::Host& host) const
{
    const auto carry = [&](const Part& part) {
        for (const auto& [id, attributes] : part.attributes)
            for (const Attribute& attribute : attributes)
                host.attributes().carry(index(id), {attribute.name});
    };
    carry(current_);
    for (const auto& [name, parts] : streams_)
        for (const Part& part : parts) carry(part);
    for (const auto& [which, offset] : hidden_) {
        host.attributes().carry(index(which.first), {which.second});
        host.attributes().hide(index(which.first), which.second, offset);
    }
}

void World::set_records(minihost::Host& host) const
{
    if (pdi_mode_) host.set_pdi_mode(*pdi_mode_);
    if (polymer_count_) host.set_polymer_count(*polymer_count_);
    if (polymer_block_) host.set_polymer_block(*polymer_block_);
}

minihost::Component& World::at(const std::string& id)
{
    return components_[static_cast<std::size_t>(index(id) - 1)];
}

Int World::index(const std::string& id) const
{
    const auto is_it = [&id](const minihost::Component& component) { return component.id == id; };
    const auto found = std::find_if(components_.begin(), components_.end(), is_it);
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
    for (const Segment& segment : segments_) result.push_back(index(segment.id));
    std::sort(result.begin(), result.end());
    return result;
}

const minihost::StreamView& World::view(const std::string& stream)
{
    return host().streams().view(stream);
}

}  // namespace support
