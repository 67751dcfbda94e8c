// Makes the report of a case from its results.
#pragma once

#include "app/evaluation/input_results.h"
#include "app/evaluation/results.h"
#include "app/fit/fit_results.h"
#include "app/report/report_model.h"

namespace app {

// Results that are not finite become errors of the report.
Report make_report(const Case& input, const Results& results);

// The sites of a measured curve; the report and the warnings of the fit name the file of the curve.
Report make_fit_report(const Case& input, const FitResults& results);

// The polymer paragraph as checked; only the messages when there is one.
Report make_input_report(const Case& input, const InputResults& results);

// The composition of one stream on two bases.
Report make_conversion_report(const Case& input, const ConversionResults& results);

}  // namespace app
