#include "support/call_lines.h"

#include <array>

#include "driver/boundary/operation_table.h"
#include "settings/settings_table.h"

namespace quillmark::fuzzing {
namespace {

using Random = LineMutator::Random;

std::size_t below(Random& random, std::size_t end) {
    return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
}

template <std::size_t count>
std::string oneOf(Random& random, const std::array<const char*, count>& texts) {
    return texts.at(below(random, count));
}

std::string madeText(Random& random) {
    // clang-format off
    static constexpr std::array texts = {
        "", "A", "target", "Page 2", "toc1", "TOC", "TOPOFPAGE", "Heading 1", "Heading 2",
        "Heading 9", "List Number 2", "List Number", "List Bullet", "List", "Normal", "Caption",
        "Body Text", "Preformatted", "C:\\\\in\\\\a.gif", "C:\\\\in\\\\a.txt", "C:\\\\in\\\\b",
        "a.gif", "sub", "sub\\\\deep", "..", "http://x/", "mailto:a@b", "a\\n\\tb  c<<", "title",
        "Html", "Settings", "Log", "true", "false", "2", "C:\\\\out\\\\r.htm", "C:\\\\out\\\\s.htm",
        "<a href=\"#GUID-1\">x</a>", "<B>bold</B>", "&amp;&#233;", "caf\xC3\xA9", "\\ud800x",
        "\xE6\x9D\xB1\xE4\xBA\xAC", "Arial", "Courier New", "#target", "r_dtl2.htm", "a\\r\\nb",
        "OrderLine", "\"quoted\"", "page.doc", "C:\\\\in\\\\page.doc",
        "UTF-8", "\\ud83d\\ud83d\\ude00", "\\ude00\\ud83d", "\xD7\xA9\xD7\x9C", "cafe\xCC\x81",
        "100%#?"};
    // clang-format on
    return oneOf(random, texts);
}

std::string madeNumber(Random& random) {
    static constexpr std::array numbers = {
        "0",  "1",  "2",  "3",  "4",  "5",  "6",  "7",   "8",   "9",   "10",    "12",    "14",
        "18", "24", "36", "-1", "11", "72", "99", "100", "255", "256", "32767", "-32768"};
    return oneOf(random, numbers);
}

std::string madeSetting(Random& random) {
    static constexpr std::array values = {"",
                                          "0",
                                          "1",
                                          "2",
                                          "3",
                                          "4",
                                          "7",
                                          "50",
                                          "-1",
                                          "true",
                                          "false",
                                          "abc",
                                          "C:\\\\inst",
                                          "C:\\\\in\\\\a.css",
                                          ".gif",
                                          ".doc.txt",
                                          "sub",
                                          "BGCOLOR=\"#ffffff\"",
                                          "C:\\\\in\\\\icons.zip",
                                          "C:\\\\out\\\\log.txt",
                                          "UTF-8"};
    const SettingDescription& setting = allSettings()[below(random, allSettings().size())];
    std::string value = oneOf(random, values);
    if (setting.type == SettingType::boolean) {
        value = below(random, 2) == 0 ? "true" : "false";
    }
    return std::string("set\t") + setting.group + "." + setting.name + "\t" + value;
}

std::string madeOverride(Random& random) {
    const SettingDescription& setting = allSettings()[below(random, allSettings().size())];
    return std::string("overrideRegistry\t") + setting.group + "\t" + setting.name + "\t" +
           madeText(random) + "\t" + madeNumber(random);
}

std::string madeFile(Random& random) {
    static constexpr std::array names = {"C:\\\\in\\\\a.txt",
                                         "C:\\\\in\\\\a.gif",
                                         "C:\\\\inst\\\\default.css",
                                         "C:\\\\inst\\\\toc2.jnlp",
                                         "C:\\\\inst\\\\pix\\\\backON.gif",
                                         "C:\\\\out\\\\r_dtl.htm",
                                         "C:\\\\in\\\\page.doc",
                                         "C:\\\\inst\\\\navigator\\\\order.txt"};
    return "file\t" + oneOf(random, names) + "\t" + madeText(random);
}

std::string madeCall(Random& random) {
    const Operation& operation = operations()[below(random, operationCount)];
    std::string line = operation.name;
    for (const Parameter& parameter : operation.parameters) {
        const bool isText = parameter.kind == ParameterKind::string;
        line.append("\t").append(isText ? madeText(random) : madeNumber(random));
    }
    return line;
}

}  // namespace

std::string madeCallLine(Random& random) {
    switch (below(random, 16)) {
        case 0:
            return madeSetting(random);
        case 1:
            return madeFile(random);
        case 2:
            return madeOverride(random);
        case 3:
            return below(random, 4) == 0 ? "new" : "create\tC:\\\\out\\\\r.htm";
        case 4:
            return "setStyle\t" + madeText(random);
        default:
            return madeCall(random);
    }
}

}  // namespace quillmark::fuzzing
