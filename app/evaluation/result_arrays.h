// Arrays of the results by key: curves and matrices, in place.
#pragma once

#include <string>
#include <vector>

#include "app/evaluation/results.h"

namespace app {

// Column-major; a vector has one column. Points into the results.
struct ResultArray {
    std::string key;
    const double* values;
    std::size_t rows;
    std::size_t columns;
};

std::vector<ResultArray> result_arrays(const Results& results);

}  // namespace app
