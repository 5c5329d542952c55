#include "driver/encoding/random_calls.h"

#include <array>

#include "driver/doc_html.h"
#include "support/capturing_exception_log.h"
#include "support/capturing_trace.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"

namespace quillmark::testing {

namespace {

constexpr std::u16string_view loneHigh(u"\xD83D", 1);
constexpr std::u16string_view loneLow(u"\xDE00", 1);

constexpr std::array<std::u16string_view, 40> latinWords = {
    u"plain ",
    u"words ",
    u"Gr\u00F6\u00DFe ",
    u"\u00C4rger ",
    u"na\u00EFve",
    u"\u20AC 5",
    u"\u2013",
    u"\u201Equoted\u201C",
    u"<",
    u">",
    u"&",
    u"&amp;",
    u"\"",
    u"<<",
    u"<BR>\n",
    u"\n",
    u"\t",
    u"  ",
    u"   ",
    u"\u00A0",
    u"\u0081",
    u"\u009F",
    u"\u00FF",
    u"\u0100",
    u"\u4EF7\u683C",
    u"\u0426\u0435\u043D\u0430",
    loneHigh,
    loneLow,
    u"\U0001F600",
    u"\uFFFD",
    u"<a href=\"#Gr\u00F6\u00DFe\">Ma\u00DF</a>",
    u"<a href=\"#a\"><b></a>",
    u"%",
    u"#",
    u"?",
    u"\\",
    u"~",
    u"'",
    u"http://h\u00F6st/\u00FC",
    u"\u00E9\u00E8\u00EA",
};

constexpr std::array<std::u16string_view, 12> latinNames = {
    u"a",   u"Gr\u00F6\u00DFe", u"TOC",  u"Page 1",     u"Page 2", u"\u00E4\u00F6\u00FC",
    u"x y", u"\u4EF7\u683C",    u"toc1", u"na\u00EFve", u"HREF",   u"\u00DFtyle",
};

constexpr std::array<std::u16string_view, 12> latinFiles = {
    u"a.gif",     u"Gr\u00F6\u00DFe.gif", u"Ma\u00DF 100%.doc", u"b#1.txt", u"\u00E4.txt",
    u"c.doc",     u"\u00FC.jpg",          u"Pr\u00E4.css",      u"d~.txt",  u"m'.doc",
    u"e%20f.gif", u"\u00D1.pdf",
};

constexpr std::array<std::u16string_view, 16> asciiWords = {
    u"plain ", u"words ", u"<",  u">", u"&",  u"&amp;", u"\"", u"<<",
    u"<BR>\n", u"\n",     u"  ", u"%", u"\\", u"~",     u"?",  u"<a href=\"#b\">c</a>",
};

constexpr std::array<std::u16string_view, 8> asciiNames = {u"a",    u"b",   u"TOC",  u"Page 1",
                                                           u"toc1", u"x y", u"HREF", u"Page 2"};

constexpr std::array<std::u16string_view, 8> asciiFiles = {
    u"a.gif", u"b.gif", u"c d.doc", u"e.txt", u"f.txt", u"g.doc", u"h.jpg", u"i~.txt"};

constexpr Vocabulary latin{latinWords, latinNames, latinFiles, " <\xE4>\r\ntwo\n"};
constexpr Vocabulary ascii{asciiWords, asciiNames, asciiFiles, " <a>\r\ntwo\n"};

constexpr std::array<std::u16string_view, 9> styles = {
    u"Normal",        u"Heading 1",     u"Heading 2", u"Heading 3", u"Heading 8",
    u"List Number 1", u"List Bullet 2", u"List ",     u""};

std::u16string joinedWith(std::u16string_view a, std::u16string_view b) {
    return std::u16string(a).append(b);
}

}  // namespace

const Vocabulary& latinVocabulary() noexcept {
    return latin;
}
const Vocabulary& asciiVocabulary() noexcept {
    return ascii;
}

std::u16string_view RandomCalls::from(std::span<const std::u16string_view> choices) {
    return choices[below(static_cast<std::uint32_t>(choices.size()))];
}

std::u16string RandomCalls::text() {
    std::u16string all;
    for (std::uint32_t count = below(6); count > 0; --count) {
        all.append(from(vocabulary_.words));
    }
    return all;
}

std::u16string RandomCalls::name() {
    return std::u16string(from(vocabulary_.names));
}

std::u16string RandomCalls::file() {
    const std::u16string_view directory = oneIn(3) ? u"" : u"C:\\in\\";
    return joinedWith(directory, from(vocabulary_.fileNames));
}

std::u16string RandomCalls::target() {
    switch (below(6)) {
        case 0:
            return file();
        case 1:
            return joinedWith(u"http://host/", from(vocabulary_.names));
        case 2:
            return u"";
        default:
            return name();
    }
}

std::u16string RandomCalls::styleOrName() {
    return oneIn(5) ? name() : std::u16string(from(styles));
}

void RandomCalls::override(IDocument& document, std::u16string_view setting,
                           std::u16string_view value) {
    constexpr std::int16_t asText = 2;
    document.overrideRegistry(u"Html", setting, value, asText);
}

void RandomCalls::configure(IDocument& document) {
    constexpr std::array<std::u16string_view, 4> navigation = {u"1", u"2", u"3", u"4"};
    override(document, u"Navig", from(navigation));
    override(document, u"StyleSheet",
             oneIn(4) ? u"" : joinedWith(u"C:\\in\\", vocabulary_.fileNames.back()));
    if (oneIn(3)) {
        override(document, u"HtmlPixDir", name());
    }
    if (oneIn(3)) {
        override(document, u"ExternalDocDir", name());
    }
    if (oneIn(4)) {
        override(document, u"UseRelative", u"false");
    }
    if (oneIn(4)) {
        override(document, u"SupportOld", u"true");
    }
    if (oneIn(4)) {
        override(document, u"BodyTags", text());
    }
    if (oneIn(4)) {
        override(document, u"PassThrough", u"true");
    }
    if (oneIn(4)) {
        override(document, u"DontCopy", u".doc");
    }
}

void RandomCalls::open(IDocument& document) {
    constexpr std::array<std::u16string_view, 3> places = {u"C:\\out\\", u"C:\\out/deep/", u""};
    std::u16string name(from(places));
    name.append(from(vocabulary_.names)).append(oneIn(3) ? u".html" : u"");
    document.create(name);
    if (!oneIn(3)) {
        document.setOption(u"title", text());
    }
}

void RandomCalls::play(IDocument& document) {
    configure(document);
    open(document);
    for (std::uint32_t calls = 10 + below(70); calls > 0; --calls) {
        one(document);
    }
    if (oneIn(8)) {
        if (oneIn(2)) {
            document.close();
        }
        open(document);
        for (std::uint32_t calls = below(20); calls > 0; --calls) {
            one(document);
        }
    }
    document.close();
}

void RandomCalls::one(IDocument& document) {
    const std::uint32_t kind = below(40);
    if (kind < 14) {
        oneText(document, kind);
    } else if (kind < 22) {
        oneFormat(document, kind - 14);
    } else if (kind < 31) {
        oneLink(document, kind - 22);
    } else {
        oneStructure(document, kind - 31);
    }
}

void RandomCalls::oneText(IDocument& document, std::uint32_t kind) {
    if (kind < 8) {
        document.insertText(text());
    } else if (kind < 12) {
        document.insertEndl();
    } else {
        document.insertField(static_cast<std::int16_t>(oneIn(2) ? 3 : 4));
    }
}

void RandomCalls::oneFormat(IDocument& document, std::uint32_t kind) {
    std::int16_t attribute = 0;
    switch (kind) {
        case 0:
            document.setFontName(name());
            break;
        case 1:
            document.setFontSize(static_cast<std::int16_t>(below(30)));
            break;
        case 2:
            attribute = static_cast<std::int16_t>(below(5));
            document.setFontAttribute(attribute, oneIn(2));
            break;
        case 3:
            document.setTextAlign(static_cast<std::int16_t>(below(4)));
            break;
        default:
            document.setStyle(styleOrName());
    }
}

void RandomCalls::oneLink(IDocument& document, std::uint32_t kind) {
    // The order in which arguments are made must not depend on the compiler.
    std::u16string first;
    switch (kind) {
        case 0:
        case 1:
            document.insertTag(name());
            break;
        case 2:
        case 3:
        case 4:
            first = text();
            document.insertXref(first, target());
            break;
        case 5:
        case 6:
            first = file();
            document.insertImage(first, target());
            break;
        case 7:
            document.insertLocate();
            break;
        default:
            first = file();
            document.insertFile(first, static_cast<std::int16_t>(1 + below(3)));
    }
}

void RandomCalls::oneStructure(IDocument& document, std::uint32_t kind) {
    switch (kind) {
        case 0:
            document.insertPageBreak();
            break;
        case 1:
            document.pushDirectory(name());
            break;
        case 2:
            document.popDirectory();
            break;
        case 3:
            oneIn(2) ? document.startHeader() : document.startFooter();
            break;
        case 4:
            oneIn(2) ? document.endHeader() : document.endFooter();
            break;
        case 5:
            oneIn(2) ? document.startTOCEntry() : document.endTOCEntry();
            break;
        case 6:
            oneIn(3) ? document.insertTOC() : document.insertMark(7, oneIn(2));
            break;
        case 7:
            oneIn(2) ? document.startTable() : document.endTable();
            break;
        default:
            oneIn(2) ? document.addRow() : document.addCell();
    }
}

WrittenDocument writtenRandomly(std::uint32_t seed, const Vocabulary& vocabulary,
                                std::string (*bytesOf)(std::u16string_view)) {
    MemoryFileSystem files;
    const InstalledFileSystem installed(files);
    for (const std::u16string_view name : vocabulary.fileNames) {
        files.put("C:\\in\\" + bytesOf(name),
                  "one " + bytesOf(name) + std::string(vocabulary.fileText));
    }
    const CapturingExceptionLog exceptions;
    const CapturingTrace trace;
    {
        DocHtml document;
        RandomCalls(seed, vocabulary).play(document);
    }
    WrittenDocument written{{}, trace.text()};
    for (const std::string& message : exceptions.messages()) {
        written.trace.append(message);
    }
    for (const std::string& name : files.fileNames()) {
        written.files[name] = files.content(name).value_or("");
    }
    return written;
}

}  // namespace quillmark::testing
