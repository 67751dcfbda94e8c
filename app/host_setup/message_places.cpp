// The library reports by ID, and a list may hold an ID more than once. The checks walk each list in order
// and report an entry at most once, so the entry that a message means is the next one, behind that of the
// message before, to which the message can apply.
#include "app/host_setup/message_places.h"

#include <fmt/format.h>

#include <algorithm>

namespace app {

namespace {

// An entry of a list: its ID and place, and what else messages go by.
struct Item {
    PlacedName named;
    PlacedName owner = {};  // the oligomer of a segment
    const AttributeList* attributes = nullptr;

    bool is(std::string_view id) const { return named.id == id; }
    bool carries(std::string_view name) const
    {
        return std::ranges::find(attributes->names, name, &PlacedName::id) != attributes->names.end();
    }
};

// The quoted names of a message, without their trailing blanks.
std::vector<std::string> names_in(const minihost::Message& message)
{
    std::vector<std::string> names;
    for (const auto& line : message.lines)
        for (auto open = line.find('"'); open != std::string::npos; open = line.find('"', open)) {
            const auto close = std::min(line.find('"', open + 1), line.size());
            auto name = line.substr(open + 1, close - open - 1);
            name.erase(name.find_last_not_of(' ') + 1);
            names.push_back(std::move(name));
            open = std::min(close + 1, line.size());
        }
    return names;
}

class Walk {
public:
    explicit Walk(std::vector<Item> items) : items_(std::move(items)) {}

    // Goes on to the next entry that fits; null when there is none.
    template <typename Fits>
    const Item* next(Fits fits)
    {
        const auto found = std::find_if(items_.begin() + at_, items_.end(), fits);
        if (found == items_.end()) return nullptr;
        at_ = found - items_.begin() + 1;
        return &*found;
    }

    const Item* named(std::string_view id)
    {
        return next([&](const Item& item) { return item.is(id); });
    }

    const Item* repeated(std::string_view id)
    {
        const Item* first = nullptr;
        for (const Item& item : items_)
            if (!first && item.is(id)) first = &item;
        return next([&](const Item& item) { return item.is(id) && &item != first; });
    }

    const Item* of_owner(std::string_view id, std::string_view owner)
    {
        return next([&](const Item& item) { return item.is(id) && item.owner.id == owner; });
    }

    const Item* without(std::string_view attribute, std::string_view id)
    {
        return next([&](const Item& item) { return item.is(id) && !item.carries(attribute); });
    }

private:
    std::vector<Item> items_;
    std::ptrdiff_t at_ = 0;
};

template <typename List, typename ToItem>
Walk walk(const List& list, ToItem to_item)
{
    std::vector<Item> items;
    items.reserve(list.size());
    for (const auto& entry : list) items.push_back(to_item(entry));
    return Walk{std::move(items)};
}

constexpr auto itself = [](const PlacedName& reference) { return Item{reference}; };
constexpr auto its_component = [](const auto& entry) { return Item{entry.component}; };

class Places {
public:
    Places(const Paragraph& paragraph, const std::vector<ScalingEntry>& scaling)
        : source_(paragraph.source),
          polymers_(walk(paragraph.polymers, itself)),
          segments_(walk(paragraph.segments, its_component)),
          parts_(walk(paragraph.oligomers,
                      [](const OligomerPart& part) {
                          return Item{part.segment, part.oligomer};
                      })),
          attributes_(walk(paragraph.attributes,
                           [](const AttributeList& list) {
                               return Item{list.component, {}, &list};
                           })),
          catalysts_(walk(paragraph.catalysts, its_component)),
          initiators_(walk(paragraph.initiators, itself)),
          distributions_(walk(paragraph.distributions,
                              [](const DistributionRequest& request) { return Item{request.polymer}; })),
          scaling_(walk(scaling, [](const ScalingEntry& e) {
              return Item{e.attribute, e.component};
          }))
    {
    }

    SourcePosition of(const minihost::Message& message)
    {
        auto names = names_in(message);
        names.resize(2);
        if (message.routine == "POLSEM" && message.number == 7) return oligomer_source(names[0]);
        if (message.routine == "POLSEM" && message.number == 28) return end_fractions_source();
        const auto* found = message.routine == "CATSCALE" ? scaling_.of_owner(names[1], names[0])
                                                          : find(message, names[0], names[1]);
        return found ? found->named.source : source_;
    }

private:
    const Item* find(const minihost::Message& message, std::string_view id, std::string_view owner)
    {
        switch (message.number) {
            case 4:
                return polymers_.named(id);
            case 5:
                return polymers_.repeated(id);
            case 6:
                return segments_.named(id);
            case 8:
            case 9:
                return parts_.of_owner(id, owner);
            case 10:
                return list_of(message).named(id);
            case 11:
                return segments_.repeated(id);
            case 22:
                return attributes_.named(id);
            case 24:
                return attributes_.without("ZMOM", id);
            case 25:
                return attributes_.without("SFLOW", id);
            case 26:
                return attributes_.without("CPSFLOW", id);
            case 27:
                return attributes_.without("CVSFLOW", id);
            case 30:
                return covered_polymers_.named(id);
            case 31:
                return covered_catalysts_.named(id);
            default:
                return nullptr;
        }
    }

    // Three lists share a message number.
    Walk& list_of(const minihost::Message& message)
    {
        const auto says = [&](std::string_view what) { return message.lines.front().find(what) == 6; };
        if (says("SPECIFIED CATALYST ID ")) return catalysts_;
        return says("SPECIFIED INITIATOR ID ") ? initiators_ : distributions_;
    }

    SourcePosition oligomer_source(std::string_view id)
    {
        const auto* found = parts_.next([&](const Item& item) { return item.owner.id == id; });
        return found ? found->owner.source : source_;
    }

    // The message names no component: it is about the attribute.
    SourcePosition end_fractions_source()
    {
        const auto* found = attributes_.next([](const Item& item) { return item.carries("EFRAC"); });
        return found ? std::ranges::find(found->attributes->names, "EFRAC", &PlacedName::id)->source
                     : source_;
    }

    SourcePosition source_;
    Walk polymers_;
    Walk segments_;
    Walk parts_;
    Walk attributes_;
    Walk catalysts_;
    Walk initiators_;
    Walk distributions_;
    // Whether each has attributes is checked when the lists themselves have been walked.
    Walk covered_polymers_ = polymers_;
    Walk covered_catalysts_ = catalysts_;
    Walk scaling_;
};

std::string hint(const minihost::Message& message, const Case& input)
{
    const auto names = names_in(message);
    if (names.empty() || input.find(names.front())) return {};
    const auto near = nearest(names.front(), input.ids());
    return near.empty() ? std::string{} : fmt::format("; did you mean \"{}\"?", near);
}

}  // namespace

std::vector<InputMessage> place(const std::vector<minihost::Message>& messages, const Case& input)
{
    const Paragraph none;
    Places places{input.paragraph ? *input.paragraph : none, input.catalyst_scaling};
    std::vector<InputMessage> placed;
    placed.reserve(messages.size());
    for (const auto& message : messages)
        placed.push_back({places.of(message), hint(message, input), message});
    return placed;
}

}  // namespace app
