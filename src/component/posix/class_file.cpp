#include "component/posix/class_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <fstream>
#include <map>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "foundation/ascii.h"
#include "platform/files/posix/descriptor_io.h"
#include "platform/files/posix/noted.h"
#include "platform/posix/home_directory.h"

namespace quillmark {
namespace {

constexpr std::string_view defaultValueName = "@";

std::string escaped(std::string_view text) {
    std::string out;
    for (const char character : text) {
        if (character == '\\') {
            out += "\\\\";
        } else if (character == '\n') {
            out += "\\n";
        } else {
            out += character;
        }
    }
    return out;
}

std::string unescaped(std::string_view text) {
    std::string out;
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\' && i + 1 < text.size()) {
            ++i;
            out += text[i] == 'n' ? '\n' : text[i];
        } else {
            out += text[i];
        }
    }
    return out;
}

/// The first key of a path and the rest of the path.
std::pair<std::string, std::string_view> splitPath(std::string_view path) {
    const std::size_t end = path.find('\\');
    if (end == std::string_view::npos) {
        return {std::string(path), {}};
    }
    return {std::string(path.substr(0, end)), path.substr(end + 1)};
}

template <typename Tree>
Tree* find(Tree& root, std::string_view path) {
    const auto [name, rest] = splitPath(path);
    const auto child = root.children.find(name);
    if (child == root.children.end()) {
        return nullptr;
    }
    return rest.empty() ? &child->second : find<Tree>(child->second, rest);
}

std::string joined(const std::string& parent, const std::string& name) {
    std::string path = parent;
    path += parent.empty() ? "" : "\\";
    path += name;
    return path;
}

/// The comments of each section, with their line ends, by the section's path in lower case. Those
/// before the first section have an empty path.
using Comments = std::map<std::string, std::string>;

std::string lowerCase(std::string_view text) {
    std::string lower(text);
    std::ranges::transform(lower, lower.begin(), [](char c) { return ascii::toLower(c); });
    return lower;
}

void writeKeys(std::ostream& out, const std::string& path, const KeyTree& tree,
               Comments& comments) {
    if (!path.empty()) {
        out << '[' << path << "]\n";
        const auto own = comments.extract(lowerCase(path));
        out << (own.empty() ? std::string() : own.mapped());
    }
    for (const auto& [name, value] : tree.values) {
        out << (name.empty() ? defaultValueName : std::string_view(name)) << '='
            << escaped(value.data) << '\n';
    }
    for (const auto& [name, child] : tree.children) {
        writeKeys(out, joined(path, name), child, comments);
    }
}

/// Whether every key of a path has a name, and there are no more than a registry holds. A file can
/// have anything, and keys are handled by functions that call themselves.
bool isKeyPath(std::string_view path) noexcept {
    constexpr std::ptrdiff_t deepest = 512;
    return !path.empty() && path.front() != '\\' && path.back() != '\\' &&
           path.find("\\\\") == std::string_view::npos &&
           std::count(path.begin(), path.end(), '\\') < deepest;
}

/// The path in a line such as "[A\B]"; empty when it holds none. Nothing for any other line.
std::optional<std::string_view> keyPathIn(std::string_view line) noexcept {
    if (!line.starts_with('[') || !line.ends_with(']')) {
        return std::nullopt;
    }
    const std::string_view path = line.substr(1, line.size() - 2);
    return isKeyPath(path) ? path : std::string_view();
}

/// The whole content of the file. Empty when the file does not exist; nothing when it cannot be
/// read.
std::optional<std::string> contentOf(const std::filesystem::path& file) {
    struct stat status {};
    if (stat(file.c_str(), &status) != 0) {
        const bool isMissing = noted(errno == ENOENT || errno == ENOTDIR);
        return isMissing ? std::optional<std::string>("") : std::nullopt;
    }
    // Reading from a pipe or a device may never end.
    if (!S_ISREG(status.st_mode)) {
        FileFailure::noteNotRegular();
        return std::nullopt;
    }
    const Descriptor in = descriptor_io::openFile(file.c_str(), O_RDONLY);
    if (!noted(in.isOpen())) {
        return std::nullopt;
    }
    std::string content;
    std::array<char, 4096> piece{};
    long size = 0;
    while ((size = descriptor_io::readSome(in, piece)) > 0) {
        content.append(piece.data(), static_cast<std::size_t>(size));
    }
    return noted(size == 0) ? std::optional(std::move(content)) : std::nullopt;
}

