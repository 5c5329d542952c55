#include "platform/posix/descriptor_io.h"

#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/uio.h>

#include <algorithm>
#include <array>

#include "platform/posix/uninterrupted.h"

namespace quillmark::descriptor_io {

namespace {

/// Moves `vectors` behind the `written` bytes that are done.
std::span<iovec> behind(std::span<iovec> vectors, std::size_t written) noexcept {
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
    vectors = behind(vectors, 0);
    while (!vectors.empty()) {
        const ssize_t written = uninterrupted(
            [&] { return writev(number, vectors.data(), static_cast<int>(vectors.size())); });
        if (written <= 0) {
            return false;
        }
        vectors = behind(vectors, static_cast<std::size_t>(written));
    }
    return true;
}

enum class Copied { whole, nothing, part };

/// How much one system call is asked to move at once.
constexpr std::size_t portion = std::size_t{1} << 30U;

/// Lets a system call move the bytes until it reports the end. A call that moves nothing at all
/// says nothing: some file systems answer 0 where they do not know how.
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
    constexpr mode_t everybodyAsFarAsTheMaskAllows = 0666;
    return Descriptor(uninterrupted(
        [&] { return open(path, flags | O_CLOEXEC, everybodyAsFarAsTheMaskAllows); }));
}

bool writeAll(const Descriptor& file, std::span<const std::string_view> pieces) noexcept {
    constexpr std::size_t batch = 256;
    std::array<iovec, batch> vectors{};
    while (!pieces.empty()) {
        const std::size_t count = std::min(batch, pieces.size());
        for (std::size_t i = 0; i < count; ++i) {
            // The system's structure serves reading too and so has no const.
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
    // Each way goes on where the one before it stopped: both files keep their own places.
    const bool done =
        copyWith([&] { return copy_file_range(from, nullptr, to, nullptr, portion, 0); }) ==
            Copied::whole ||
        copyWith([&] { return sendfile(to, from, nullptr, portion); }) == Copied::whole;
    return done || copyThroughBuffer(source, target);
}

}  // namespace quillmark::descriptor_io
