#pragma once

#include <cstdint>
#include <map>
#include <random>
#include <span>
#include <string>
#include <string_view>

#include "driver/boundary/i_document.h"
#include "platform/files/file_system.h"

namespace quillmark::testing {

/// The texts that a random document is made of.
struct Vocabulary {
    /// Pieces of running text, joined at random.
    std::span<const std::u16string_view> words;
    /// Bookmarks, and names that may be a style or a font.
    std::span<const std::u16string_view> names;
    /// Files that exist in "C:\in", and directories. They may hold any character that a file name
    /// can hold on all systems.
    std::span<const std::u16string_view> fileNames;
    /// What each of these files holds after its name.
    std::string_view fileText;
};

/// Texts of ASCII and of the 8-bit code page, and some characters that it does not hold.
[[nodiscard]] const Vocabulary& latinVocabulary() noexcept;
/// Texts and names of ASCII alone.
[[nodiscard]] const Vocabulary& asciiVocabulary() noexcept;

/// Makes the calls of a document from a seed. The same seed and vocabulary give the same calls on
/// every system.
class RandomCalls {
public:
    RandomCalls(std::uint32_t seed, const Vocabulary& vocabulary)
        : random_(seed), vocabulary_(vocabulary) {}

    /// Calls the operations of one document: settings, `create`, up to 80 further calls, `close`.
    /// One in eight documents starts another document with the same object.
    void play(IDocument& document);

private:
    std::uint32_t below(std::uint32_t count) {
        return static_cast<std::uint32_t>(random_()) % count;
    }
    [[nodiscard]] bool oneIn(std::uint32_t count) { return below(count) == 0; }
    std::u16string_view from(std::span<const std::u16string_view> choices);
    std::u16string text();
    std::u16string name();
    std::u16string file();
    std::u16string target();
    std::u16string styleOrName();

    void configure(IDocument& document);
    void override(IDocument& document, std::u16string_view setting, std::u16string_view value);
    void open(IDocument& document);
    void one(IDocument& document);
    void oneText(IDocument& document, std::uint32_t kind);
    void oneFormat(IDocument& document, std::uint32_t kind);
    void oneLink(IDocument& document, std::uint32_t kind);
    void oneStructure(IDocument& document, std::uint32_t kind);

    std::mt19937 random_;
    const Vocabulary& vocabulary_;
};

/// What a document has written: every file, and its trace with the exception log.
struct WrittenDocument {
    std::map<std::string, std::string> files;
    std::string trace;
    bool operator==(const WrittenDocument&) const = default;
};

/// Plays a random document with the driver, in a file system in memory that holds the files of the
/// vocabulary, with these bytes for their names.
[[nodiscard]] WrittenDocument writtenRandomly(std::uint32_t seed, const Vocabulary& vocabulary,
                                              std::string (*bytesOf)(std::u16string_view));

}  // namespace quillmark::testing
