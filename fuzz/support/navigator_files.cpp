#include "support/navigator_files.h"

#include <algorithm>

#include "foundation/utf8.h"
#include "support/require.h"

namespace quillmark::fuzzing {
namespace {

constexpr std::string_view escape = "\\\\u";

bool isDigit(char c) {
    return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f');
}

/// The JSON text in a JavaScript string: "\\u00e9" becomes "\u00e9".
std::string jsonOf(std::string_view script) {
    std::string json;
    for (std::size_t at = 0; at < script.size(); ++at) {
        const char c = script[at];
        if (c == '\\') {
            require(script.substr(at, escape.size()) == escape, "a backslash begins an escape");
            const std::string_view digits = script.substr(at + escape.size(), 4);
            require(digits.size() == 4 && std::ranges::all_of(digits, isDigit),
                    "an escape has four digits");
            ++at;
        } else {
            require(c >= ' ' && c <= '~' && c != '\'' && c != '<', "other characters are escaped");
        }
        json.push_back(c);
    }
    return json;
}

std::u16string wide(const rapidjson::Value& value) {
    return utf8::toUtf16({value.GetString(), value.GetStringLength()});
}

std::uint32_t valueOf(char16_t c) {
    constexpr std::u16string_view alphabet =
        u"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_";
    const std::size_t value = alphabet.find(c);
    require(value != std::u16string_view::npos, "a character of the alphabet");
    return static_cast<std::uint32_t>(value);
}

void addNumber(NavigatorFiles::Numbers& numbers, std::uint32_t number) {
    require(numbers.empty() || number > *numbers.rbegin(), "numbers ascend");
    numbers.insert(number);
}

NavigatorFiles::Numbers bitsIn(std::u16string_view list) {
    NavigatorFiles::Numbers numbers;
    for (std::uint32_t at = 0; at < list.size(); ++at) {
        for (std::uint32_t bit = 0; bit < 6; ++bit) {
            if ((valueOf(list[at]) >> bit) % 2 == 1) {
                addNumber(numbers, at * 6 + bit);
            }
        }
    }
    return numbers;
}

NavigatorFiles::Numbers numbersIn(std::u16string_view list) {
    if (list.starts_with(u'.')) {
        return bitsIn(list.substr(1));
    }
    NavigatorFiles::Numbers numbers;
    std::uint32_t next = 0;
    std::uint32_t gap = 0;
    for (const char16_t c : list) {
        gap = gap * 32 + valueOf(c) % 32;
        if (valueOf(c) < 32) {
            addNumber(numbers, next + gap);
            next += gap + 1;
            gap = 0;
        }
    }
    return numbers;
}

/// Takes the text up to a character, and the character.
std::u16string_view takeUntil(std::u16string_view& text, char16_t end) {
    const std::size_t at = text.find(end);
    require(at != std::u16string_view::npos, "a record has its separators");
    const std::u16string_view front = text.substr(0, at);
    text.remove_prefix(at + 1);
    return front;
}

/// Adds the words of a file; returns the first one.
std::u16string addWords(NavigatorFiles::Words& words, std::u16string_view text) {
    std::u16string first;
    std::u16string word;
    while (!text.empty()) {
        const std::u16string last = word;
        std::u16string_view shown = takeUntil(text, u',');
        require(!shown.empty() && valueOf(shown.front()) <= last.size(), "shared units exist");
        word = last.substr(0, valueOf(shown.front())).append(shown.substr(1));
        require(utf8::fromUtf16(last) < utf8::fromUtf16(word), "words ascend");
        const auto entries = numbersIn(takeUntil(text, u','));
        const auto pages = numbersIn(takeUntil(text, u';'));
        require(words.emplace(word, NavigatorFiles::Places{entries, pages}).second,
                "each word once");
        first = first.empty() ? word : first;
    }
    return first;
}

}  // namespace

NavigatorFiles::NavigatorFiles(const MemoryFileSystem& files, std::string directory)
    : files_(files), directory_(std::move(directory)) {}

bool NavigatorFiles::has(const std::string& name) const {
    return files_.content(directory_ + name + ".js").has_value();
}

rapidjson::Document NavigatorFiles::data(const std::string& name) const {
    const std::string file = files_.content(directory_ + name + ".js").value_or("");
    const std::string opening = "repNav(\"" + name + "\",'";
    constexpr std::string_view closing = "');\n";
    require(file.starts_with(opening) && file.ends_with(closing), "a file holds one call");
    const std::string json = jsonOf(std::string_view(file).substr(
        opening.size(), file.size() - opening.size() - closing.size()));
    rapidjson::Document document;
    document.Parse(json.data(), json.size());
    require(!document.HasParseError(), "a file holds JSON");
    return document;
}

void NavigatorFiles::checkAll() const {
    for (const std::string& name : files_.fileNames()) {
        const bool isData = name.starts_with(directory_) && name.ends_with(".js") &&
                            name.find('\\', directory_.size()) == std::string::npos &&
                            !name.ends_with("\\navigator.js");
        if (isData) {
            static_cast<void>(
                data(name.substr(directory_.size(), name.size() - directory_.size() - 3)));
        }
    }
}

NavigatorFiles::Words NavigatorFiles::words() const {
    Words words;
    const rapidjson::Document firstWords = data("index");
    require(firstWords.IsArray(), "the index is an array");
    std::size_t number = 0;
    std::u16string last;
    for (const auto& firstWord : firstWords.GetArray()) {
        const rapidjson::Document text = data("word" + std::to_string(number++));
        const std::u16string first = addWords(words, wide(text));
        require(first == wide(firstWord), "the index has the first word of each file");
        require(last.empty() || utf8::fromUtf16(last) < utf8::fromUtf16(first), "files ascend");
        last = first;
    }
    require(!has("word" + std::to_string(number)), "no other file of words");
    return words;
}

void NavigatorFiles::addRecords(std::vector<Record>& all, const rapidjson::Value& list) {
    std::u16string page;
    for (const auto& item : list.GetArray()) {
        const auto& values = item.GetArray();
        require(values.Size() >= 2 && values.Size() <= 6, "a record has 2 to 6 members");
        const auto number = [&](rapidjson::SizeType at) {
            return values.Size() > at ? values[at].GetUint() : 0;
        };
        std::u16string href = wide(values[1]);
        if (!href.starts_with(u'#')) {
            page = href.substr(0, href.find(u'#'));
        } else {
            href.insert(0, page);
        }
        all.push_back({{wide(values[0]), href, 0}, number(2), number(3)});
    }
}

std::vector<NavigatorFiles::Record> NavigatorFiles::records() const {
    std::vector<Record> all;
    for (std::size_t file = 0; has("tree" + std::to_string(file)); ++file) {
        const rapidjson::Document tree = data("tree" + std::to_string(file));
        require(tree.IsArray() && tree.Size() == 2, "a file of entries has two lists");
        addRecords(all, tree[0]);
    }
    return all;
}

void NavigatorFiles::addInOrder(std::vector<Entry>& ordered, const std::vector<Record>& all,
                                std::uint32_t number, std::uint32_t level) {
    require(number < all.size() && ordered.size() < all.size(), "children exist");
    const Record& record = all[number];
    ordered.push_back(record.entry);
    ordered.back().level = level;
    for (std::uint32_t child = 0; child < record.count; ++child) {
        addInOrder(ordered, all, record.first + child, level + 1);
    }
}

std::vector<NavigatorFiles::Entry> NavigatorFiles::entries() const {
    const std::vector<Record> all = records();
    const rapidjson::Document set = data("set");
    require(set["entries"].GetUint() == all.size(), "the set counts the entries");
    std::vector<Entry> ordered;
    for (std::uint32_t root = 0; root < set["roots"].GetUint(); ++root) {
        addInOrder(ordered, all, root, 1);
    }
    require(ordered.size() == all.size(), "every entry has its place");
    return ordered;
}

std::vector<std::uint32_t> NavigatorFiles::table(const std::string& kind) const {
    std::vector<std::uint32_t> numbers;
    for (std::size_t file = 0; has(kind + std::to_string(file)); ++file) {
        const rapidjson::Document list = data(kind + std::to_string(file));
        require(numbers.size() % 1024 == 0 && list.Size() <= 1024,
                "files before the last are full");
        for (const auto& number : list.GetArray()) {
            numbers.push_back(number.IsNull() ? none : number.GetUint());
        }
    }
    return numbers;
}

}  // namespace quillmark::fuzzing