bool isSection(std::string_view line) noexcept {
    return line.starts_with('[') && line.ends_with(']') && line.size() > 2;
}

bool isComment(std::string_view line) noexcept {
    return line.starts_with(';') || line.starts_with('#');
}

/// The lines of a text. An editor may have ended them with a carriage return and a line feed.
std::vector<std::string> linesOf(const std::string& content) {
    std::vector<std::string> lines;
    std::istringstream in(content);
    for (std::string line; std::getline(in, line);) {
        if (line.ends_with('\r')) {
            line.pop_back();
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

/// Something else than a class file: it has text, but not a single section.
bool isForeign(const std::string& content, const std::vector<std::string>& lines) {
    const bool hasText = std::ranges::any_of(lines, [](const std::string& line) {
        return line.find_first_not_of(" \t") != std::string::npos && !isComment(line);
    });
    return content.find('\0') != std::string::npos ||
           (hasText && std::ranges::none_of(lines, isSection));
}

constexpr std::string_view firstLine =
    "; The components that this user's programs find by name. Written by registration.";

Comments commentsOf(const std::string& content) {
    Comments comments;
    std::string section;
    for (const std::string& line : linesOf(content)) {
        if (isSection(line)) {
            section = lowerCase(std::string_view(line).substr(1, line.size() - 2));
        } else if (isComment(line) && line != firstLine) {
            comments[section].append(line).append(1, '\n');
        }
    }
    return comments;
}

/// The whole file. Comments of sections that are gone move to its start.
void writeAll(std::ostream& out, const KeyTree& root, Comments comments) {
    std::ostringstream keys;
    writeKeys(keys, {}, root, comments);
    out << firstLine << '\n';
    for (const auto& [section, text] : comments) {
        out << text;
    }
    out << keys.str();
}

}  // namespace

std::filesystem::path classFilePath() {
    const std::filesystem::path data = environmentDirectory("XDG_DATA_HOME");
    const std::filesystem::path base =
        data.empty() ? std::filesystem::path(homeDirectory()) / ".local" / "share" : data;
    return base / "quillmark" / "classes.ini";
}

std::optional<KeyTree> readClassFile(const std::filesystem::path& file) {
    const std::optional<std::string> content = contentOf(file);
    if (!content) {
        return std::nullopt;
    }
    const std::vector<std::string> lines = linesOf(*content);
    if (isForeign(*content, lines)) {
        return std::nullopt;
    }
    KeyTree root;
    KeyTree* key = nullptr;
    for (const std::string& line : lines) {
        const std::size_t equals = line.find('=');
        if (const std::optional<std::string_view> path = keyPathIn(line)) {
            // The values below a key that cannot be are no other key's.
            key = path->empty() ? nullptr : &makeKey(root, *path);
        } else if (key != nullptr && equals != std::string::npos && !isComment(line)) {
            const std::string name = line.substr(0, equals);
            key->values[name == defaultValueName ? std::string() : name] = {
                KeyValue::textType, unescaped(std::string_view(line).substr(equals + 1))};
        }
    }
    return root;
}

bool writeClassFile(const std::filesystem::path& file, const KeyTree& root) {
    const std::optional<std::string> before = contentOf(file);
    if (!before) {
        return false;
    }
    std::error_code error;
    std::filesystem::create_directories(file.parent_path(), error);
    const std::filesystem::path next = file.string() + '.' + std::to_string(getpid());
    std::ofstream out(next, std::ios::trunc);
    writeAll(out, root, commentsOf(*before));
    out.close();
    if (noted(out.good())) {
        std::filesystem::rename(next, file, error);
    }
    if (!out || error) {
        FileFailure::note(error.value());
        std::filesystem::remove(next, error);
        return false;
    }
    return true;
}

const KeyTree* findKey(const KeyTree& root, std::string_view path) {
    return find(root, path);
}

KeyTree* findKey(KeyTree& root, std::string_view path) {
    return find(root, path);
}

KeyTree& makeKey(KeyTree& root, std::string_view path) {
    const auto [name, rest] = splitPath(path);
    KeyTree& child = root.children[name];
    return rest.empty() ? child : makeKey(child, rest);
}

}  // namespace quillmark
