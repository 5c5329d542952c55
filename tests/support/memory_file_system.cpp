#include "support/memory_file_system.h"

#include <algorithm>
#include <utility>

#include "platform/files/path_text.h"
#include "platform/files/sys_directory.h"

namespace quillmark {

struct MemoryFileSystem::File {
    std::string bytes;
    std::uint64_t identity = 0;
    std::int64_t changes = 0;
};

namespace {

/// The parent of an absolute path. Empty for the root and for a drive.
std::string parentOf(const std::string& path) {
    return SysDirectory::getParentDirectory(path).str();
}

bool isTop(const std::string& path) {
    return path == "\\" || (path.size() == 2 && path_text::hasDrive(path));
}

}  // namespace

class MemoryFileSystem::Reader final : public InputFile {
public:
    Reader(MemoryFileSystem& owner, FilePtr file) : owner_(owner), file_(std::move(file)) {
        ++owner_.openFiles_;
    }
    ~Reader() override {
        const std::lock_guard lock(owner_.mutex_);
        --owner_.openFiles_;
    }
    Reader(const Reader&) = delete;
    Reader& operator=(const Reader&) = delete;

    std::size_t read(std::span<char> buffer) override {
        const std::lock_guard lock(owner_.mutex_);
        const std::size_t left = file_->bytes.size() - std::min(place_, file_->bytes.size());
        const std::size_t taken = std::min(left, buffer.size());
        std::copy_n(file_->bytes.data() + place_, taken, buffer.data());
        place_ += taken;
        return taken;
    }

private:
    MemoryFileSystem& owner_;
    FilePtr file_;
    std::size_t place_ = 0;
};

class MemoryFileSystem::Writer final : public OutputFile {
public:
    Writer(MemoryFileSystem& owner, FilePtr file, bool appends)
        : owner_(owner), file_(std::move(file)), appends_(appends) {
        ++owner_.openFiles_;
    }
    ~Writer() override { static_cast<void>(close()); }
    Writer(const Writer&) = delete;
    Writer& operator=(const Writer&) = delete;

    bool write(std::span<const std::string_view> pieces) override {
        const std::lock_guard lock(owner_.mutex_);
        for (const std::string_view piece : pieces) {
            std::string& bytes = file_->bytes;
            const std::size_t start = appends_ ? bytes.size() : place_;
            bytes.resize(std::max(bytes.size(), start + piece.size()));
            std::copy(piece.begin(), piece.end(),
                      bytes.begin() + static_cast<std::ptrdiff_t>(start));
            place_ = start + piece.size();
        }
        ++file_->changes;
        return true;
    }

    bool close() override {
        const std::lock_guard lock(owner_.mutex_);
        if (std::exchange(open_, false)) {
            --owner_.openFiles_;
        }
        return true;
    }

private:
    MemoryFileSystem& owner_;
    FilePtr file_;
    bool appends_;
    bool open_ = true;
    std::size_t place_ = 0;
};

/// Takes its name when it is closed.
class MemoryFileSystem::Replacement final : public OutputFile {
public:
    Replacement(MemoryFileSystem& owner, std::string path) : owner_(owner), path_(std::move(path)) {
        ++owner_.openFiles_;
    }
    ~Replacement() override {
        const std::lock_guard lock(owner_.mutex_);
        release();
    }
    Replacement(const Replacement&) = delete;
    Replacement& operator=(const Replacement&) = delete;

    bool write(std::span<const std::string_view> pieces) override {
        for (const std::string_view piece : pieces) {
            bytes_ += piece;
        }
        return true;
    }

    bool close() override {
        const std::lock_guard lock(owner_.mutex_);
        const FilePtr file = release() ? owner_.findOrMake(path_) : nullptr;
        if (file != nullptr) {
            file->bytes = std::move(bytes_);
            ++file->changes;
        }
        return file != nullptr;
    }

private:
    bool release() {
        owner_.openFiles_ -= open_ ? 1 : 0;
        return std::exchange(open_, false);
    }

