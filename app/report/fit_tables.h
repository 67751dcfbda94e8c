// Tables of the sites of a measured curve.
#pragma once

#include "app/fit/fit_results.h"
#include "app/report/report_model.h"

namespace app {

Section fit_section(const FitResults& results);

}  // namespace app
