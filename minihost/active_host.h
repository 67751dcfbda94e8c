#pragma once

namespace minihost {

class Host;

// The Host that the services forward to, null when there is none.
Host*& active_host();

}  // namespace minihost
