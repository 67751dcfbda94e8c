// A distribution and those of its sections as plot data in the host's summary file.
#pragma once

#include "host/views.h"

namespace polyprops::report {

struct PlotData {
    Int points;
    Vector<const Real> lengths;
    Matrix<const Real> values;  // column 1 the composite, column c + 1 section c
    Int sections;
    Real length_scale;
};

// Advances the host's summary counters by five data sets and three list sets.
void write_plot_data(const void* context, const PlotData& data);

}  // namespace polyprops::report
