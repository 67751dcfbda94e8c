// The records of <polyprops/host.h>: their sizes, and their state at the start of a run.
#pragma once

namespace minihost {

inline constexpr int record_size = 1024;  // words of every record but the store and the message buffer

// Clears every record and sets the values that mean "nothing used yet".
void reset_records();

}  // namespace minihost
