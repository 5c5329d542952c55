#include "navigator/text/html_tags.h"

#include "foundation/ascii.h"

namespace quillmark::html_tags {

namespace {

constexpr std::size_t npos = std::string_view::npos;

bool startsWithName(std::string_view html, std::size_t at, std::string_view name) noexcept {
    return html.size() - at >= name.size() &&
           ascii::equalIgnoringCase(html.substr(at, name.size()), name);
}

bool isNamePart(char c) noexcept {
    return ascii::isLetter(c) || (c >= '0' && c <= '9') || c == '_';
}

/// The name stands at `at`, and ends there.
bool hasName(std::string_view html, std::size_t at, std::string_view name) noexcept {
    const std::size_t end = at + name.size();
    return startsWithName(html, at, name) && (end == html.size() || !isNamePart(html[end]));
}

std::size_t behind(std::string_view html, std::string_view end, std::size_t from) noexcept {
    const std::size_t hit = html.find(end, from);
    return hit == npos ? html.size() : hit + end.size();
}

/// Past the ">" that no quotes surround.
std::size_t behindAttributes(std::string_view html, std::size_t at) noexcept {
    while (at < html.size()) {
        const char c = html[at++];
        if (c == '>') {
            return at;
        }
        if (c == '"' || c == '\'') {
            at = behind(html, std::string_view(&c, 1), at);
        }
    }
    return html.size();
}

/// Past the closing tag of the element `name`.
std::size_t behindElement(std::string_view html, std::size_t at, std::string_view name) noexcept {
    constexpr std::string_view closing = "</";
    for (at = html.find(closing, at); at != npos; at = html.find(closing, at)) {
        at += closing.size();
        if (hasName(html, at, name)) {
            return behind(html, ">", at);
        }
    }
    return html.size();
}

}  // namespace

std::size_t endAt(std::string_view html, std::size_t at) noexcept {
    const std::size_t name = at + 1;
    if (name >= html.size()) {
        return at;
    }
    const char first = html[name];
    if (first == '!' || first == '/') {
        const bool isComment = html.substr(name).starts_with("!--");
        return isComment ? behind(html, "-->", name + 3) : behind(html, ">", name);
    }
    if (!ascii::isLetter(first) && first != '?') {
        return at;
    }
    for (const std::string_view element : {"script", "style"}) {
        if (hasName(html, name, element)) {
            return behindElement(html, name, element);
        }
    }
    return behindAttributes(html, name);
}

std::size_t bodyStart(std::string_view html) noexcept {
    for (std::size_t at = html.find('<'); at != npos; at = html.find('<', at + 1)) {
        if (startsWithName(html, at + 1, "body")) {
            return behindAttributes(html, at + 1);
        }
    }
    return html.size();
}

}  // namespace quillmark::html_tags
