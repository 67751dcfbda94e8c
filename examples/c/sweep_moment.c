// Prints Mw of a blend for 1000 second moments, from that of the case file to 10 % more.
//
//   cc -IDIR/include sweep_moment.c -LDIR/lib -Wl,-rpath,DIR/lib -lpolyprops-case -o sweep_moment
#include <polyprops/case.h>
#include <stdio.h>

static const char* const moment = "streams.BLEND.attributes.PS.SMOM";
static const char* const weight = "streams.BLEND.chain_averages.PS.mw";

static void print_errors(const polyprops_run* run)
{
    polyprops_diagnostic error;
    for (size_t i = 0; polyprops_run_diagnostic(run, i, &error) == POLYPROPS_OK; ++i)
        fprintf(stderr, "%s:%u: %s\n", error.file, (unsigned)error.line, error.text);
}

int main(int argc, char** argv)
{
    polyprops_case* blend = polyprops_case_from_file(argc > 1 ? argv[1] : "polystyrene-blend.toml");
    double start = 0;
    int status = polyprops_case_get(blend, moment, &start);
    for (int i = 0; i < 1000; ++i) {
        if (status == POLYPROPS_OK) status = polyprops_case_set(blend, moment, start * (1 + 0.1 * i / 999));
        polyprops_run* run = polyprops_case_run(blend);
        double mw = 0;
        if (status == POLYPROPS_OK) status = polyprops_run_number(run, weight, &mw);
        print_errors(run);
        polyprops_run_free(run);
        if (status != POLYPROPS_OK) break;
        printf("%.10g\n", mw);
    }
    if (status == POLYPROPS_NOT_FOUND && polyprops_case_status(blend) == POLYPROPS_OK)
        fprintf(stderr, "no %s or no %s\n", moment, weight);
    polyprops_case_free(blend);
    return status;
}
