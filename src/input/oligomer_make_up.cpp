#include "input/oligomer_make_up.h"

#include "input/components.h"
#include "input/input_messages.h"

namespace polyprops::input {

namespace {

constexpr NamePair same_as_before{0, 0};

// Position of the segment in the segment list; 0, with a message, when it is no listed segment.
Int segment_position(const NamePair& segment, const NamePair& oligomer, const IntegerBlock& segments)
{
    const auto c = find_component(segment);
    const Int position = c ? position_in_list(segments, *c) : 0;
    if (position < 1)
        report(c ? messages::unlisted_segment_of_oligomer : messages::unknown_segment_of_oligomer, segment,
               oligomer);
    return position;
}

// Notes every oligomer that is a component, also when none of its segments is known, and collects the counts
// that are accepted. Returns their number.
Int collect_make_up(const Sentence& oligomers, const IntegerBlock& segments, const Workspace& work)
{
    const SentenceWords words = oligomers.words();
    const Int oligomer_ids = words.list_start(1);
    const Int segment_ids = words.list_start(2);
    const Int counts = words.real_list_start(3);
    NamePair oligomer = same_as_before;
    Int collected = 0;
    for (Int i = 1; i <= oligomers.entry_count; ++i) {
        const NamePair written = words.name(oligomer_ids, i);
        if (written != same_as_before) oligomer = written;
        const auto c = find_component(oligomer);
        if (!c) {
            report(messages::unknown_oligomer, oligomer);
            continue;
        }
        work.notes(*c).is_oligomer = true;
        const Int position = segment_position(words.name(segment_ids, i), oligomer, segments);
        if (position > 0) work.make_up(++collected) = {*c, position, words.real(counts + i - 1)};
    }
    return collected;
}

Int write_oligomer_list(const IntegerBlock& block, const Workspace& work)
{
    const ListWriter list{block};
    for (Component c{1}; c.index <= work.notes.count(); ++c.index) {
        if (!work.notes(c).is_oligomer) continue;
        list.append(c);
        work.notes(c).oligomer_column = list.count();
    }
    return list.count();
}

void write_counts(const RealBlock& table, Int rows, Int columns, Int collected, const Workspace& work)
{
    for (Int k = 1; k <= rows * columns; ++k) table.write(k, 0.0);
    for (Int i = 1; i <= collected; ++i) {
        const MakeUpEntry& entry = work.make_up(i);
        const Int column = work.notes(entry.oligomer).oligomer_column;
        table.write((column - 1) * rows + entry.segment_position, entry.segments);
    }
}

}  // namespace

Int list_oligomers(const Sentence& oligomers, const PolymerBlock& block, const Workspace& work)
{
    if (oligomers.entry_count < 1) return 0;
    const IntegerBlock segments = block.list(POLYPROPS_SEGMENT_LIST);
    const Int collected = collect_make_up(oligomers, segments, work);
    const TwoPartBlock target = block.two_part(POLYPROPS_OLIGOMER_LIST);
    const Int columns = write_oligomer_list(target.integers, work);
    write_counts(target.reals, segments(1), columns, collected, work);
    return columns;
}

}  // namespace polyprops::input
