#include "input/attribute_entries.h"

#include "input/attribute_sentence.h"
#include "input/components.h"
#include "input/input_messages.h"

namespace polyprops::input {

namespace {

struct Roles {
    bool polymer = false;
    bool catalyst = false;
};

constexpr NamePair zmom{"ZMOM"};
constexpr NamePair sflow{"SFLOW"};
constexpr NamePair cpsflow{"CPSFLOW"};
constexpr NamePair cvsflow{"CVSFLOW"};
constexpr NamePair efrac{"EFRAC"};

struct AttributesSeen {
    bool zeroth_moment = false;
    bool segment_flow = false;
    bool potential_sites = false;
    bool vacant_sites = false;

    void note(const NamePair& name)
    {
        zeroth_moment |= name == zmom;
        segment_flow |= name == sflow;
        potential_sites |= name == cpsflow;
        vacant_sites |= name == cvsflow;
    }
};

Roles roles_of(Component c, const PolymerBlock& block)
{
    return {position_in_list(block.list(POLYPROPS_POLYMER_LIST), c) > 0,
            position_in_list(block.two_part(POLYPROPS_CATALYST_LIST).integers, c) > 0};
}

// Each check is passed by a message that the host suppresses.
bool is_missing(bool required, bool seen, const Message& message, const AttributeEntry& entry)
{
    return required && !seen && report(message, entry.component);
}

bool names_what_its_roles_need(const AttributeEntry& entry, const SentenceWords& words, Roles roles,
                               bool has_end_segments)
{
    AttributesSeen seen;
    for (Int a = 1; a <= entry.name_count; ++a) {
        const NamePair name = words.name(entry.names, a);
        seen.note(name);
        if (name == efrac && !has_end_segments && report(messages::end_fractions_without_ends)) return false;
    }
    return !is_missing(roles.polymer, seen.zeroth_moment, messages::zeroth_moment_missing, entry) &&
           !is_missing(roles.polymer, seen.segment_flow, messages::segment_flow_missing, entry) &&
           !is_missing(roles.catalyst, seen.potential_sites, messages::potential_sites_missing, entry) &&
           !is_missing(roles.catalyst, seen.vacant_sites, messages::vacant_sites_missing, entry);
}

bool is_accepted(const AttributeEntry& entry, const SentenceWords& words, const PolymerBlock& block,
                 const Workspace& work)
{
    const auto c = find_component(entry.component);
    if (!c && report(messages::unknown_attribute_owner, entry.component)) return false;
    if (c) work.notes(*c).has_attribute_entry = true;
    const bool has_end_segments = block.list(POLYPROPS_END_SEGMENT_LIST)(1) >= 1;
    return names_what_its_roles_need(entry, words, c ? roles_of(*c, block) : Roles{}, has_end_segments);
}

}  // namespace

void forward_attribute_entries(const Sentence& attributes, const PolymerBlock& block, const void* context,
                               const Workspace& work)
{
    for (Int i = 1; i <= attributes.entry_count; ++i) {
        // Forwarding an entry moves the sentence.
        const SentenceWords words = attributes.words();
        const AttributeEntry entry = attribute_entry(words, i);
        if (is_accepted(entry, words, block, work)) forward_attribute_sentence(entry, attributes, context);
    }
}

void report_missing_attribute_entries(const PolymerBlock& block, const Workspace& work)
{
    const auto report_missing = [&](const IntegerBlock& list, const Message& message) {
        for (Int i = 1; i <= list(1); ++i) {
            const Component c{list(i + 1)};
            // A catalyst whose ID is unknown has no component and has been reported.
            if (c.index != 0 && !work.notes(c).has_attribute_entry) report(message, id_of(c));
        }
    };
    report_missing(block.list(POLYPROPS_POLYMER_LIST), messages::polymer_without_attributes);
    report_missing(block.two_part(POLYPROPS_CATALYST_LIST).integers, messages::catalyst_without_attributes);
}

}  // namespace polyprops::input
