// An embedded host: everything that libpolyprops expects of the process that loads it.
//
// A Host owns the store and the tables of one run. The records and services of <polyprops/host.h> are global,
// so at most one Host exists at a time; they belong to it from its construction to its end. Errors are thrown
// as minihost::Error, also through a routine of the library that called a service.
//
//   Host host{components};
//   host.paragraph().set({PolymerSentence{{"PS"}}, SegmentSentence{{{"STY-R", 2}}},
//                         AttributeSentence{{{"PS", {"ZMOM", "SFLOW"}}}}});
//   POLY_POLSEM(&unused, &check, host.semantics_context(), host.paragraph().handle(), &unused, &status);
//   host.add_stream({"FEED", {{.flows = {{"PS", 1.0}}, .attributes = {{"PS", {{"ZMOM", {0.1}}}}}}}});
//   host.select_stream("FEED");
#pragma once

#include <set>
#include <string_view>
#include <vector>

#include "minihost/attribute_blocks.h"
#include "minihost/attributes.h"
#include "minihost/component_table.h"
#include "minihost/error.h"
#include "minihost/keywords.h"
#include "minihost/message_log.h"
#include "minihost/polymer_paragraph.h"
#include "minihost/property_sentences.h"
#include "minihost/report_file.h"
#include "minihost/scaling_sentence.h"
#include "minihost/store.h"
#include "minihost/streams.h"
#include "minihost/summary_file.h"

namespace minihost {

struct Options {
    Store::Mode store_mode = Store::default_mode();
    double missing_value_bound = 1e35;
    double zero_bound = 1e-15;
    // Parameter vectors that do not exist, whatever components give.
    std::set<Parameter> absent_parameters = {};
};

class Host {
public:
    // Throws Error when another Host exists or a component is in error.
    explicit Host(std::vector<Component> components, const Options& options = {});
    ~Host();
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;

    // The Host that the services speak for. Throws Error when there is none.
    static Host& active();

    Store& store() { return store_; }
    const ComponentTable& components() const { return components_; }
    AttributeTable& attributes() { return attributes_; }
    const StreamTable& streams() const { return streams_; }
    MessageLog& messages() { return messages_; }
    PolymerParagraph& paragraph() { return paragraph_; }
    const KeywordTables& keywords() const { return keywords_; }
    PropertySentences& property_sentences() { return property_sentences_; }
    ReportFile& report() { return report_; }
    SummaryFile& summary() { return summary_; }

    // The semantics context that a caller hands to the paragraph check; the host recognizes it.
    const void* semantics_context() const { return &property_sentences_; }

    // Component attribute blocks for the attributes that components carry now.
    AttributeBlocks& lay_attribute_blocks();
    const AttributeBlocks& attribute_blocks() const { return attribute_blocks_; }

    // Id of the polymer block that the library is given; 0 or less: the run has no polymer data.
    BlockId polymer_block();
    void set_polymer_block(BlockId id);

    // Segment, end-segment and site counts of the polymer block, all 0 without one.
    AttributeDimensions dimensions();

    // The offset that CC_FIND_ATTR gives, with every attribute laid out for the present polymer block.
    Int attribute_offset(Int component, std::string_view name);

    // Attributes are laid out by the first stream; components cannot get further ones after it.
    void add_stream(const Stream& stream);
    void select_stream(std::string_view name, Int substream = 1) { streams_.select(name, substream); }

    void set_bounds(double missing_value_bound, double zero_bound);
    void set_pdi_mode(Int mode);        // 100: polydispersity is the PDI parameter, nothing else
    void set_polymer_count(Int count);  // number of polymer components; counted from the classes at first

private:
    // Registers the one active Host before anything else is made and drops it after everything else is gone.
    struct Registration {
        explicit Registration(Host& host);
        ~Registration();
        Registration(const Registration&) = delete;
        Registration& operator=(const Registration&) = delete;
    };

    Registration registration_;
    Store store_;
    BlockId directory_;
    BlockId root_;
    ComponentTable components_;
    AttributeTable attributes_;
    StreamTable streams_;
    MessageLog messages_;
    PolymerParagraph paragraph_;
    KeywordTables keywords_;
    PropertySentences property_sentences_;
    AttributeBlocks attribute_blocks_;
    ReportFile report_;
    SummaryFile summary_;
};

}  // namespace minihost
