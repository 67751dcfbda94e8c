#include <polyprops/host.h>
#include <polyprops/polymer_block.h>
#include <polyprops/polyprops.h>

#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "fuzz/cases.h"
#include "minihost/embedded_host.h"

namespace polyprops_fuzz {
namespace {

using namespace minihost;

// Numbers from the bytes; zeros when they are used up.
class Bytes {
public:
    explicit Bytes(std::string_view text) : text_(text) {}

    Int byte()
    {
        if (text_.empty()) return 0;
        const auto first = static_cast<unsigned char>(text_.front());
        text_.remove_prefix(1);
        return first;
    }
    Int below(Int limit)
    {
        const Int high = byte();
        return (256 * high + byte()) % limit;
    }
    bool chance(Int one_in) { return byte() % one_in == 1; }
    bool used_up() const { return text_.empty(); }

private:
    std::string_view text_;
};

class ParagraphMaker {
public:
    ParagraphMaker(Bytes& bytes, Int components) : bytes_(bytes), components_(components) {}

    std::vector<Sentence> paragraph()
    {
        std::vector<Sentence> sentences;
        for (Int left = bytes_.below(12); left > 0; --left) {
            SentenceWords words = words_of(sentence(1 + bytes_.byte() % 9));
            if (bytes_.chance(4)) damage(words);
            sentences.emplace_back(std::move(words));
        }
        return sentences;
    }

private:
    // Entries run through the components with a stride, so that few bytes make long lists; some stray.
    template <typename Make>
    auto entries(Make make, Int most = 600)
    {
        const Int count = bytes_.chance(4) ? bytes_.below(most) : bytes_.byte() % 8;
        const Int start = bytes_.below(components_);
        const Int stride = bytes_.byte() % 4;
        std::vector<decltype(make(id(0), 0))> result;
        for (int i = 0; i < count; ++i) {
            const Int index =
                bytes_.chance(8) ? bytes_.below(components_ + 9) : (start + i * stride) % components_;
            result.push_back(make(id(index), i));
        }
        return result;
    }
    // Some numbers beyond the last component are IDs that no component has.
    static std::string id(Int index) { return "C" + std::to_string(index + 1); }
    std::string any_id() { return id(bytes_.below(components_ + 9)); }

    std::vector<std::string> ids()
    {
        return entries([](const std::string& id, Int) { return id; });
    }
    std::vector<std::string> attribute_names()
    {
        static const char* const names[] = {"ZMOM",  "SFLOW", "CPSFLOW", "CVSFLOW",
                                            "EFRAC", "DPN",   "NONSENSE"};
        const Int first = bytes_.byte();
        std::vector<std::string> result;
        for (Int i = bytes_.byte() % 8; i > 0; --i) result.emplace_back(names[(first + i) % 7]);
        return result;
    }

    Sentence sentence(Int kind)
    {
        const auto number = [this] { return bytes_.byte() - 8; };
        switch (kind) {
            case 1:
                return PolymerSentence{ids()};
            case 2:
                return SegmentSentence{entries([&](const std::string& id, Int) {
                    return SegmentSentence::Entry{id, bytes_.byte() % 6};
                })};
            case 3:
                // A forwarded entry costs five blocks, and the fenced store looks at all of them each time.
                return AttributeSentence{entries(
                    [&](const std::string& id, Int) {
                        return AttributeSentence::Entry{id, attribute_names()};
                    },
                    40)};
            case 4:
                return OligomerSentence{entries([&](const std::string& id, double i) {
                    return OligomerSentence::Entry{bytes_.chance(3) ? "" : id, any_id(), i};
                })};
            case 5:
                return CatalystSentence{entries([](const std::string& id, double i) {
                    return CatalystSentence::Entry{id, i};
                })};
            case 6:
                return SiteSentence{number(), {number(), number(), number()}, 0.5};
            case 7:
                return DistributionSentence{entries([&](const std::string& id, Int i) {
                    return DistributionSentence::Entry{id, bytes_.byte() % 6, {number(), number(), i}, 1.0};
                })};
            case 8:
                return InitiatorSentence{ids()};
            default:
                return SentenceWords{kind, {number(), number()}, {}};
        }
    }

    void damage(SentenceWords& words)
    {
        constexpr Int far = std::numeric_limits<Int>::max();
        const Int values[] = {0, 1, -1, 2, 7, 40, 5000, far, far / 2, -far - 1};
        for (Int hits = 1 + bytes_.byte() % 4; hits > 0 && !words.integers.empty(); --hits) {
            const auto size = static_cast<Int>(words.integers.size());
            const Int place = bytes_.below(bytes_.chance(3) ? size : std::min<Int>(size, 8));
            words.integers[static_cast<std::size_t>(place)] = values[bytes_.byte() % 10];
        }
        if (bytes_.chance(3)) shorten(words.integers);
        if (bytes_.chance(3)) shorten(words.reals);
        // The number of site types decides how much the host must allocate: what no host has, it may refuse.
        if (words.kind == 6 && !words.integers.empty())
            words.integers[0] = std::min<Int>(words.integers[0], 5000);
    }
    template <typename T>
    void shorten(std::vector<T>& words)
    {
        words.resize(static_cast<std::size_t>(bytes_.below(static_cast<Int>(words.size()) + 1)));
    }

