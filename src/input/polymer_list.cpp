#include "input/polymer_list.h"

#include "input/components.h"
#include "input/input_messages.h"

namespace polyprops::input {

void list_polymers(const Sentence& polymers, const PolymerBlock& block, const Workspace& work)
{
    const SentenceWords words = polymers.words();
    const Int ids = words.list_start(1);
    const ListWriter list{block.list(POLYPROPS_POLYMER_LIST)};
    for (Int i = 1; i <= polymers.entry_count; ++i) {
        const NamePair id = words.name(ids, i);
        const auto c = find_component(id);
        if (!c || work.notes(*c).is_polymer) {
            report(c ? messages::repeated_polymer : messages::unknown_polymer, id);
            continue;
        }
        work.notes(*c).is_polymer = true;
        list.append(*c);
    }
}

}  // namespace polyprops::input
