// What the program expects of its process.
#pragma once

#include <cstdio>
#include <string>

namespace cli {

// Opens closed standard descriptors on /dev/null, so that no file takes their number; turns broken pipes and
// files that grow beyond a limit into errors of writing; takes the stack that the process may have. Returns
// what is missing, empty when nothing is.
std::string prepare_process();

// The status, or that of a failure, with a message, when not all of standard output has been written.
int checked_output(int status);

}  // namespace cli
