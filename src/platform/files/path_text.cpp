#include "platform/files/path_text.h"

#include <algorithm>

#include "foundation/ascii.h"

namespace quillmark::path_text {

namespace {

bool sameText(std::string_view a, std::string_view b, bool ignoreCase) noexcept {
    return ignoreCase ? ascii::equalIgnoringCase(a, b) : a == b;
}

/// The case of a drive letter does not matter on any system.
bool sameFirst(std::string_view a, std::string_view b, bool ignoreCase) noexcept {
    if (hasDrive(a) && hasDrive(b)) {
        return ascii::toLower(a[0]) == ascii::toLower(b[0]) &&
               sameText(a.substr(1), b.substr(1), ignoreCase);
    }
    return sameText(a, b, ignoreCase);
}

std::size_t commonCount(const std::vector<std::string_view>& a,
                        const std::vector<std::string_view>& b, bool ignoreCase) noexcept {
    if (a.empty() || b.empty() || !sameFirst(a[0], b[0], ignoreCase)) {
        return 0;
    }
    const std::size_t shorter = std::min(a.size(), b.size());
    std::size_t count = 1;
    while (count < shorter && sameText(a[count], b[count], ignoreCase)) {
        ++count;
    }
    return count;
}

/// The position of the first separator at or after `from`, or the end. Names are short, and the
/// search for a set of characters in the library calls a function per character.
std::size_t separatorFrom(std::string_view path, std::size_t from) noexcept {
    while (from < path.size() && !isSeparator(path[from])) {
        ++from;
    }
    return from;
}

void appendComponent(OrxString& path, std::string_view component) {
    if (!path.isEmpty()) {
        path.append('\\');
    }
    path.append(component);
}

}  // namespace

bool hasDrive(std::string_view name) noexcept {
    return name.size() >= 2 && name[1] == ':' && ascii::isLetter(name[0]);
}

bool isAbsolute(std::string_view name) noexcept {
    return hasDrive(name) || (!name.empty() && isSeparator(name.front()));
}

bool hasZero(std::string_view name) noexcept {
    return name.find('\0') != std::string_view::npos;
}

OrxString inDriverForm(std::string_view name) {
    std::string text(name);
    std::replace(text.begin(), text.end(), '/', '\\');
    return text;
}

std::size_t fileStart(std::string_view name) noexcept {
    std::size_t start = name.size();
    while (start > 0 && !isSeparator(name[start - 1])) {
        --start;
    }
    return start == 0 && hasDrive(name) ? 2 : start;
}

std::string_view parent(std::string_view path) noexcept {
    const auto dropSeparators = [&path] {
        while (path.size() > 1 && isSeparator(path.back())) {
            path.remove_suffix(1);
        }
    };
    dropSeparators();
    const std::size_t separator = path.find_last_of("\\/");
    if (path.size() <= 1 || separator == std::string_view::npos) {
        return {};
    }
    path = path.substr(0, separator + 1);
    dropSeparators();
    return path;
}

std::vector<std::string_view> components(std::string_view path) {
    std::vector<std::string_view> result;
    if (!path.empty() && isSeparator(path.front())) {
        result.emplace_back("\\");
    }
    for (std::size_t start = 0; start < path.size();) {
        const std::size_t end = separatorFrom(path, start);
        if (end > start) {
            result.push_back(path.substr(start, end - start));
        }
        start = end + 1;
    }
    return result;
}

OrxString relativePath(const OrxString& base, const OrxString& target, bool ignoreCase) {
    if (base == target) {
        return {};
    }
    const std::vector<std::string_view> from = components(base);
    const std::vector<std::string_view> to = components(target);
    const std::size_t common = commonCount(from, to, ignoreCase);
    // Two relative names start from the same directory, although it has no name here.
    if (common == 0 && (isAbsolute(base) || isAbsolute(target))) {
        return target;
    }
    OrxString result;
    for (std::size_t i = common; i < from.size(); ++i) {
        appendComponent(result, "..");
    }
    for (std::size_t i = common; i < to.size(); ++i) {
        appendComponent(result, to[i]);
    }
    return result;
}

}  // namespace quillmark::path_text
