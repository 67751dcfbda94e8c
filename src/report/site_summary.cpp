// Results per catalyst site type as one block of the host's summary file, listed against its data set SITES.
#include "host/summary_channel.h"
#include "polyprops/polyprops.h"

namespace polyprops::report {

namespace {

constexpr NamePair results_block{"POLYRES"};

// The data sets are referred to by name, not by number.
void list_against_sites()
{
    summary::text_token("LSET");
    summary::label("L_");
    summary::integer(summary::next_list_set());
    summary::open();
    summary::label("%ID_");
    summary::text_token("SITES");
    summary::text_token("&");
    summary::label("%ID_");
    summary::close("POLYRES");
    summary::definition_break();
    summary::count_list_set();
}

void write_separated(Vector<const Real> results, Int sites)
{
    for (Int i = 1; i <= sites; ++i) {
        summary::real(results(i));
        summary::separator();
    }
}

void write_plain(Vector<const Real> results, Int sites)
{
    for (Int i = 1; i <= sites; ++i) summary::real(results(i));
}

}  // namespace

}  // namespace polyprops::report

using namespace polyprops;

void POLY_WRTPOLSUM(const void* CONTEXT, const Int* NS, const Real* R1, const Real* R2, const Real* R3,
                    const Real* R4, const Real* R5, const Real* R6, const Real* R7)
{
    if (polymer_count_of_run() <= 0 || !summary_is_wanted()) return;
    report::list_against_sites();
    summary::data_block(CONTEXT, report::results_block, [&] {
        report::write_separated(Vector{R1, *NS}, *NS);
        for (const Real* results : {R2, R3, R4, R5, R6, R7}) report::write_plain(Vector{results, *NS}, *NS);
    });
}
