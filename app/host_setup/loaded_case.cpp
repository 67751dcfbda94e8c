#include "app/host_setup/loaded_case.h"

#include <polyprops/polyprops.h>

#include "app/host_setup/case_sentences.h"
#include "app/host_setup/stream_values.h"
#include "minihost/error.h"

namespace app {

namespace {

using minihost::Host;

// POLY_GETPDI keeps the PDI parameters when the host's mode word holds this value.
constexpr Int pdi_from_parameters = 100;

constexpr Int unused = 0;
constexpr Int check = 2;  // what the input routines are asked to do

std::unique_ptr<Host> make_host(const Case& input)
{
    minihost::Options options;
    options.missing_value_bound = input.settings.missing_value_bound;
    options.zero_bound = input.settings.zero_bound;
    auto host = std::make_unique<Host>(
        std::vector<minihost::Component>{input.components.begin(), input.components.end()}, options);
    host->messages().set_level(input.settings.message_level);
    if (input.settings.pdi_from_parameters) host->set_pdi_mode(pdi_from_parameters);
    return host;
}

void check_paragraph(const Paragraph& paragraph, Host& host)
{
    constexpr Int nothing_built = 2;
    host.paragraph().set(sentences(paragraph));
    Int status = 0;
    POLY_POLSEM(&unused, &check, host.semantics_context(), host.paragraph().handle(), &unused, &status);
    if (status == nothing_built) throw minihost::Error{"the polymer paragraph could not be checked"};
}

void scale_catalysts(const Case& input, Host& host)
{
    host.lay_attribute_blocks();
    const auto id = lay_scaling_sentence(host.store(), host.components(), scaling_entries(input));
    Int status = 0;
    POLY_CATSCALESEM(&check, &id, &status, &unused, &id);
}

}  // namespace

CheckedInput check_input(const Case& input)
{
    auto host = make_host(input);
    if (input.paragraph) check_paragraph(*input.paragraph, *host);
    if (!input.catalyst_scaling.empty()) scale_catalysts(input, *host);
    auto messages = place(host->messages().printed(), input);
    return {std::move(host), std::move(messages)};
}

Diagnostics add_streams(const Case& input, const CheckedInput& checked)
{
    Diagnostics diagnostics;
    StreamValues values{*checked.host, checked.messages.empty() ? "" : " (dropped)", diagnostics};
    for (const auto& stream : input.streams) checked.host->add_stream(values.fitting(stream));
    return diagnostics;
}

}  // namespace app
