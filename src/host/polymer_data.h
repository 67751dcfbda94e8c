// The polymer block of a run and the lists that it names, located once per exported call.
//
// The object never outlives the call. It locates the lists that the routine asks for and no others: a host
// without oligomers need not have an oligomer block for a routine that reads none.
#pragma once

#include "host/words.h"

namespace polyprops {

// The key list of the oligomer block with its segment-count table: one column per listed oligomer, one row
// per position of the segment list.
class OligomerTable {
public:
    OligomerTable() = default;
    OligomerTable(ComponentList oligomers, RealWords counts, Int rows)
        : oligomers_(oligomers), counts_(counts), rows_(rows)
    {
    }

    const ComponentList& list() const { return oligomers_; }
    Int count() const { return oligomers_.count(); }
    // Column of the first entry that holds c, 0 when c has no known make-up.
    Int column_of(Component c) const { return oligomers_.position_of(c); }
    Real segments(Int segment_position, Int column) const
    {
        return counts_(segment_position + (column - 1) * rows_);
    }

private:
    ComponentList oligomers_;
    RealWords counts_;
    Int rows_ = 0;
};

class PolymerData {
public:
    enum Part : unsigned {
        segment_list = 1,
        polymer_list = 2,
        oligomer_block = 4,
        end_segment_list = 8,
        every_part = 15
    };

    // Asks for the polymer block and, when there is one, locates the given parts.
    static PolymerData locate(unsigned parts)
    {
        PolymerData data;
        data.ensure(parts);
        return data;
    }

    // Locates those of the parts that are not located yet: for a routine that reads them for some components
    // only. The oligomer block needs the segment list beside it, which says how many rows its table has.
    void ensure(unsigned parts);

    bool exists() const { return id_ > 0; }
    const ComponentList& segments() const { return checked(segments_, segment_list); }
    const ComponentList& polymers() const { return checked(polymers_, polymer_list); }
    const OligomerTable& oligomers() const { return checked(oligomers_, oligomer_block); }
    const ComponentList& end_segments() const { return checked(end_segments_, end_segment_list); }

    // Two signs that the run has polymers or oligomers; rules differ in which they take.
    bool run_has_chains() const
    {
        return exists() && (polymer_count_of_run() >= 1 || oligomers().count() >= 1);
    }
    bool lists_chains() const { return exists() && (polymers().count() >= 1 || oligomers().count() >= 1); }

    // Molecular weight of the component at a position of the segment list.
    Real segment_molecular_weight(Int segment_position) const
    {
        return molecular_weight(segments()(segment_position));
    }

private:
    template <class List>
    const List& checked(const List& list, [[maybe_unused]] Part part) const
    {
        assert((located_ & part) != 0);
        return list;
    }

    static constexpr Position nowhere{0};

    bool asked_ = false;
    Int id_ = 0;
    Position block_ = nowhere;
    unsigned located_ = 0;
    ComponentList segments_;
    ComponentList polymers_;
    OligomerTable oligomers_;
    ComponentList end_segments_;
};

}  // namespace polyprops
