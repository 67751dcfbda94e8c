// Texts from outside, from reading to files, and what must hold of the results. The fuzz targets and the
// replay of their kept seeds share them.
#pragma once

#include <string_view>

namespace polyprops_fuzz {

// All throw std::logic_error when something does not hold; any other exception is a finding as well.

// A case, through its results, to every form of the report and every file.
void check_case_text(std::string_view text);

// `KEY=VALUE KEY=VALUE…` of the options of measured curves, a line end, and the curve, which is compared with
// a distribution and fitted.
void check_curve_text(std::string_view text);

}  // namespace polyprops_fuzz
