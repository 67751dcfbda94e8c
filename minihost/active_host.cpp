#include "minihost/active_host.h"

namespace minihost {

Host*& active_host()
{
    static Host* host = nullptr;
    return host;
}

}  // namespace minihost
