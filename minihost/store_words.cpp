#include "minihost/store_words.h"

#include <cstring>

#include "minihost/error.h"

namespace minihost {

Word text_word(std::string_view text)
{
    char characters[sizeof(Word)];
    std::memset(characters, ' ', sizeof characters);
    std::memcpy(characters, text.data(), std::min(text.size(), sizeof characters));
    return std::bit_cast<Word>(characters);
}

NamePair name_pair(std::string_view name)
{
    if (name.size() > 8) throw Error("\"" + std::string(name) + "\" has more than 8 characters");
    return {text_word(name.substr(0, 4)), text_word(name.size() > 4 ? name.substr(4) : "")};
}

std::string name_of(const Word* pair)
{
    char characters[8];
    std::memcpy(characters, pair, 4);
    std::memcpy(characters + 4, pair + 1, 4);
    std::string name(characters, sizeof characters);
    name.erase(name.find_last_not_of(' ') + 1);
    return name;
}

}  // namespace minihost
