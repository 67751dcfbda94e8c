// The tables of the polymer paragraph and the catalyst scaling as checked.
#pragma once

#include "app/evaluation/input_results.h"
#include "app/report/report_model.h"

namespace app {

std::vector<Table> input_tables(const Case& input, const InputResults& results);

}  // namespace app
