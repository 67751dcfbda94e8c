#include "app/evaluation/result_arrays.h"

#include <fmt/format.h>

namespace app {

namespace {

class Collector {
public:
    void add(std::string key, const std::vector<double>& values)
    {
        if (!values.empty()) arrays_.push_back({std::move(key), values.data(), values.size(), 1});
    }
    void add_matrix(std::string key, const std::vector<double>& values, std::size_t rows)
    {
        if (rows > 0) arrays_.push_back({std::move(key), values.data(), rows, values.size() / rows});
    }
    std::vector<ResultArray> take() { return std::move(arrays_); }

private:
    std::vector<ResultArray> arrays_;
};

void add(const DistributionResults& results, Collector& all)
{
    const auto curves = fmt::format("distributions.{}.distribution_curves.", results.name);
    all.add(curves + "chain_length", results.lengths);
    all.add(curves + "molecular_weight", results.molecular_weights);
    all.add(curves + "cumulative", results.cumulative);
    for (const auto& curve : results.curves) all.add(curves + curve.name, curve.values);
    if (results.segment_weight)
        for (const auto& curve : results.curves)
            all.add(curves + chromatogram_name(curve), curve.chromatogram);
    if (!results.measured) return;
    const auto measured = fmt::format("distributions.{}.gpc_curve.", results.name);
    all.add(measured + "molecular_weight", results.measured->molecular_weight);
    all.add(measured + "chain_length", results.measured->chain_length);
    all.add(measured + "measured", results.measured->measured);
    all.add(measured + "calculated", results.measured->calculated);
    all.add(measured + "overlay", results.measured->overlay);
}

void add(const ParameterResults& results, Collector& all)
{
    const auto size = results.components.size();
    all.add_matrix(fmt::format("parameters.{}.binary_coefficients", results.name),
                   results.coefficients.values, results.positions());
    all.add_matrix(fmt::format("parameters.{}.pair_has_data", results.name), results.has_data, size);
    for (const auto& at : results.temperatures) {
        const auto add_matrix = [&](const char* table, const PairMatrix& matrix) {
            all.add_matrix(fmt::format("parameters.{}.{}.{}", results.name, table, at.temperature), matrix,
                           size);
        };
        add_matrix("binary_parameters", at.values);
        add_matrix("binary_parameter_slopes", at.slopes);
        if (at.derivatives) add_matrix("binary_parameter_derivatives", *at.derivatives);
    }
}

}  // namespace

std::vector<ResultArray> result_arrays(const Results& results)
{
    Collector all;
    for (const auto& distribution : results.distributions) add(distribution, all);
    for (const auto& set : results.parameters) add(set, all);
    return all.take();
}

}  // namespace app
