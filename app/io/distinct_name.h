// Names that stay apart although they would be the same.
#pragma once

#include <set>
#include <string>

namespace app {

// The name, or where it is taken the first of `NAME_2`, `NAME_3` and so on that is not. It is taken then.
std::string distinct_name(const std::string& name, std::set<std::string>& taken);

}  // namespace app
