// The section of a binary parameter set.
#pragma once

#include "app/evaluation/parameter_results.h"
#include "app/report/report_model.h"

namespace app {

Section parameter_section(const ParameterResults& results);

}  // namespace app
