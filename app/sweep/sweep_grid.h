// The cases of a sweep: every combination of the values of its keys.
#pragma once

#include <string>
#include <vector>

#include "app/case/case_document.h"

namespace app {

// `count` values from `from` to `to`, both included.
struct SweepRange {
    std::string key;
    double from = 0;
    double to = 0;
    std::size_t count = 1;

    double value(std::size_t k) const;
    std::string text() const;  // KEY=a:b:n
};

// Reads KEY=a:b:n. Throws std::invalid_argument that says what was expected.
SweepRange parse_range(const std::string& text);

class SweepGrid {
public:
    // Throws std::invalid_argument for a repeated key and for too many cases.
    explicit SweepGrid(std::vector<SweepRange> ranges);

    std::size_t size() const { return size_; }
    const std::vector<SweepRange>& ranges() const { return ranges_; }
    // Of case `number`, from 0; the last key varies fastest.
    std::vector<Override> overrides(std::size_t number) const;

private:
    std::vector<SweepRange> ranges_;
    std::size_t size_ = 1;
};

}  // namespace app
