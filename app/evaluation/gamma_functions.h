// Gamma functions whose digits do not depend on the size of their arguments.
#pragma once

namespace app {

// ln(Γ(z + a)/Γ(z)) for z > 0 and z + a > 0, without the cancellation of two large logarithms.
double log_gamma_ratio(double z, double a);

// Both parts of the incomplete gamma function of a shape over Γ(shape): lower + upper = 1.
struct IncompleteGamma {
    double lower = 0;  // integral from 0 to x
    double upper = 0;  // integral from x on
};
IncompleteGamma incomplete_gamma(double shape, double x);

}  // namespace app
