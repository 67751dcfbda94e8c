// The distribution report: a title, the table of the distribution, its area and its average chain lengths.
#pragma once

#include "host/views.h"

namespace polyprops::report {

void write_report(Int n, Vector<const Real> x, Vector<const Real> y, bool is_gpc);

}  // namespace polyprops::report
