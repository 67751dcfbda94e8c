#include "input/segment_list.h"

#include <algorithm>
#include <array>

#include "input/components.h"
#include "input/input_messages.h"

namespace polyprops::input {

namespace {

class TypeLists {
public:
    explicit TypeLists(const PolymerBlock& block)
        : lists_{ListWriter{block.list(POLYPROPS_END_SEGMENT_LIST)},
                 ListWriter{block.list(POLYPROPS_REPEAT_SEGMENT_LIST)},
                 ListWriter{block.list(POLYPROPS_BRANCH3_SEGMENT_LIST)},
                 ListWriter{block.list(POLYPROPS_BRANCH4_SEGMENT_LIST)}}
    {
    }
    // A segment of any other type is only in the list of all segments.
    void append(Int type, Component segment) const
    {
        if (1 <= type && type <= 4) lists_[static_cast<std::size_t>(type - 1)].append(segment);
    }

private:
    std::array<ListWriter, 4> lists_;
};

void note_segments(const Sentence& segments, const TypeLists& types, const Workspace& work)
{
    const SentenceWords words = segments.words();
    const Int ids = words.list_start(1);
    // The types follow as many IDs as are stated, also where a cut sentence holds fewer.
    const Int types_at = ids + 2 * std::clamp<Int>(words.integer(3), 0, segments.integer_count);
    for (Int i = 1; i <= segments.entry_count; ++i) {
        const NamePair id = words.name(ids, i);
        const auto c = find_component(id);
        if (!c || work.notes(*c).is_segment) {
            report(c ? messages::repeated_segment : messages::unknown_segment, id);
            continue;
        }
        const Int type = words.integer(types_at + i - 1);
        work.notes(*c).is_segment = true;
        work.notes(*c).segment_type = type;
        types.append(type, *c);
    }
}

void write_segment_list(const IntegerBlock& block, const Workspace& work)
{
    const ListWriter list{block};
    for (Component c{1}; c.index <= work.notes.count(); ++c.index)
        if (work.notes(c).is_segment) list.append(c);
    const Int count = list.count();
    for (Int s = 1; s <= count; ++s) block(1 + count + s) = work.notes(Component{block(1 + s)}).segment_type;
}

}  // namespace

void list_segments(const Sentence& segments, const PolymerBlock& block, const Workspace& work)
{
    note_segments(segments, TypeLists{block}, work);
    const IntegerBlock list = block.list(POLYPROPS_SEGMENT_LIST);
    const Int former_count = list(1);
    write_segment_list(list, work);
    // The table of an earlier paragraph's oligomers has as many rows as there were segments.
    if (list(1) != former_count) block.two_part(POLYPROPS_OLIGOMER_LIST).integers(1) = 0;
}

}  // namespace polyprops::input
