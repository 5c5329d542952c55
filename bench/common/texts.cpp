#include "common/texts.h"

namespace quillmark::bench {

std::u16string words(std::size_t count) {
    return wordsOf(count, {u"every", u"class", u"of", u"the", u"model", u"keeps", u"its", u"own",
                           u"account", u"of", u"what", u"passes"});
}

std::u16string wordsOf(std::size_t count, std::initializer_list<std::u16string_view> vocabulary) {
    std::u16string text;
    for (std::size_t i = 0; i < count; ++i) {
        text += i == 0 ? u"" : u" ";
        text += vocabulary.begin()[i * i % vocabulary.size()];
    }
    return text + u".";
}

std::u16string numbered(const char16_t* prefix, std::size_t number) {
    std::u16string text(prefix);
    for (const char digit : std::to_string(number)) {
        text += static_cast<char16_t>(digit);
    }
    return text;
}

std::u16string tagName(std::size_t number) {
    static const std::u16string opening(tagOpening.begin(), tagOpening.end());
    return numbered(opening.c_str(), number);
}

}  // namespace quillmark::bench
