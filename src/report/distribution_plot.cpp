// A composite distribution published: as a table in the report and as plot data in the summary file.
#include "host/summary_channel.h"
#include "polyprops/polyprops.h"
#include "report/distribution_report.h"
#include "report/distribution_summary.h"

using namespace polyprops;

void POLY_CSDPLOT(const void* CONTEXT, const void* /*UNUSED1*/, const void* /*UNUSED2*/,
                  const void* /*UNUSED3*/, const void* /*UNUSED4*/, const void* /*UNUSED5*/,
                  const void* /*UNUSED6*/, const void* /*UNUSED7*/, const void* /*UNUSED8*/,
                  const void* /*UNUSED9*/, const Int* N, const Real* X, const Real* Y, const Int* NC,
                  const Real* SCALE, const Int* SCALED, const Int* GPC)
{
    const Matrix values{Y, *N};
    report::write_report(*N, Vector{X, *N}, Vector{values.column(1), *N}, *GPC != 0);
    if (!summary_is_wanted()) return;
    const Real scale = *SCALED == 1 ? *SCALE : 1.0;
    report::write_plot_data(CONTEXT, {*N, Vector{X, *N}, values, *NC, scale});
}
