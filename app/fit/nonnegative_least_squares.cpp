#include "app/fit/nonnegative_least_squares.h"

#include <algorithm>
#include <vector>

namespace app {

namespace {

using Eigen::Index;
using Eigen::MatrixXd;
using Eigen::VectorXd;

// Relative to the largest product of a column and b: below it a gradient is rounding.
constexpr double gradient_rounding = 1e-13;

// The unconstrained solution in the passive columns, 0 in the others.
VectorXd passive_solution(const MatrixXd& a, const VectorXd& b, const std::vector<Index>& passive)
{
    VectorXd x = VectorXd::Zero(a.cols());
    const MatrixXd columns = a(Eigen::all, passive);
    x(passive) = columns.colPivHouseholderQr().solve(b);
    return x;
}

// How far from `x` to `target` the first passive coefficient reaches 0; 1 when none does.
double feasible_step(const VectorXd& x, const VectorXd& target, const std::vector<Index>& passive)
{
    double step = 1;
    for (const auto j : passive)
        if (target(j) <= 0) step = std::min(step, x(j) / (x(j) - target(j)));
    return step;
}

// Moves towards the solution in the passive columns; a column whose coefficient reaches 0 leaves them.
void move(const MatrixXd& a, const VectorXd& b, std::vector<Index>& passive, VectorXd& x)
{
    while (!passive.empty()) {
        const VectorXd target = passive_solution(a, b, passive);
        const bool is_feasible = std::ranges::all_of(passive, [&](Index j) { return target(j) > 0; });
        if (is_feasible) {
            x = target;
            return;
        }
        const double step = feasible_step(x, target, passive);
        x += step * (target - x);
        const double bound = 1e-14 * x.maxCoeff();
        std::erase_if(passive, [&](Index j) { return target(j) <= 0 && x(j) <= bound; });
        for (Index j = 0; j < x.size(); ++j)
            if (std::ranges::find(passive, j) == passive.end()) x(j) = 0;
    }
}

// The column outside the passive ones whose coefficient most reduces the residual; −1 when none does.
Index best_column(const VectorXd& gradient, const std::vector<Index>& passive, double bound)
{
    Index best = -1;
    for (Index j = 0; j < gradient.size(); ++j) {
        if (std::ranges::find(passive, j) != passive.end() || !(gradient(j) > bound)) continue;
        if (best < 0 || gradient(j) > gradient(best)) best = j;
    }
    return best;
}

}  // namespace

VectorXd nonnegative_least_squares(const MatrixXd& a, const VectorXd& b)
{
    std::vector<Index> passive(static_cast<std::size_t>(a.cols()));
    for (Index j = 0; j < a.cols(); ++j) passive[static_cast<std::size_t>(j)] = j;
    VectorXd x = passive_solution(a, b, passive);
    if ((x.array() >= 0).all()) return x;
    passive.clear();
    x.setZero();
    const double bound = gradient_rounding * (a.transpose() * b).cwiseAbs().maxCoeff();
    // Each step ends in another set of passive columns; rounding may repeat one.
    for (Index step = 0; step < 3 * a.cols(); ++step) {
        const auto best = best_column(a.transpose() * (b - a * x), passive, bound);
        if (best < 0) break;
        passive.push_back(best);
        std::ranges::sort(passive);
        move(a, b, passive, x);
    }
    return x;
}

}  // namespace app
