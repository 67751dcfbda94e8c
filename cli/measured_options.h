// The options for reading a measured curve, which `run` and `fit` share.
#pragma once

#include <CLI/CLI.hpp>

#include "app/case/measured_curve.h"

namespace cli {

// --gpc-column, --gpc-baseline, --gpc-window, --gpc-negative, --gpc-calibration and --gpc-exponent, each an
// error of usage without `gpc`.
void add_measured_options(CLI::App& command, CLI::Option* gpc, app::MeasuredCurveOptions& options);

}  // namespace cli
