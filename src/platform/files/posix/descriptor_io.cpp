#include "platform/files/posix/descriptor_io.h"

#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/uio.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>

#include "platform/files/posix/uninterrupted.h"

namespace quillmark::descriptor_io {

namespace {

/// The part of `vectors` after the first `written` bytes.
std::span<iovec> rest(std::span<iovec> vectors, std::size_t written) noexcept {
    while (!vectors.empty() && written >= vectors.front().iov_len) {
        written -= vectors.front().iov_len;
        vectors = vectors.subspan(1);
    }
    if (!vectors.empty()) {
        vectors.front().iov_base = static_cast<char*>(vectors.front().iov_base) + written;
        vectors.front().iov_len -= written;
    }
    return vectors;
}

bool writeVectors(int number, std::span<iovec> vectors) noexcept {
    vectors = rest(vectors, 0);
    while (!vectors.empty()) {
        const ssize_t written = uninterrupted(
            [&] { return writev(number, vectors.data(), static_cast<int>(vectors.size())); });
        if (written <= 0) {
            return false;
        }
        vectors = rest(vectors, static_cast<std::size_t>(written));
    }
    return true;
}

enum class Copied { whole, nothing, part };

/// The largest number of bytes to move with one system call.
constexpr std::size_t portion = std::size_t{1} << 30U;

/// Repeats a system call that moves bytes until it reports the end. If it moves nothing at all, the
/// file may still have content: some file systems return 0 when they do not support the call.
template <typename Call>
Copied copyWith(Call call) noexcept {
    Copied result = Copied::nothing;
    for (;;) {
        const ssize_t moved = uninterrupted(call);
        if (moved == 0) {
            return result == Copied::part ? Copied::whole : result;
        }
        if (moved < 0) {
            return result;
        }
        result = Copied::part;
    }
}

bool copyThroughBuffer(const Descriptor& source, const Descriptor& target) noexcept {
    std::array<char, 65536> buffer{};
    for (;;) {
        const long taken = readSome(source, buffer);
        if (taken <= 0) {
            return taken == 0;
        }
        const std::string_view piece(buffer.data(), static_cast<std::size_t>(taken));
        if (!writeAll(target, {&piece, 1})) {
            return false;
        }
    }
}

}  // namespace

Descriptor openFile(const char* path, int flags) noexcept {
    return openFileIn({}, path, flags);
}

Descriptor openFileIn(const Descriptor& directory, const char* name, int flags) noexcept {
    constexpr mode_t readableAndWritable = 0666;
    if (!directory.isOpen()) {
        return Descriptor(
            uninterrupted([&] { return open(name, flags | O_CLOEXEC, readableAndWritable); }));
    }
    return Descriptor(uninterrupted([&] {
        return openat(directory.number(), name, flags | O_NOFOLLOW | O_CLOEXEC,
                      readableAndWritable);
    }));
}

std::optional<struct stat> statusIn(const Descriptor& directory, const char* name) noexcept {
    struct stat status {};
    const bool known = directory.isOpen()
                           ? fstatat(directory.number(), name, &status, AT_SYMLINK_NOFOLLOW) == 0
                           : stat(name, &status) == 0;
    return known ? std::optional(status) : std::nullopt;
}

bool renameIn(const Descriptor& directory, const std::string& from,
              const std::string& to) noexcept {
    const int place = directory.number();
    return directory.isOpen() ? renameat(place, from.c_str(), place, to.c_str()) == 0
                              : std::rename(from.c_str(), to.c_str()) == 0;
}

bool removeIn(const Descriptor& directory, const std::string& name) noexcept {
    return directory.isOpen() ? unlinkat(directory.number(), name.c_str(), 0) == 0
                              : unlink(name.c_str()) == 0;
}

bool writeAll(const Descriptor& file, std::span<const std::string_view> pieces) noexcept {
    constexpr std::size_t batch = 256;
    std::array<iovec, batch> vectors{};
    while (!pieces.empty()) {
        const std::size_t count = std::min(batch, pieces.size());
        for (std::size_t i = 0; i < count; ++i) {
            // The system uses this structure for reading too, so its pointer is not const.
            // NOLINTNEXTLINE(cppcoreguidelines-pro-type-const-cast)
            vectors[i] = {const_cast<char*>(pieces[i].data()), pieces[i].size()};
        }
        if (!writeVectors(file.number(), {vectors.data(), count})) {
            return false;
        }
        pieces = pieces.subspan(count);
    }
    return true;
}

long readSome(const Descriptor& file, std::span<char> buffer) noexcept {
    return uninterrupted([&] { return read(file.number(), buffer.data(), buffer.size()); });
}

bool copyAll(const Descriptor& source, const Descriptor& target) noexcept {
    const int from = source.number();
    const int to = target.number();
    // Each method continues where the one before stopped, because both files keep their positions.
    const bool done =
        copyWith([&] { return copy_file_range(from, nullptr, to, nullptr, portion, 0); }) ==
            Copied::whole ||
        copyWith([&] { return sendfile(to, from, nullptr, portion); }) == Copied::whole;
    return done || copyThroughBuffer(source, target);
}

}  // namespace quillmark::descriptor_io
