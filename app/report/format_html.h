// The report as one HTML file without outside links: tables, messages and charts.
#pragma once

#include <string>

#include "app/evaluation/evaluation.h"

namespace app {

std::string format_html(const Evaluation& evaluation);

// Text in which nothing is markup.
std::string html_text(std::string_view text);

}  // namespace app
