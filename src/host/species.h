// One listed component as the host sees it: its class and its attributes in the current stream.
//
// For one entry of a list the host is asked at most once for the class of the component and once for each of
// its attributes, however many averages are formed from them.
#pragma once

#include <array>

#include "host/polymer_data.h"

namespace polyprops {

enum class AttributeName : unsigned { dpn, mwn, mwseg, zmom, fmom, smom, sflow, sfrac, szmom, ssmom, ssflow };

inline constexpr std::array attribute_names{NamePair{"DPN"},   NamePair{"MWN"},   NamePair{"MWSEG"},
                                            NamePair{"ZMOM"},  NamePair{"FMOM"},  NamePair{"SMOM"},
                                            NamePair{"SFLOW"}, NamePair{"SFRAC"}, NamePair{"SZMOM"},
                                            NamePair{"SSMOM"}, NamePair{"SSFLOW"}};

// Offset of an attribute; 0 or less when the component does not carry it.
inline Int find_attribute(Selector selector, Component c, AttributeName name)
{
    return CC_FIND_ATTR(&selector.value, &c.index, attribute_names[static_cast<unsigned>(name)].data());
}

// Where the attributes of the stream under evaluation begin; formed afresh on each call.
inline Position attribute_origin()
{
    return Position{word(ST_GLOBAL, 17) + word(ST_NCOMP, 6) + word(ST_NCOMP, 8)};
}

// The values of one attribute of one component. An attribute that the component does not carry holds zeros.
class Attribute {
public:
    Attribute(Position origin, Int offset) : offset_(offset)
    {
        if (is_present()) values_ = RealWords{origin + offset};
    }

    bool is_present() const { return offset_ > 0; }
    // Some rules turn to another attribute only when the host answers exactly 0.
    bool has_offset_zero() const { return offset_ == 0; }

    Real operator()(Int element) const { return is_present() ? values_(element) : 0.0; }
    Real value() const { return (*this)(1); }
    Real sum(Int elements) const
    {
        Real total = 0.0;
        for (Int e = 1; e <= elements; ++e) total += (*this)(e);
        return total;
    }

private:
    Int offset_;
    RealWords values_;
};

inline bool host_says_polymer(Component c)
{
    return (CC_IS_POLYMER(&c.index) & 1) != 0;
}
inline bool host_says_oligomer(Component c)
{
    return (CC_IS_OLIGOMER(&c.index) & 1) != 0;
}

class Species {
public:
    Species(Selector selector, Component component) : selector_(selector), component_(component) {}

    Component component() const { return component_; }
    bool is_polymer() const { return remembered(polymer_, host_says_polymer); }
    bool is_oligomer() const { return remembered(oligomer_, host_says_oligomer); }
    // A polymer or an oligomer; the second question is put only when the first is denied.
    bool has_chains() const { return is_polymer() || is_oligomer(); }

    Attribute attribute(AttributeName name) const
    {
        const auto slot = static_cast<unsigned>(name);
        if ((asked_ & (1U << slot)) == 0) {
            offsets_[slot] = find_attribute(selector_, component_, name);
            asked_ |= 1U << slot;
        }
        return {attribute_origin(), offsets_[slot]};
    }

private:
    enum class Answer : char { unasked, no, yes };

    bool remembered(Answer& answer, bool (*ask)(Component)) const
    {
        if (answer == Answer::unasked) answer = ask(component_) ? Answer::yes : Answer::no;
        return answer == Answer::yes;
    }

    Selector selector_;
    Component component_;
    mutable Answer polymer_ = Answer::unasked;
    mutable Answer oligomer_ = Answer::unasked;
    mutable unsigned asked_ = 0;
    mutable std::array<Int, attribute_names.size()> offsets_;
};

}  // namespace polyprops
