#include "minihost/streams.h"

#include <polyprops/host.h>

#include "minihost/attributes.h"
#include "minihost/component_table.h"
#include "minihost/error.h"
#include "minihost/store.h"

namespace minihost {
namespace {

// The origin of the current stream's attributes is a sum of three record words. None of them is 0, and a
// stream begins with as many words of its own, so that an origin without one of the terms reads something
// else.
constexpr Int second_origin_term = 3;
constexpr Int third_origin_term = 5;
constexpr Int leading_words = 9;

Word& word(const StreamView& view, Int index)
{
    return ST_WORDS[view.position + index - 2];
}

}  // namespace

void StreamTable::add(const Stream& stream, double missing)
{
    check(stream);
    const StreamView view = lay(stream);
    for (std::size_t i = 0; i < stream.substreams.size(); ++i) {
        fill_flows(stream, i, view);
        fill_defaults(view.first_flow[i], view, missing);
        fill_attributes(stream.substreams[i], view.first_flow[i], view);
    }
    views_.emplace(stream.name, view);
}

void StreamTable::check(const Stream& stream) const
{
    if (contains(stream.name)) throw Error("stream " + stream.name + " is defined twice");
    for (const Substream& substream : stream.substreams) {
        for (const auto& [id, flow] : substream.flows) components_.index(id);
        for (const auto& [id, attributes] : substream.attributes)
            for (const auto& [name, values] : attributes) check_attribute(stream.name, id, name, values);
    }
}

void StreamTable::check_attribute(const std::string& stream, const std::string& id, const std::string& name,
                                  const std::vector<double>& values) const
{
    const auto refuse = [&](const std::string& why) {
        throw Error("stream " + stream + ": " + name + " of " + id + why);
    };
    const auto* entry = attributes_.find(components_.index(id), name);
    if (!entry)
        refuse(" is given, but the component does not carry it");
    else if (static_cast<Int>(values.size()) != entry->length)
        refuse(" has " + std::to_string(values.size()) + " values; expected " +
               std::to_string(entry->length));
}

StreamView StreamTable::lay(const Stream& stream)
{
    const Int substream_length = attributes_.substream_length();
    StreamView view;
    view.length = leading_words + substream_length * static_cast<Int>(stream.substreams.size());
    const BlockId id = store_.allocate_reals(view.length, Placement::pinned);
    view.position = store_.reals(id);
    view.values = reinterpret_cast<const double*>(ST_WORDS + view.position - 1);
    for (std::size_t i = 0; i < stream.substreams.size(); ++i) {
        view.first_flow.push_back(leading_words + 1 + substream_length * static_cast<Int>(i));
        view.types.push_back(stream.substreams[i].type);
    }
    for (Int k = 1; k <= leading_words; ++k) word(view, k) = word_of(0.0);
    return view;
}

void StreamTable::fill_flows(const Stream& stream, std::size_t i, const StreamView& view)
{
    const Int first = view.first_flow[i];
    for (Int c = 1; c <= components_.count(); ++c) word(view, first + c - 1) = word_of(0.0);
    for (const auto& [id, flow] : stream.substreams[i].flows)
        word(view, first + components_.index(id) - 1) = word_of(flow);
}

void StreamTable::fill_defaults(Int first, const StreamView& view, double missing)
{
    for (Int c = 1; c <= components_.count(); ++c)
        for (const auto& entry : attributes_.carried_by(c))
            for (Int e = 1; e <= entry.length; ++e)
                word(view, first + entry.offset + e - 1) = word_of(entry.kind->extensive ? 0.0 : missing);
}

void StreamTable::fill_attributes(const Substream& substream, Int first, const StreamView& view)
{
    for (const auto& [id, attributes] : substream.attributes)
        for (const auto& [name, values] : attributes) {
            Int index = first + attributes_.find(components_.index(id), name)->offset;
            for (const double value : values) word(view, index++) = word_of(value);
        }
}

void StreamTable::select(std::string_view name, Int substream) const
{
    const StreamView& selected = view(name);
    if (substream < 1 || substream > static_cast<Int>(selected.first_flow.size()))
        throw Error("stream " + std::string(name) + " has no substream " + std::to_string(substream));
    const Position first =
        selected.position - 1 + selected.first_flow[static_cast<std::size_t>(substream - 1)];
    ST_NCOMP[6 - 1] = second_origin_term;
    ST_NCOMP[8 - 1] = third_origin_term;
    ST_GLOBAL[17 - 1] = first - second_origin_term - third_origin_term;
}

const StreamView& StreamTable::view(std::string_view name) const
{
    const auto found = views_.find(std::string(name));
    if (found == views_.end()) throw Error("unknown stream \"" + std::string(name) + "\"");
    return found->second;
}

}  // namespace minihost