    Bytes& bytes_;
    Int components_;
};

// The blocks behind the words of the polymer block.
class BuiltBlocks {
public:
    explicit BuiltBlocks(Host& host) : host_(host), store_(host.store()) {}

    void check()
    {
        for (const auto list : {POLYPROPS_SEGMENT_LIST, POLYPROPS_POLYMER_LIST, POLYPROPS_OLIGOMER_LIST,
                                POLYPROPS_END_SEGMENT_LIST, POLYPROPS_REPEAT_SEGMENT_LIST,
                                POLYPROPS_BRANCH3_SEGMENT_LIST, POLYPROPS_BRANCH4_SEGMENT_LIST})
            check_list(block(list), 1);
        for (const auto list : {POLYPROPS_CATALYST_LIST, POLYPROPS_INITIATOR_LIST})
            check_list(block(list), 0);
        const BlockId segments = block(POLYPROPS_SEGMENT_LIST);
        const BlockId oligomers = block(POLYPROPS_OLIGOMER_LIST);
        const BlockId catalysts = block(POLYPROPS_CATALYST_LIST);
        const BlockId parameters = block(POLYPROPS_PARAMETERS);
        check_ascending(segments);
        check_ascending(oligomers);
        for (Int s = 1; s <= count(segments); ++s) integer(segments, 1 + count(segments) + s);
        for (Int k = 1; k <= count(segments) * count(oligomers); ++k) real(oligomers, k);
        for (Int k = 1; k <= count(catalysts); ++k) real(catalysts, k);
        for (Int k = 1; k <= POLYPROPS_PARAMETER_INTEGERS; ++k) integer(parameters, k);
        for (Int k = 1; k <= POLYPROPS_PARAMETER_REALS; ++k) real(parameters, k);
        const BlockId layout = block(POLYPROPS_ATTRIBUTE_LAYOUT);
        const Int last = POLYPROPS_GROUPS - 1;
        require(integer(layout, POLYPROPS_GROUP_STARTS + last) +
                        integer(layout, POLYPROPS_GROUP_LENGTHS + last) ==
                    store_.real_length(layout),
                "the attribute groups do not fill the layout table");
        check_distributions();
    }

private:
    BlockId block(PolypropsPolymerWord word) { return store_.integer(host_.polymer_block(), word); }
    Int count(BlockId id) { return store_.integer(id, 1); }
    // A word that a reader may read: it lies in its block and was written.
    Int integer(BlockId id, Int k)
    {
        const Int value = store_.integer(id, k);
        require(value != Store::poison, "an integer was never written");
        return value;
    }
    void real(BlockId id, Int k)
    {
        require(word_of(store_.real(id, k)) != Store::poison, "a real was never written");
    }
    void check_list(BlockId id, Int lowest)
    {
        require(count(id) >= 0, "a list counts less than no entries");
        for (Int k = 1; k <= count(id); ++k) {
            const Int index = integer(id, 1 + k);
            require(index >= lowest && index <= host_.components().count(), "a list holds no component");
        }
    }
    void check_ascending(BlockId id)
    {
        for (Int k = 3; k <= 1 + count(id); ++k)
            require(integer(id, k - 1) < integer(id, k), "a list does not ascend");
    }
    void check_distributions()
    {
        const BlockId directory = block(POLYPROPS_DISTRIBUTION_DIRECTORY);
        require(count(directory) == POLYPROPS_DISTRIBUTION_TYPES,
                "the distribution directory has another number of types");
        for (Int type = 1; type <= count(directory); ++type) {
            const BlockId requests = integer(directory, 1 + type);
            if (requests == 0) continue;
            for (Int k = 1; k <= 1 + POLYPROPS_REQUEST_COLUMNS * count(requests); ++k) integer(requests, k);
            for (Int k = 1; k <= count(requests); ++k) {
                require(integer(requests, 1 + count(requests) + k) == type,
                        "a request is filed under another type");
                real(requests, k);
            }
        }
    }

    Host& host_;
    Store& store_;
};

}  // namespace

void check_paragraphs(std::string_view text)
{
    Bytes bytes{text};
    const Int component_count = 1 + bytes.below(400);
    std::vector<Component> components;
    for (Int c = 1; c <= component_count; ++c) components.push_back({.id = "C" + std::to_string(c)});
    Host host{std::move(components), {.store_mode = Store::Mode::checked}};
    ParagraphMaker maker{bytes, component_count};
    for (Int left = 4; left > 0 && !bytes.used_up(); --left) {
        host.messages().set_level(bytes.byte() % 4);
        for (Int answers = bytes.byte() % 4; answers > 0; --answers)
            host.messages().answer(1 + bytes.byte() % 31, bytes.byte() % 3);
        host.paragraph().set(maker.paragraph());
        const BlockId paragraph = ST_TABLES[1];
        const Int check = 2;
        Int status = 0;
        POLY_POLSEM(nullptr, &check, host.semantics_context(), host.paragraph().handle(), nullptr, &status);
        host.store().verify();
        require(status == 0, "the check ended for want of memory");
        require(ST_TABLES[1] == paragraph, "the current paragraph is another one");
        if (host.polymer_block() > 0) BuiltBlocks{host}.check();
    }
}

}  // namespace polyprops_fuzz
