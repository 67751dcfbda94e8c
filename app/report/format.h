// The formats of a report, which differ in layout only.
#pragma once

#include <string>

#include "app/evaluation/distribution_results.h"
#include "app/report/report_model.h"
#include "app/report/result_numbers.h"

namespace app {

enum class Format { text, csv, json };
std::string formatted(const Report& report, Format format, CsvTexts texts = CsvTexts::exact);

std::string format_text(const Report& report);  // aligned tables, six significant digits, no curves
std::string format_csv(const Report& report, CsvTexts texts = CsvTexts::exact);  // a line for each number
std::string format_json(const Report& report);
std::string format_html(const Report& report);  // one file without outside links

// The composite of a distribution in the form of a measured curve. Throws std::runtime_error when its segment
// weight is not known.
std::string format_measured_curve(const DistributionResults& distribution);

// Text in which nothing is markup; what no document may hold is replaced by U+FFFD.
std::string html_text(std::string_view text);

}  // namespace app
