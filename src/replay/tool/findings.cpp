#include "replay/tool/findings.h"

#include <utility>

#include "platform/text_encoding.h"

namespace quillmark::replay {

namespace {

constexpr std::size_t mostKept = 3;
constexpr std::string_view place = " near line ";

/// "line 12: name" from "  name near line 12 MARKUP". Empty for another line.
std::string referenceOf(std::string_view line) {
    const std::size_t middle = line.find(place);
    if (!line.starts_with("  ") || middle == std::string_view::npos) {
        return {};
    }
    const std::string_view rest = line.substr(middle + place.size());
    return "line " + std::string(rest.substr(0, rest.find(' '))) + ": " +
           TextEncoding::current().toUtf8(line.substr(2, middle - 2));
}

}  // namespace

bool Findings::wantsMore(const Kind& kind) const noexcept {
    return keepsAll_ || kind.kept.size() < mostKept;
}

void Findings::add(Kind& kind, std::string text) {
    if (wantsMore(kind)) {
        kind.kept.push_back(std::move(text));
    } else {
        kind.isCut = true;
    }
}

void Findings::addUnresolved(const std::string& page, std::string_view report) {
    std::string last;
    while (!report.empty()) {
        const std::string_view line = report.substr(0, report.find('\n'));
        report.remove_prefix(std::min(report.size(), line.size() + 1));
        std::string reference = referenceOf(line);
        if (!reference.empty() && reference != last) {
            add(unresolved_, std::string(page).append(", ").append(reference));
            last = std::move(reference);
        }
    }
}

void Findings::write(Messages& messages, const std::string& tool) const {
    bool isCut = false;
    for (const Kind* const kind : {&warnings_, &unresolved_, &lost_}) {
        for (const std::string& text : kind->kept) {
            messages.write(
                std::string(tool).append(": ").append(kind->name).append(": ").append(text));
        }
        isCut = isCut || kind->isCut;
    }
    if (isCut) {
        messages.write(tool + ": these are the first ones; --verbose names all");
    }
}

}  // namespace quillmark::replay
