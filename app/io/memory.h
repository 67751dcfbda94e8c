// Memory that large lists need, compared with what there is before they are made.
#pragma once

#include <string>

namespace app {

// What this process may still take, in bytes: free memory of the machine, within the limits of the process.
double available_memory();

// Empty when there is room, else "12.3 GiB of memory; 1.5 GiB are free".
std::string lacking_memory(double bytes);

// Throws std::runtime_error "WHAT need 12.3 GiB of memory; 1.5 GiB are free" when there is no room.
void require_memory(double bytes, const std::string& what);

}  // namespace app
