// The library's checks of the polymer paragraph and of the catalyst scaling.
#pragma once

#include "minihost/embedded_host.h"

namespace app::routines {

// Checks the paragraph that the host holds and builds the polymer block. Throws minihost::Error when nothing
// could be built.
void check_paragraph(minihost::Host& host);

// Puts the values of a CATSCALE sentence, named by its block, into the attribute blocks of the host.
void scale_catalysts(minihost::BlockId sentence);

}  // namespace app::routines
