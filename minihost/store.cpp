#include "minihost/store.h"

#include <polyprops/host.h>

#include <algorithm>
#include <array>
#include <cstdlib>

#include "minihost/error.h"
#include "minihost/store_memory.h"

namespace minihost {
namespace {

constexpr Word guard_pattern = 0x7FF5'FE0C'E0FE'0CE5;
constexpr Int pinned_capacity = Store::capacity / 4;
constexpr Int half_capacity = (Store::capacity - pinned_capacity) / 2;

// Blocks move to another place each time, not back and forth between two: a position kept from two
// allocations ago is as wrong as one from the last.
constexpr Int largest_shift = 61;

// A parameter vector is addressed by the position before its first word, and 0 means that it does not exist:
// so no block begins at position 1.
constexpr Position first_position = 2;

std::string named(BlockId id)
{
    return "store block " + std::to_string(id);
}

std::string_view name_of_kind(BlockKind kind)
{
    constexpr std::array<std::string_view, 3> names{"integers", "reals", "integers and reals"};
    return names.at(static_cast<std::size_t>(kind));
}

Arena pinned_arena(Store::Mode mode)
{
    return {first_position, mode == Store::Mode::checked ? pinned_capacity - first_position + 1 : 0};
}

Arena half_arena(Store::Mode mode, int half)
{
    if (mode == Store::Mode::checked) return {pinned_capacity + 1 + half * half_capacity, half_capacity};
    return {first_position, half == 0 ? Store::capacity - first_position + 1 : 0};
}

void vacate(Position start, Int length)
{
    memory::open(start, length);
    memory::fill(start, length, Store::poison);
    memory::close(start, length);
}

}  // namespace

Store::Mode Store::default_mode()
{
    const char* setting = std::getenv("POLYPROPS_CHECKED_STORE");
    return setting && *setting && std::string_view(setting) != "0" ? Mode::checked : Mode::plain;
}

Store::Store(Mode mode)
    : mode_(mode),
      guard_(mode == Mode::checked ? 2 : 0),
      pinned_(pinned_arena(mode)),
      halves_{half_arena(mode, 0), half_arena(mode, 1)}
{
    if (mode == Mode::checked) memory::close(1, capacity);
}

Store::~Store()
{
    if (mode_ == Mode::checked) memory::open(1, capacity);
}

BlockId Store::allocate_integers(Int length, Placement placement)
{
    return allocate(BlockKind::integers, length, 0, placement);
}

BlockId Store::allocate_reals(Int length, Placement placement)
{
    return allocate(BlockKind::reals, 0, length, placement);
}

BlockId Store::allocate_two_part(Int integers, Int reals, Placement placement)
{
    return allocate(BlockKind::two_part, integers, reals, placement);
}

BlockId Store::allocate_zeros(Int length, Placement placement)
{
    const BlockId id = allocate_integers(length, placement);
    for (Int k = 1; k <= length; ++k) set_integer(id, k, 0);
    return id;
}

BlockId Store::allocate(BlockKind kind, Int integers, Int reals, Placement placement)
{
    verify();
    Block block{.kind = kind, .placement = placement, .live = true, .integers = {}, .reals = {}};
    if (kind != BlockKind::reals) block.integers = place(integers, placement);
    if (kind != BlockKind::integers) block.reals = place(reals, placement);
    blocks_.push_back(block);
    ++live_;
    move_everything();
    return static_cast<BlockId>(blocks_.size());
}

void Store::resize_integers(BlockId id, Int length)
{
    verify();
    const Block old = block_of(id, BlockKind::integers, "integers");
    const Extent grown = place(length, old.placement);
    memory::copy(old.integers.position, grown.position, std::min(length, old.integers.length));
    release(old.integers, old.placement);
    blocks_[static_cast<std::size_t>(id - 1)].integers = grown;
    move_everything();
}

void Store::free(BlockId id)
{
    verify();
    const Block old = block(id);
    if (old.kind != BlockKind::reals) release(old.integers, old.placement);
    if (old.kind != BlockKind::integers) release(old.reals, old.placement);
    blocks_[static_cast<std::size_t>(id - 1)].live = false;
    --live_;
}

Position Store::integers(BlockId id) const
{
    return block_of(id, BlockKind::integers, "integers").integers.position;
}

Position Store::reals(BlockId id) const
{
    return block_of(id, BlockKind::reals, "reals").reals.position;
}

Position Store::keys(BlockId id) const
{
    return block_of(id, BlockKind::two_part, "a two-part block").integers.position;
}

Position Store::values(BlockId id) const
{
    return block_of(id, BlockKind::two_part, "a two-part block").reals.position;
}

bool Store::exists(BlockId id) const
{
    return id >= 1 && id <= static_cast<BlockId>(blocks_.size()) &&
           blocks_[static_cast<std::size_t>(id - 1)].live;
}

BlockKind Store::kind(BlockId id) const
{
    return block(id).kind;
}
Int Store::integer_length(BlockId id) const
{
    return integer_extent(id).length;
}
Int Store::real_length(BlockId id) const
{
    return real_extent(id).length;
}

Word Store::integer(BlockId id, Int k) const
{
    return ST_WORDS[word_of_extent(integer_extent(id), id, k, "integer") - 1];
}

void Store::set_integer(BlockId id, Int k, Word value)
{
    ST_WORDS[word_of_extent(integer_extent(id), id, k, "integer") - 1] = value;
}

double Store::real(BlockId id, Int k) const
{
    return real_of(ST_WORDS[word_of_extent(real_extent(id), id, k, "real") - 1]);
}

void Store::set_real(BlockId id, Int k, double value)
{
    ST_WORDS[word_of_extent(real_extent(id), id, k, "real") - 1] = word_of(value);
}

void Store::set_name(BlockId id, Int k, std::string_view name)
{
    const NamePair pair = name_pair(name);
    set_integer(id, k, pair[0]);
    set_integer(id, k + 1, pair[1]);
}

void Store::check_run(const void* first, Int count, const char* service) const
{
    const auto base = reinterpret_cast<std::uintptr_t>(ST_WORDS);
    const auto address = reinterpret_cast<std::uintptr_t>(first);
    if (count < 1 || address < base || address >= base + sizeof(Word) * capacity) return;
    const auto start = static_cast<Position>((address - base) / sizeof(Word)) + 1;
    const auto covers = [start, count](const Extent& extent) {
        return start >= extent.position && start + count <= extent.position + extent.length;
    };
    const auto block_covers = [&covers](const Block& block) {
        return block.live && (covers(block.integers) || covers(block.reals));
    };
    const bool inside = mode_ == Mode::checked ? std::any_of(blocks_.begin(), blocks_.end(), block_covers)
                                               : covers({1, capacity});
    if (!inside)
        throw Error(std::string(service) + ": store positions " + std::to_string(start) + " to " +
                    std::to_string(start + count - 1) + " are out of range");
}

void Store::verify() const
{
    if (mode_ == Mode::plain) return;
    for (std::size_t i = 0; i < blocks_.size(); ++i)
        if (blocks_[i].live) check_guards(static_cast<BlockId>(i + 1), blocks_[i]);
}

std::vector<Word> Store::contents() const
{
    std::vector<Word> words;
    const auto append = [&words](const Extent& extent) {
        const Word* first = ST_WORDS + extent.position - 1;
        if (extent.length > 0) words.insert(words.end(), first, first + extent.length);
    };
    for (const Block& block : blocks_) {
        if (!block.live) continue;
        append(block.integers);
        append(block.reals);
    }
    return words;
}

const Store::Block& Store::block(BlockId id) const
{
    if (id < 1 || id > static_cast<BlockId>(blocks_.size())) throw Error(named(id) + " does not exist");
    const Block& found = blocks_[static_cast<std::size_t>(id - 1)];
    if (!found.live) throw Error(named(id) + " was freed");
    if (mode_ == Mode::checked) check_guards(id, found);
    return found;
}

const Store::Block& Store::block_of(BlockId id, BlockKind kind, const char* wanted) const
{
    const Block& found = block(id);
    if (found.kind != kind)
        throw Error(named(id) + " holds " + std::string(name_of_kind(found.kind)) + "; asked for as " +
                    wanted);
    return found;
}

const Store::Extent& Store::integer_extent(BlockId id) const
{
    const Block& found = block(id);
    if (found.kind == BlockKind::reals) throw Error(named(id) + " has no integers");
    return found.integers;
}

const Store::Extent& Store::real_extent(BlockId id) const
{
    const Block& found = block(id);
    if (found.kind == BlockKind::integers) throw Error(named(id) + " has no reals");
    return found.reals;
}

Arena& Store::arena(Placement placement)
{
    return mode_ == Mode::checked && placement == Placement::pinned ? pinned_ : halves_[half_];
}

Store::Extent Store::place(Int length, Placement placement)
{
    if (length < 0) throw Error("a store block cannot have " + std::to_string(length) + " words");
    Arena& target = arena(placement);
    // Room for the shift is asked for as well: then everything also fits when it moves.
    const Int spare = mode_ == Mode::checked ? largest_shift : 0;
    const auto start = length <= capacity ? target.take(length + 2 * guard_ + spare) : std::nullopt;
    if (!start) throw Error("the store is full: no room for " + std::to_string(length) + " words");
    target.give_back(*start + length + 2 * guard_, spare);
    const Extent extent = open(*start, length);
    memory::fill(extent.position, length, mode_ == Mode::checked ? poison : 0);
    return extent;
}

Store::Extent Store::open(Position start, Int length) const
{
    memory::open(start, length + 2 * guard_);
    memory::fill(start, guard_, guard_pattern);
    memory::fill(start + guard_ + length, guard_, guard_pattern);
    memory::close(start, guard_);
    memory::close(start + guard_ + length, guard_);
    return {start + guard_, length};
}

void Store::release(const Extent& extent, Placement placement)
{
    const Position start = extent.position - guard_;
    const Int length = extent.length + 2 * guard_;
    if (mode_ == Mode::checked) vacate(start, length);
    arena(placement).give_back(start, length);
}

void Store::move_everything()
{
    if (mode_ == Mode::plain) return;
    Arena& source = halves_[half_];
    Arena& target = halves_[1 - half_];
    target.take(1 + static_cast<Int>(blocks_.size()) % largest_shift);
    for (Block& block : blocks_) {
        if (!block.live || block.placement == Placement::pinned) continue;
        if (block.kind != BlockKind::reals) move(block.integers, target);
        if (block.kind != BlockKind::integers) move(block.reals, target);
    }
    vacate(source.first(), source.high_water() - source.first());
    source.reset();
    half_ = 1 - half_;
}

void Store::move(Extent& extent, Arena& target)
{
    // There is room: `place` asked for as much.
    const Position start = target.take(extent.length + 2 * guard_).value();
    const Extent moved = open(start, extent.length);
    memory::copy(extent.position, moved.position, extent.length);
    extent = moved;
}

void Store::check_guards(BlockId id, const Block& block) const
{
    const auto intact = [this](const Extent& extent) {
        return memory::holds(extent.position - guard_, guard_, guard_pattern) &&
               memory::holds(extent.position + extent.length, guard_, guard_pattern);
    };
    const bool damaged = (block.kind != BlockKind::reals && !intact(block.integers)) ||
                         (block.kind != BlockKind::integers && !intact(block.reals));
    if (damaged) throw Error("words around " + named(id) + " were overwritten");
}

Position Store::word_of_extent(const Extent& extent, BlockId id, Int k, const char* part)
{
    if (k < 1 || k > extent.length)
        throw Error(named(id) + " has no " + part + " word " + std::to_string(k) + "; it has " +
                    std::to_string(extent.length));
    return extent.position + k - 1;
}

}  // namespace minihost
