#include "bench/benchmark_host.h"

#include <string>
#include <vector>

#include "polyprops/polyprops.h"

namespace bench {
namespace {

const std::vector<std::string> attributes{"ZMOM", "FMOM", "SMOM", "SFLOW", "SZMOM", "SSMOM", "SSFLOW"};

std::string id_of(Int component)
{
    return "C" + std::to_string(component);
}

minihost::ComponentClass class_of(const Run& run, Int component)
{
    if (run.is_segment(component)) return minihost::ComponentClass::segment;
    if (run.is_polymer(component)) return minihost::ComponentClass::polymer;
    if (run.is_oligomer(component)) return minihost::ComponentClass::oligomer;
    return minihost::ComponentClass::conventional;
}

std::vector<minihost::Component> components(const Run& run)
{
    std::vector<minihost::Component> all;
    for (Int c = 1; c <= run.nc; ++c) {
        const Real step = 0.25 * static_cast<Real>(c % 7);
        all.push_back({.id = id_of(c),
                       .name = "N" + std::to_string(c),
                       .component_class = class_of(run, c),
                       .molecular_weight = 50 + step,
                       .dpn = 1 + step,
                       .pdi = 1.5 + step,
                       .cry = 0.5 + step});
    }
    return all;
}

std::vector<minihost::Sentence> paragraph(const Run& run)
{
    minihost::PolymerSentence polymers;
    minihost::SegmentSentence segments;
    minihost::AttributeSentence carried;
    minihost::OligomerSentence oligomers;
    for (Int k = 0; k < run.group; ++k) {
        const std::string polymer = id_of(run.first_polymer() + k);
        segments.entries.push_back({id_of(1 + k), k == 0 ? 1 : 2});
        polymers.ids.push_back(polymer);
        carried.entries.push_back({polymer, attributes});
    }
    for (Int k = 0; k < 3 * run.group; ++k)
        oligomers.entries.push_back(
            {id_of(2 * run.group + 1 + k / 3), id_of(1 + k % run.group), static_cast<Real>(1 + k % 3)});
    return {polymers, segments, carried, oligomers, minihost::SiteSentence{.sites = site_types}};
}

void check_paragraph(minihost::Host& host, const Run& run)
{
    host.paragraph().set(paragraph(run));
    const Int unused = 0;
    const Int check = 2;
    Int status = 0;
    POLY_POLSEM(&unused, &check, host.semantics_context(), host.paragraph().handle(), &unused, &status);
    if (!host.messages().printed().empty()) throw minihost::Error("the paragraph of the run has messages");
}

void add_stream(minihost::Host& host, const Run& run)
{
    minihost::Substream content;
    const minihost::AttributeDimensions dimensions = host.dimensions();
    Int k = 0;
    const auto next = [&k] { return 1.0 + 0.5 * static_cast<Real>(k++ % 5); };
    for (Int c = 1; c <= run.nc; ++c) content.flows[id_of(c)] = next();
    for (Int c = 1; c <= run.nc; ++c) {
        if (!run.is_polymer(c)) continue;
        for (const std::string& name : attributes) {
            const Int length = minihost::attribute_length(*minihost::find_attribute_kind(name), dimensions);
            auto& values = content.attributes[id_of(c)][name];
            for (Int e = 0; e < length; ++e) values.push_back(next());
        }
    }
    host.add_stream({stream_name, {content}});
    host.select_stream(stream_name);
}

}  // namespace

std::unique_ptr<minihost::Host> lay_run(const Run& run)
{
    minihost::Options options;
    options.store_mode = minihost::Store::Mode::plain;
    auto host = std::make_unique<minihost::Host>(components(run), options);
    check_paragraph(*host, run);
    add_stream(*host, run);
    return host;
}

}  // namespace bench
