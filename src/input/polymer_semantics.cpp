// The check of the polymer paragraph: every ID is looked up, bad entries are reported and dropped, and the
// polymer block that the property routines read is built from the rest.
#include "input/attribute_entries.h"
#include "input/attribute_layout.h"
#include "input/catalysts.h"
#include "input/components.h"
#include "input/distribution_requests.h"
#include "input/input_messages.h"
#include "input/oligomer_make_up.h"
#include "input/parameter_block.h"
#include "input/polymer_list.h"
#include "input/segment_list.h"
#include "polyprops/polyprops.h"

namespace polyprops::input {

namespace {

// Segments and what is made of them go together; a paragraph with neither is accepted.
bool is_complete(const Sentences& sentences)
{
    const bool has_chains = sentences.polymers.entry_count > 0 || sentences.oligomers.entry_count > 0;
    const bool has_segments = sentences.segments.entry_count > 0;
    if (has_chains == has_segments) return true;
    report(has_segments ? messages::no_polymer : messages::no_segment);
    return false;
}

void build_polymer_block(const Sentences& sentences, const void* context, const Workspace& work)
{
    const auto block = PolymerBlock::locate_or_make(sentences.attributes);
    block.make_room(sentences);
    list_polymers(sentences.polymers, block, work);
    list_segments(sentences.segments, block, work);
    const Int oligomer_count = list_oligomers(sentences.oligomers, block, work);
    list_catalysts(sentences.catalysts, block);
    list_initiators(sentences.initiators, block);
    write_parameters(sentences, oligomer_count, block);
    lay_out_attributes(sentences.sites.site_type_count, block);
    forward_attribute_entries(sentences.attributes, block, context, work);
    report_missing_attribute_entries(block, work);
    write_distribution_requests(sentences.distributions, block);
}

void check_paragraph(const void* context, const Int* paragraph, Int* status)
{
    constexpr Int nothing_built = 2;
    const Int sentence_count = number_of_sentences();
    if (sentence_count == 0) {
        report(messages::no_sentences);
        return;
    }
    const auto sentences = read_sentences(sentence_count, paragraph, status);
    if (!sentences || !is_complete(*sentences)) return;
    const Workspace work{number_of_components(), sentences->oligomers.entry_count};
    if (!work.is_allocated()) {
        *status = nothing_built;
        return;
    }
    build_polymer_block(*sentences, context, work);
    if (paragraph[0] >= 1) UT_END_SENTENCES(paragraph);
}

}  // namespace

}  // namespace polyprops::input

using namespace polyprops;

void POLY_POLSEM(const Int* /*UNUSED1*/, const Int* OP, const void* CONTEXT, const Int* PARAGRAPH,
                 const Int* /*UNUSED2*/, Int* STATUS)
{
    constexpr Int check = 2;
    constexpr Int answer = 5;
    if (*OP == answer) *STATUS = answer;
    if (*OP == check) input::check_paragraph(CONTEXT, PARAGRAPH, STATUS);
}