    MemoryFileSystem& owner_;
    std::string path_;
    std::string bytes_;
    bool open_ = true;
};

MemoryFileSystem::MemoryFileSystem() = default;

bool MemoryFileSystem::fileExists(const OrxString& name) const {
    const std::lock_guard lock(mutex_);
    return find(resolve(name)) != nullptr;
}

bool MemoryFileSystem::directoryExists(const OrxString& name) const {
    const std::lock_guard lock(mutex_);
    return isDirectory(resolve(name));
}

std::optional<FileStamp> MemoryFileSystem::stamp(const OrxString& name) const {
    const std::lock_guard lock(mutex_);
    const FilePtr file = find(resolve(name));
    if (file == nullptr) {
        return std::nullopt;
    }
    return FileStamp{file->bytes.size(), file->changes, file->identity};
}

bool MemoryFileSystem::copyFile(const OrxString& source, const OrxString& target) {
    const std::lock_guard lock(mutex_);
    const FilePtr from = find(resolve(source));
    const FilePtr to = from == nullptr ? nullptr : findOrMake(resolve(target));
    if (to == nullptr) {
        return false;
    }
    if (to != from) {
        to->bytes = from->bytes;
        ++to->changes;
    }
    return true;
}

bool MemoryFileSystem::deleteFile(const OrxString& name) {
    const std::lock_guard lock(mutex_);
    const std::string path = resolve(name);
    return find(path) != nullptr && entries_.erase(path) == 1;
}

bool MemoryFileSystem::makeDirectories(const OrxString& name) {
    const std::lock_guard lock(mutex_);
    const std::string path = resolve(name);
    for (std::string above = path; !above.empty(); above = parentOf(above)) {
        if (find(above) != nullptr) {
            return false;
        }
    }
    addDirectory(path);
    return !path.empty();
}

bool MemoryFileSystem::setCurrentDirectory(const OrxString& name) {
    const std::lock_guard lock(mutex_);
    const std::string path = resolve(name);
    const bool there = isDirectory(path);
    if (there) {
        currentDirectory_ = path;
    }
    return there;
}

OrxString MemoryFileSystem::currentDirectory() const {
    const std::lock_guard lock(mutex_);
    return currentDirectory_;
}

std::unique_ptr<InputFile> MemoryFileSystem::openForReading(const OrxString& name) {
    const std::lock_guard lock(mutex_);
    const FilePtr file = find(resolve(name));
    return file != nullptr ? std::make_unique<Reader>(*this, file) : nullptr;
}

std::unique_ptr<OutputFile> MemoryFileSystem::openForWriting(const OrxString& name) {
    return openWriter(name, false);
}

std::unique_ptr<OutputFile> MemoryFileSystem::openForReplacing(const OrxString& name) {
    const std::lock_guard lock(mutex_);
    const std::string path = resolve(name);
    const bool possible = !path.empty() && !isDirectory(path) && isDirectory(parentOf(path));
    return possible ? std::make_unique<Replacement>(*this, path) : nullptr;
}

std::unique_ptr<OutputFile> MemoryFileSystem::openForAppending(const OrxString& name) {
    return openWriter(name, true);
}

bool MemoryFileSystem::replaceFile(const OrxString& source, const OrxString& target) {
    const std::lock_guard lock(mutex_);
    const std::string from = resolve(source);
    const std::string to = resolve(target);
    const FilePtr file = find(from);
    if (file == nullptr || to.empty() || isDirectory(to) || !isDirectory(parentOf(to))) {
        return false;
    }
    entries_.erase(from);
    entries_[to] = file;
    return true;
}

void MemoryFileSystem::put(const OrxString& name, std::string bytes) {
    const std::lock_guard lock(mutex_);
    const std::string path = resolve(name);
    addDirectory(parentOf(path));
    const FilePtr file = findOrMake(path);
    file->bytes = std::move(bytes);
    ++file->changes;
}

std::optional<std::string> MemoryFileSystem::content(const OrxString& name) const {
    const std::lock_guard lock(mutex_);
    const FilePtr file = find(resolve(name));
    return file != nullptr ? std::optional(file->bytes) : std::nullopt;
}

std::vector<std::string> MemoryFileSystem::fileNames() const {
    const std::lock_guard lock(mutex_);
    std::vector<std::string> names;
    for (const auto& [path, file] : entries_) {
        if (file != nullptr) {
            names.push_back(path);
        }
    }
    return names;
}

int MemoryFileSystem::openFiles() const {
    const std::lock_guard lock(mutex_);
    return openFiles_;
}

/// The absolute path without "." and "..". Empty for a name that cannot exist.
std::string MemoryFileSystem::resolve(const OrxString& name) const {
    if (name.isEmpty() || path_text::hasZero(name)) {
        return {};
    }
    const OrxString absolute = SysDirectory::getSpecificPath(currentDirectory_, name);
    std::vector<std::string_view> kept;
    for (const std::string_view component : path_text::components(absolute)) {
        if (component == "..") {
            kept.resize(std::max<std::size_t>(kept.size(), 2) - 1);
        } else if (component != ".") {
            kept.push_back(component);
        }
    }
    std::string path;
    for (const std::string_view component : kept) {
        path.append(path.empty() || path == "\\" ? "" : "\\").append(component);
    }
    return path;
}

MemoryFileSystem::FilePtr MemoryFileSystem::find(const std::string& path) const {
    const auto entry = entries_.find(path);
    return entry != entries_.end() ? entry->second : nullptr;
}

bool MemoryFileSystem::isDirectory(const std::string& path) const {
    const auto entry = entries_.find(path);
    return isTop(path) || (entry != entries_.end() && entry->second == nullptr);
}

MemoryFileSystem::FilePtr MemoryFileSystem::findOrMake(const std::string& path) {
    FilePtr file = find(path);
    if (file == nullptr && !path.empty() && !isDirectory(path) && isDirectory(parentOf(path))) {
        file = std::make_shared<File>();
        file->identity = ++lastIdentity_;
        entries_[path] = file;
    }
    return file;
}

void MemoryFileSystem::addDirectory(const std::string& path) {
    for (std::string dir = path; !dir.empty() && !isTop(dir); dir = parentOf(dir)) {
        entries_.emplace(dir, nullptr);
    }
}

std::unique_ptr<OutputFile> MemoryFileSystem::openWriter(const OrxString& name, bool keepBytes) {
    const std::lock_guard lock(mutex_);
    const FilePtr file = findOrMake(resolve(name));
    if (file == nullptr) {
        return nullptr;
    }
    if (!keepBytes) {
        file->bytes.clear();
        ++file->changes;
    }
    return std::make_unique<Writer>(*this, file, keepBytes);
}

}  // namespace quillmark
