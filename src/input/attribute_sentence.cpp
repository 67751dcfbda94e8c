#include "input/attribute_sentence.h"

#include <array>

namespace polyprops::input {

namespace {

// The five blocks of a keyword sentence. The host keeps them.
struct SentenceBlocks {
    Int head;
    Int keyword_value;
    Int descriptor;
    Int values;
    Int reals;
};

SentenceBlocks allocate_sentence(Int name_count)
{
    // The order of an initializer list is that of its evaluation.
    return {allocate_integers(10), allocate_integers(1), allocate_integers(12),
            allocate_integers(2 * name_count + 6), allocate_reals(1)};
}

Int attribute_keyword()
{
    constexpr std::array keyword{text_word("ATTR"), text_word("-COM"), text_word("PS")};
    constexpr Int zero = 0;
    return ST_FIND_KEYWORD(keyword.data(), &zero);
}

// Entry of a keyword table for one keyword.
Int table_entry(Int table_position, Int keyword)
{
    constexpr Int seven = 7;
    return integer_at(Position{ST_KEYWORD_TEXT(&table_position, &keyword, &seven)});
}

// Reads a sub-table; returns its position.
Int read_table(Int entry, Int& target)
{
    Int first = 0;
    Int second = 0;
    Int third = 0;
    ST_READ_TABLE(&entry, &target, &first, &second, &third);
    return first;
}

Int value_of_keyword(Int keyword)
{
    const Int sub_table =
        read_table(table_entry(ST_FIND_I(&word(ST_TABLES, 1)), keyword), word(ST_TABLES, 2));
    Int value = 0;
    read_table(table_entry(sub_table, 1), value);
    return value;
}

void write_head(const SentenceBlocks& blocks, Int keyword)
{
    const IntegerBlock head = find_integers(blocks.head);
    head(1) = keyword;
    head(3) = 1;
    head(4) = head(5) = blocks.descriptor;
    head(6) = head(8) = word(ST_GLOBAL, 9);
    head(7) = head(9) = word(ST_GLOBAL, 10);
    head(10) = blocks.keyword_value;
}

void write_descriptor(const SentenceBlocks& blocks, Int name_count)
{
    const IntegerBlock descriptor = find_integers(blocks.descriptor);
    descriptor(1) = 0;
    descriptor(2) = blocks.values;
    descriptor(3) = blocks.reals;
    descriptor(4) = descriptor(7) = 1;
    descriptor(8) = 4;
    descriptor(9) = name_count;
    descriptor(10) = 6;
    descriptor(11) = 1;
    descriptor(12) = 3;
}

void write_pair(const IntegerBlock& block, Int first_word, const NamePair& name)
{
    block(first_word) = name.words[0];
    block(first_word + 1) = name.words[1];
}

void write_values(Int values_id, const AttributeEntry& entry, const SentenceWords& words)
{
    const IntegerBlock values = find_integers(values_id);
    values(4) = text_word("CV");
    write_pair(values, 5, entry.component);
    for (Int a = 1; a <= entry.name_count; ++a) write_pair(values, 5 + 2 * a, words.name(entry.names, a));
}

void process_sentence(const SentenceBlocks& blocks, const void* context)
{
    constexpr Int code = 3030;
    constexpr Int step = 2;
    Int result = 0;
    PS_PROCESS_SENTENCE(&code, &step, context, &blocks.head, &blocks.descriptor, &result);
}

}  // namespace

AttributeEntry attribute_entry(const SentenceWords& words, Int entry)
{
    const Int descriptor = words.list_start(2) + 2 * entry - 2;
    const Int names = words.list_start(descriptor + 1);
    return {words.name(words.list_start(1), entry), words.name_count(names, words.integer(descriptor)),
            names};
}

void forward_attribute_sentence(const AttributeEntry& entry, const Sentence& attributes, const void* context)
{
    const Int current_paragraph = word(ST_TABLES, 2);
    const Int keyword = attribute_keyword();
    const Int keyword_value = value_of_keyword(keyword);
    const SentenceBlocks blocks = allocate_sentence(entry.name_count);
    write_head(blocks, keyword);
    find_integers(blocks.keyword_value)(1) = keyword_value;
    write_descriptor(blocks, entry.name_count);
    write_values(blocks.values, entry, attributes.words());
    process_sentence(blocks, context);
    word(ST_TABLES, 2) = current_paragraph;
}

}  // namespace polyprops::input
