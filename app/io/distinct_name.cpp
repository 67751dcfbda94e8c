#include "app/io/distinct_name.h"

namespace app {

std::string distinct_name(const std::string& name, std::set<std::string>& taken)
{
    auto found = name;
    for (int number = 2; !taken.insert(found).second; ++number) found = name + "_" + std::to_string(number);
    return found;
}

}  // namespace app
