#include "minihost/embedded_host.h"

#include <polyprops/host.h>
#include <polyprops/polymer_block.h>

#include "minihost/active_host.h"
#include "minihost/records.h"

namespace minihost {
namespace {

constexpr Int directory_words = 256;
constexpr Int root_words = 32;

BlockId allocate_directory(Store& store)
{
    while (store.block_count() < POLYPROPS_RUN_DIRECTORY_ID - 1) store.allocate_zeros(1);
    return store.allocate_zeros(directory_words);
}

BlockId allocate_root(Store& store, BlockId directory)
{
    const BlockId root = store.allocate_zeros(root_words);
    store.set_integer(directory, POLYPROPS_ROOT_WORD, root);
    return root;
}

Int count_polymers(const ComponentTable& components)
{
    Int count = 0;
    for (Int c = 1; c <= components.count(); ++c) count += components.is(ComponentClass::polymer, c);
    return count;
}

}  // namespace

Host::Registration::Registration(Host& host)
{
    if (active_host()) throw Error("a host is already active; there is one at a time");
    reset_records();
    active_host() = &host;
}

Host::Registration::~Registration()
{
    active_host() = nullptr;
}

Host::Host(std::vector<Component> components, const Options& options)
    : registration_(*this),
      store_(options.store_mode),
      directory_(allocate_directory(store_)),
      root_(allocate_root(store_, directory_)),
      components_(store_, std::move(components), options.absent_parameters),
      attributes_(components_.count()),
      streams_(store_, components_, attributes_),
      paragraph_(store_),
      keywords_(store_),
      property_sentences_(store_, components_, keywords_, attributes_),
      attribute_blocks_(store_, components_)
{
    set_bounds(options.missing_value_bound, options.zero_bound);
    set_polymer_count(count_polymers(components_));
}

Host::~Host() = default;

Host& Host::active()
{
    if (!active_host()) throw Error("no host is active");
    return *active_host();
}

BlockId Host::polymer_block()
{
    return store_.integer(root_, POLYPROPS_POLYMER_BLOCK_WORD);
}
void Host::set_polymer_block(BlockId id)
{
    store_.set_integer(root_, POLYPROPS_POLYMER_BLOCK_WORD, id);
}

AttributeDimensions Host::dimensions()
{
    const BlockId id = polymer_block();
    if (id <= 0) return {};
    const auto word_1 = [&](PolypropsPolymerWord word) {
        const BlockId block = store_.integer(id, word);
        return block > 0 ? store_.integer(block, 1) : 0;
    };
    return {.segments = word_1(POLYPROPS_SEGMENT_LIST),
            .end_segments = word_1(POLYPROPS_END_SEGMENT_LIST),
            .sites = word_1(POLYPROPS_PARAMETERS)};
}

Int Host::attribute_offset(Int component, std::string_view name)
{
    if (!attributes_.find(component, name)) return 0;
    if (!attributes_.frozen()) attributes_.lay_out(dimensions());
    return attributes_.reported_offset(component, name);
}

AttributeBlocks& Host::lay_attribute_blocks()
{
    attribute_blocks_.lay(attributes_, dimensions());
    return attribute_blocks_;
}

void Host::add_stream(const Stream& stream)
{
    attributes_.lay_out(dimensions());
    streams_.add(stream, ST_RGLOBAL[1 - 1]);
    attributes_.freeze();
}

void Host::set_bounds(double missing_value_bound, double zero_bound)
{
    ST_RGLOBAL[1 - 1] = missing_value_bound;
    ST_RGLOBAL[2 - 1] = zero_bound;
}

void Host::set_pdi_mode(Int mode)
{
    ST_GLOBAL[30 - 1] = mode;
}
void Host::set_polymer_count(Int count)
{
    ST_NCOMP[17 - 1] = count;
}

}  // namespace minihost
