#include <cstring>
#include <string>
#include <vector>

#include "fuzz/cases.h"
#include "support/every_routine.h"

namespace polyprops_fuzz {
namespace {

// The reals of an input, again from the first when they are used up.
class Reals {
public:
    explicit Reals(std::string_view bytes) : values_(bytes.size() / sizeof(double))
    {
        if (values_.empty())
            values_.push_back(1);
        else
            std::memcpy(values_.data(), bytes.data(), values_.size() * sizeof(double));
    }
    double next() { return values_[at_++ % values_.size()]; }
    void fill(std::vector<double>& values)
    {
        for (double& value : values) value = next();
    }

private:
    std::vector<double> values_;
    std::size_t at_ = 0;
};

support::World make_world(Reals& reals)
{
    auto world = support::world_with([&](support::Attribute& attribute) { reals.fill(attribute.values); });
    for (const auto parameter : {support::Parameter::dpn, support::Parameter::pdi, support::Parameter::cry})
        for (const char* id : {"P", "R", "O", "W"}) world.parameter(id, parameter, reals.next());
    return world;
}

void require(bool holds, const char* what, const support::Routine& routine)
{
    if (!holds) throw std::logic_error(routine.name + ": " + what);
}

}  // namespace

void check_routines(std::string_view bytes)
{
    const int selector = bytes.empty() ? 1 : static_cast<unsigned char>(bytes.front()) % 4;
    Reals reals{bytes.substr(std::min<std::size_t>(bytes.size(), 1))};
    auto world = make_world(reals);
    world.host();
    support::Arguments before{world};
    before.one = selector;
    reals.fill(before.values);
    reals.fill(before.selected);
    for (const auto& routine : support::routines_that_only_read()) {
        auto arguments = before;
        auto again = before;
        routine.call(arguments);
        require(arguments.fences_hold(), "wrote beside its outputs", routine);
        require(arguments.listed == before.listed && arguments.flags == before.flags, "changed its inputs",
                routine);
        routine.call(again);
        require(arguments.results() == again.results(), "gives other results the second time", routine);
    }
    world.host().store().verify();
}

}  // namespace polyprops_fuzz
