#include "input/distribution_requests.h"

#include <algorithm>
#include <array>

#include "input/components.h"
#include "input/input_messages.h"

namespace polyprops::input {

namespace {

constexpr std::size_t type_count = POLYPROPS_DISTRIBUTION_TYPES;

using PerType = std::array<Int, type_count>;

struct Request {
    NamePair polymer;
    std::array<Int, 4> values;  // the type and three further ones
    Real real;

    bool has_known_type() const { return 1 <= values[0] && values[0] <= Int{type_count}; }
    std::size_t slot() const { return static_cast<std::size_t>(values[0] - 1); }
};

Request request(const SentenceWords& words, Int i)
{
    const auto value = [&](Int list) { return words.integer(words.list_start(list) + i - 1); };
    return {words.name(words.list_start(1), i), {value(2), value(3), value(4), value(5)}, words.real(i)};
}

PerType count_requests(const Sentence& requests)
{
    const SentenceWords words = requests.words();
    PerType counts{};
    for (Int i = 1; i <= requests.entry_count; ++i) {
        const Request r = request(words, i);
        if (!find_component(r.polymer))
            report(messages::unknown_polymer_of_distribution, r.polymer);
        else if (r.has_known_type())
            ++counts[r.slot()];
    }
    return counts;
}

// As long as the sentence itself, which is enough unless its lists overlap.
PerType allocate_type_blocks(const Sentence& requests, const PerType& counts)
{
    PerType ids{};
    for (std::size_t t = 0; t < type_count; ++t) {
        if (counts[t] == 0) continue;
        ids[t] =
            allocate_two_part(std::max(requests.integer_count, 1 + POLYPROPS_REQUEST_COLUMNS * counts[t]),
                              std::max(requests.real_count, counts[t]));
        find_two_part(ids[t]).integers(1) = counts[t];
    }
    return ids;
}

void write_directory(const PerType& ids, const PolymerBlock& block)
{
    const IntegerBlock directory = block.list(POLYPROPS_DISTRIBUTION_DIRECTORY);
    directory(1) = Int{type_count};
    for (std::size_t t = 0; t < type_count; ++t) directory(2 + static_cast<Int>(t)) = ids[t];
}

void store_request(const TwoPartBlock& block, Int row, Component polymer, const Request& request)
{
    const Int count = block.integers(1);
    Int word = 1 + row;
    block.integers(word) = polymer.index;
    for (const Int value : request.values) block.integers(word += count) = value;
    block.reals.write(row, request.real);
}

void store_requests(const Sentence& requests, const PerType& ids)
{
    const SentenceWords words = requests.words();
    PerType stored{};
    for (Int i = 1; i <= requests.entry_count; ++i) {
        const Request r = request(words, i);
        const auto polymer = find_component(r.polymer);
        if (polymer && r.has_known_type())
            store_request(find_two_part(ids[r.slot()]), ++stored[r.slot()], *polymer, r);
    }
}

}  // namespace

void write_distribution_requests(const Sentence& requests, const PolymerBlock& block)
{
    const PerType counts = count_requests(requests);
    const PerType ids = allocate_type_blocks(requests, counts);
    write_directory(ids, block);
    store_requests(requests, ids);
}

}  // namespace polyprops::input
