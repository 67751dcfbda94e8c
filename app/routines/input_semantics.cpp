#include "app/routines/input_semantics.h"

#include <polyprops/polyprops.h>

namespace app::routines {

namespace {

constexpr minihost::Int unused = 0;
constexpr minihost::Int check = 2;  // the task of the routines

}  // namespace

void check_paragraph(minihost::Host& host)
{
    constexpr minihost::Int nothing_built = 2;
    minihost::Int status = 0;
    POLY_POLSEM(&unused, &check, host.semantics_context(), host.paragraph().handle(), &unused, &status);
    if (status == nothing_built) throw minihost::Error{"the polymer paragraph could not be checked"};
}

void scale_catalysts(minihost::BlockId sentence)
{
    minihost::Int status = 0;
    POLY_CATSCALESEM(&check, &sentence, &status, &unused, &sentence);
}

}  // namespace app::routines
