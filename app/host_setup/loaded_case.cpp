#include "app/host_setup/loaded_case.h"

#include "app/host_setup/case_sentences.h"
#include "app/host_setup/stream_values.h"
#include "app/routines/input_semantics.h"

namespace app {

namespace {

using minihost::Host;

// POLY_GETPDI keeps the PDI parameters when the host's mode word holds this value.
constexpr Int pdi_from_parameters = 100;

std::mutex& turns()
{
    static std::mutex mutex;
    return mutex;
}

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

void check_input(const Case& input, Host& host)
{
    if (input.paragraph) {
        host.paragraph().set(sentences(*input.paragraph));
        routines::check_paragraph(host);
    }
    if (!input.catalyst_scaling.empty()) {
        host.lay_attribute_blocks();
        routines::scale_catalysts(
            lay_scaling_sentence(host.store(), host.components(), scaling_entries(input)));
    }
}

}  // namespace

LoadedCase::LoadedCase(const Case& input) : turn_(turns()), host_(make_host(input))
{
    check_input(input, *host_);
    messages_ = place(host_->messages().printed(), input);
}

Diagnostics LoadedCase::add_streams(const Case& input)
{
    Diagnostics diagnostics;
    StreamValues values{input, *host_, messages_.empty() ? "" : " (dropped)", diagnostics};
    for (const auto& stream : input.streams) host_->add_stream(values.accepted(stream));
    return diagnostics;
}

}  // namespace app
