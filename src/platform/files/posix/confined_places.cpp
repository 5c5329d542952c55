#include "platform/files/posix/confined_places.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <string_view>
#include <system_error>
#include <utility>

#include "platform/files/posix/descriptor_io.h"
#include "platform/files/posix/uninterrupted.h"

namespace quillmark {

namespace {

constexpr mode_t fullAccess = 0777;

/// The components of an absolute path, without "." and "..".
std::vector<std::string> componentsOf(std::string_view path) {
    std::vector<std::string> components;
    while (!path.empty()) {
        const std::size_t end = std::min(path.find('/'), path.size());
        const std::string_view component = path.substr(0, end);
        path.remove_prefix(std::min(end + 1, path.size()));
        if (component == "..") {
            if (!components.empty()) {
                components.pop_back();
            }
        } else if (!component.empty() && component != ".") {
            components.emplace_back(component);
        }
    }
    return components;
}

/// The current directory comes from the system, so it has no links in it.
std::string absolutePath(const std::string& path) {
    if (path.empty() || path.starts_with('/')) {
        return path;
    }
    std::error_code failure;
    const std::filesystem::path directory = std::filesystem::current_path(failure);
    return failure ? std::string() : directory.string() + "/" + path;
}

Descriptor openDirectory(const Descriptor& parent, const std::string& name) noexcept {
    return Descriptor(uninterrupted([&] {
        return openat(parent.number(), name.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    }));
}

bool isLink(const Descriptor& parent, const std::string& name) noexcept {
    struct stat status {};
    return fstatat(parent.number(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) == 0 &&
           S_ISLNK(status.st_mode);
}

}  // namespace

ConfinedPlaces::ConfinedPlaces(const std::vector<std::string>& names) {
    std::ranges::for_each(names, [this](const std::string& name) { add(name); });
}

void ConfinedPlaces::add(const std::string& name) {
    const std::string absolute = absolutePath(name);
    if (absolute.empty()) {
        return;
    }
    Descriptor directory = descriptor_io::openFile(absolute.c_str(), O_PATH | O_DIRECTORY);
    if (!directory.isOpen()) {
        addFile(absolute);
        return;
    }
    std::error_code failure;
    const std::filesystem::path real = std::filesystem::canonical(absolute, failure);
    Descriptor again = descriptor_io::openFile(absolute.c_str(), O_PATH | O_DIRECTORY);
    roots_.push_back({componentsOf(absolute), std::move(directory), {}});
    // The system names the current directory by its real path.
    if (!failure && componentsOf(real.string()) != roots_.back().name) {
        roots_.push_back({componentsOf(real.string()), std::move(again), {}});
    }
}

void ConfinedPlaces::addFile(const std::string& absolute) {
    // The user named the file itself, so a link to it is followed once, here.
    std::error_code failure;
    const std::filesystem::path real = std::filesystem::weakly_canonical(absolute, failure);
    const std::filesystem::path file = failure ? std::filesystem::path(absolute) : real;
    Descriptor directory =
        descriptor_io::openFile(file.parent_path().c_str(), O_PATH | O_DIRECTORY);
    if (directory.isOpen()) {
        roots_.push_back({componentsOf(absolute), std::move(directory), file.filename().string()});
    }
}

std::optional<ConfinedPlaces::Hit> ConfinedPlaces::rootOf(const std::string& path) const {
    const std::string absolute = absolutePath(path);
    if (absolute.empty()) {
        return std::nullopt;
    }
    const Components wanted = componentsOf(absolute);
    const Root* nearest = nullptr;
    for (const Root& root : roots_) {
        const bool isBelow = root.name.size() <= wanted.size() &&
                             std::equal(root.name.begin(), root.name.end(), wanted.begin());
        const bool isAll = root.onlyFile.empty() || root.name.size() == wanted.size();
        const bool isNearer = nearest == nullptr || nearest->name.size() < root.name.size();
        nearest = isBelow && isAll && isNearer ? &root : nearest;
    }
    if (nearest == nullptr) {
        return std::nullopt;
    }
    const auto rest = static_cast<std::ptrdiff_t>(nearest->name.size());
    return Hit{nearest, Components(wanted.begin() + rest, wanted.end())};
}

bool ConfinedPlaces::contain(const std::string& path) const {
    return rootOf(path).has_value();
}

ConfinedPlace ConfinedPlaces::find(const std::string& path) const {
    std::optional<Hit> hit = rootOf(path);
    if (!hit) {
        return {};
    }
    ConfinedPlace place{openDirectory(hit->root->directory, "."), ".", false, 0};
    if (!hit->root->onlyFile.empty()) {
        place.name = hit->root->onlyFile;
    }
    for (std::size_t i = 0; i < hit->below.size(); ++i) {
        place.name = hit->below[i];
        if (i + 1 < hit->below.size()) {
            Descriptor next = openDirectory(place.parent, place.name);
            place.failure = next.isOpen() ? 0 : errno;
            place.behindLink = !next.isOpen() && isLink(place.parent, place.name);
            place.parent = std::move(next);
        }
        if (!place.isOpen()) {
            return place;
        }
    }
    place.behindLink = isLink(place.parent, place.name);
    return place;
}

bool ConfinedPlaces::makeDirectories(const std::string& path) const {
    const std::optional<Hit> hit = rootOf(path);
    if (!hit || !hit->root->onlyFile.empty()) {
        return false;
    }
    Descriptor directory = openDirectory(hit->root->directory, ".");
    for (const std::string& name : hit->below) {
        if (!directory.isOpen()) {
            return false;
        }
        if (mkdirat(directory.number(), name.c_str(), fullAccess) != 0 && errno != EEXIST) {
            return false;
        }
        directory = openDirectory(directory, name);
    }
    return directory.isOpen();
}

}  // namespace quillmark
