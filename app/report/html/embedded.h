// The files of this folder and the chart library, put into the program when it is built.
#pragma once

#include <string_view>

namespace app::embedded {

extern const std::string_view page;
extern const std::string_view style;
extern const std::string_view charts;
extern const std::string_view chart_library;

}  // namespace app::embedded
