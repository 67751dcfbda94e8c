// The polymer block and the blocks that it names: the words that hosts and the library share.
//
// Words count from 1. A list is a block whose word 1 holds the number n of its entries and whose words 2 to
// n+1 hold the entries: component indices from 1 unless a comment says otherwise. A two-part block has
// integers and reals; every other block has integers only.
#pragma once

// The run's directory names the polymer root block, which names the polymer block.
enum PolypropsPolymerRoot {
    POLYPROPS_RUN_DIRECTORY_ID = 2,     // id of the run's directory
    POLYPROPS_ROOT_WORD = 200,          // of the directory: id of the root block
    POLYPROPS_POLYMER_BLOCK_WORD = 13,  // of the root block: id of the polymer block, below 1: none
};

// Words of the polymer block. Each holds the id of a block, 0 if there is none. Word 1 holds the length.
enum PolypropsPolymerWord {
    // List in ascending order, then the n types of its segments: 1 end, 2 repeat, 3 and 4 branch points, any
    // other type as given.
    POLYPROPS_SEGMENT_LIST = 2,
    // List in order of input.
    POLYPROPS_POLYMER_LIST = 3,
    // Copy of the attribute sentence.
    POLYPROPS_ATTRIBUTE_SENTENCE = 5,
    // Two-part. Integers: list in ascending order. Reals: segments per molecule, column by column; a column
    // per listed oligomer, a row per listed segment.
    POLYPROPS_OLIGOMER_LIST = 6,
    // Two-part. Integers: list in order of input, 0 for an unknown ID. Reals: a value per entry.
    POLYPROPS_CATALYST_LIST = 7,
    // Two-part: see PolypropsParameterWord.
    POLYPROPS_PARAMETERS = 8,
    // Lists of the segments of one type, in order of input.
    POLYPROPS_END_SEGMENT_LIST = 9,
    POLYPROPS_BRANCH3_SEGMENT_LIST = 11,
    POLYPROPS_BRANCH4_SEGMENT_LIST = 12,
    POLYPROPS_REPEAT_SEGMENT_LIST = 13,
    // Two-part: see PolypropsAttributeLayout.
    POLYPROPS_ATTRIBUTE_LAYOUT = 14,
    // See PolypropsDistributionRequests.
    POLYPROPS_DISTRIBUTION_DIRECTORY = 16,
    // List in order of input, 0 for an unknown ID.
    POLYPROPS_INITIATOR_LIST = 17,

    POLYPROPS_POLYMER_BLOCK_LENGTH = 17,
};

// Integers of the parameter block. "Entries" counts what the input names, "listed" what its check accepts. A
// paragraph with a count of 0 leaves the value of an earlier paragraph in words 2 to 9 and 11 to 13.
enum PolypropsParameterWord {
    POLYPROPS_SITE_TYPES = 1,  // number of catalyst site types
    POLYPROPS_POLYMER_ENTRIES = 2,
    POLYPROPS_SEGMENT_ENTRIES = 3,
    POLYPROPS_LISTED_OLIGOMERS = 4,
    POLYPROPS_LISTED_END_SEGMENTS = 5,
    POLYPROPS_CATALYST_ENTRIES = 6,
    POLYPROPS_LISTED_REPEAT_SEGMENTS = 7,
    POLYPROPS_LISTED_BRANCH3_SEGMENTS = 8,
    POLYPROPS_LISTED_BRANCH4_SEGMENTS = 9,
    POLYPROPS_SITE_INTEGERS = 11,  // first of the three further integers of the catalyst-site sentence

    POLYPROPS_PARAMETER_INTEGERS = 13,  // number of integers
    POLYPROPS_PARAMETER_REALS = 1,      // number of reals: the one of the catalyst-site sentence
};

// Integers of the attribute layout: the start of each group in an attribute vector, from 1, and its length.
// A group has an element per listed segment or per catalyst site type, and one more for the total. The number
// of reals is one more than the lengths add up to.
enum PolypropsAttributeLayout {
    POLYPROPS_GROUP_STARTS = 2,       // word of the first group's start
    POLYPROPS_GROUP_LENGTHS = 13,     // word of the first group's length
    POLYPROPS_GROUPS = 11,            // number of groups: first those by segment, then those by site type
    POLYPROPS_GROUPS_BY_SEGMENT = 5,  // number of groups by segment
    POLYPROPS_LAYOUT_INTEGERS = 23,   // number of integers
};

// The distribution directory is a list of blocks: the id of one block per type of distribution, 0 for a type
// without requests. Each is two-part. Integers: the number n of its requests, then columns of n words:
// component index of the polymer, type, three further integers. Reals: one per request.
enum PolypropsDistributionRequests {
    POLYPROPS_DISTRIBUTION_TYPES = 4,  // number of types
    POLYPROPS_REQUEST_COLUMNS = 5,     // number of columns
};
