// Every message of the input checks, and its way through the host's message channel.
//
// In a line {1} and {2} are replaced by names: the eight stored characters, trailing blanks kept. Three
// habits differ from message to message: which answer of the level check lets the text be composed, whether
// the buffer is printed although it was not, and the severity.
#pragma once

#include <array>
#include <string_view>

#include "host/message_channel.h"

namespace polyprops::input {

enum class Compose { when_not_zero, when_exactly_one };
enum class Print { always, when_composed };

struct Message {
    NamePair routine;
    Int number;
    Int severity;
    Compose compose;
    Print print;
    std::array<std::string_view, 4> lines;  // empty ones at the end do not count

    Int line_count() const
    {
        Int count = 0;
        for (const auto& line : lines) count += line.empty() ? 0 : 1;
        return count;
    }
};

// Puts the message to the host; true when it was composed.
bool report(const Message& message, const NamePair& first = NamePair{""},
            const NamePair& second = NamePair{""});

namespace messages {

inline constexpr NamePair polsem{"POLSEM"};
inline constexpr NamePair catscale{"CATSCALE"};

// All texts spell their quotes in the same way, however many there are.
// NOLINTBEGIN(modernize-raw-string-literal)
// clang-format off
inline constexpr Message no_sentences{polsem, 1, 2, Compose::when_not_zero, Print::always,
    {"THIS POLYMERS PARAGRAPH HAS NO SENTENCES."}};
inline constexpr Message no_polymer{polsem, 2, 2, Compose::when_not_zero, Print::always,
    {"NO POLYMER WAS SPECIFIED IN THIS PARAGRAPH ",
     "PARAGRAPH WILL BE IGNORED."}};
inline constexpr Message no_segment{polsem, 3, 2, Compose::when_not_zero, Print::always,
    {"NO SEGMENT WAS SPECIFIED IN THIS PARAGRAPH ",
     "PARAGRAPH WILL BE IGNORED."}};
inline constexpr Message unknown_polymer{polsem, 4, 2, Compose::when_not_zero, Print::always,
    {"SPECIFIED POLYMER ID \"{1}\" IS NOT A VALID ",
     "COMPONENT ID.  SENTENCE WILL BE IGNORED."}};
inline constexpr Message repeated_polymer{polsem, 5, 2, Compose::when_not_zero, Print::always,
    {"SPECIFIED POLYMER ID \"{1}\" HAS BEEN USED ",
     "PREVIOUSLY.  SENTENCE WILL BE IGNORED."}};
inline constexpr Message unknown_segment{polsem, 6, 2, Compose::when_not_zero, Print::always,
    {"SPECIFIED SEGMENT ID \"{1}\" IS NOT A VALID ",
     "COMPONENT ID.  SENTENCE WILL BE IGNORED."}};
inline constexpr Message repeated_segment{polsem, 11, 2, Compose::when_not_zero, Print::always,
    {"SPECIFIED SEGMENT ID \"{1}\" HAS BEEN USED ",
     "PREVIOUSLY.  SENTENCE WILL BE IGNORED."}};
inline constexpr Message unknown_oligomer{polsem, 7, 2, Compose::when_not_zero, Print::always,
    {"SPECIFIED OLIGOMER ID \"{1}\" IS NOT A VALID ",
     "COMPONENT ID.  SENTENCE WILL BE IGNORED."}};
inline constexpr Message unknown_segment_of_oligomer{polsem, 8, 2, Compose::when_not_zero, Print::when_composed,
    {"SPECIFIED SEGMENT ID \"{1}\" FOR OLIGOMER \"{2}\"",
     "IS NOT A VALID COMPONENT ID.  SENTENCE WILL BE IGNORED."}};
inline constexpr Message unlisted_segment_of_oligomer{polsem, 9, 2, Compose::when_not_zero, Print::when_composed,
    {"SPECIFIED SEGMENT ID \"{1}\" FOR OLIGOMER \"{2}\"",
     "IS NOT A VALID SEGMENT ID.  SENTENCE WILL BE IGNORED."}};
inline constexpr Message unknown_catalyst{polsem, 10, 2, Compose::when_not_zero, Print::always,
    {"SPECIFIED CATALYST ID \"{1}\" IS NOT A VALID ",
     "COMPONENT ID.  SENTENCE WILL BE IGNORED."}};
inline constexpr Message unknown_initiator{polsem, 10, 2, Compose::when_not_zero, Print::always,
    {"SPECIFIED INITIATOR ID \"{1}\" IS NOT A VALID ",
     "COMPONENT ID.  SENTENCE WILL BE IGNORED."}};
inline constexpr Message unknown_polymer_of_distribution{polsem, 10, 2, Compose::when_not_zero, Print::always,
    {"SPECIFIED POLYMER ID FOR DISTRIBUTION \"{1}\" IS NOT",
     "A VALID COMPONENT ID.  SENTENCE WILL BE IGNORED."}};

inline constexpr Message unknown_attribute_owner{polsem, 22, 2, Compose::when_exactly_one, Print::when_composed,
    {"SPECIFIED COMPONENT ID \"{1}\" IS NOT VALID. ",
     "SENTENCE WILL BE IGNORED."}};
inline constexpr Message zeroth_moment_missing{polsem, 24, 2, Compose::when_exactly_one, Print::when_composed,
    {"THE ZEROTH MOMENT ATTRIBUTE (ZMOM) MUST BE SPECIFIED ",
     "FOR POLYMER COMPONENT \"{1}\".  "}};
inline constexpr Message segment_flow_missing{polsem, 25, 2, Compose::when_exactly_one, Print::when_composed,
    {"THE SEGMENT FLOW ATTRIBUTE (SFLOW) MUST BE SPECIFIED ",
     "FOR POLYMER COMPONENT \"{1}\".  "}};
inline constexpr Message potential_sites_missing{polsem, 26, 2, Compose::when_exactly_one, Print::when_composed,
    {"THE POTENTIAL SITE ATTRIBUTE (CPSFLOW) MUST BE SPECIFIED ",
     "FOR CATALYST COMPONENT \"{1}\".  "}};
inline constexpr Message vacant_sites_missing{polsem, 27, 2, Compose::when_exactly_one, Print::when_composed,
    {"THE VACANT SITE ATTRIBUTE (CVSFLOW) MUST BE SPECIFIED ",
     "FOR CATALYST COMPONENT \"{1}\".  "}};
inline constexpr Message end_fractions_without_ends{polsem, 28, 1, Compose::when_exactly_one, Print::when_composed,
    {"The EFRAC attribute can only be used if one or more segments are ",
     "declared as end segments. Uncheck EFRAC in the attribute list on",
     "the polymer characterization form or declare some segments as ends",
     "in the segment characterization form."}};
inline constexpr Message polymer_without_attributes{polsem, 30, 2, Compose::when_exactly_one, Print::when_composed,
    {"A COMP-ATTR SENTENCE MUST BE ENTERED FOR POLYMER \"{1}\".  "}};
inline constexpr Message catalyst_without_attributes{polsem, 31, 2, Compose::when_exactly_one, Print::when_composed,
    {"A COMP-ATTR SENTENCE MUST BE ENTERED FOR CATALYST \"{1}\".  "}};

inline constexpr Message attribute_not_used{catscale, 1, 1, Compose::when_exactly_one, Print::when_composed,
    {"Component \"{1}\" does not use attribute \"{2}\".  Sentence ignored."}};
// clang-format on
// NOLINTEND(modernize-raw-string-literal)

}  // namespace messages

}  // namespace polyprops::input
