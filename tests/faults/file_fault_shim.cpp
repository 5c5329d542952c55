// Loaded in front of the C library: makes one file operation of a program fail.
//
//   FILE_FAULT_ROOT   only files below that directory, and relative names, are counted
//   FILE_FAULT        KIND:N:ERRNO, the N-th operation of that kind fails with that error; the
//   error
//                     0 lets a write take only half of its bytes
//   FILE_FAULT_COUNT  a file that gets the number of operations of every kind
//
// Kinds: open read write close rename stat mkdir unlink copy truncate.

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/sendfile.h>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

enum Kind {
    opening,
    reading,
    writing,
    closing,
    renaming,
    looking,
    making,
    removing,
    copying,
    cutting
};
constexpr std::array<const char*, 10> kindNames = {"open", "read",  "write",  "close", "rename",
                                                   "stat", "mkdir", "unlink", "copy",  "truncate"};

std::array<std::atomic<int>, kindNames.size()> counts{};
std::array<std::atomic<bool>, 4096> isCountedFile{};

template <typename Function>
Function real(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

struct Plan {
    int kind = -1;
    int number = 0;
    int error = 0;

    Plan() {
        const char* const text = std::getenv("FILE_FAULT");
        std::array<char, 16> name{};
        if (text != nullptr &&
            std::sscanf(text, "%15[a-z]:%d:%d", name.data(), &number, &error) == 3) {
            for (std::size_t i = 0; i < kindNames.size(); ++i) {
                kind = std::strcmp(kindNames.at(i), name.data()) == 0 ? static_cast<int>(i) : kind;
            }
        }
    }
};

const Plan& plan() {
    static const Plan instance;
    return instance;
}

bool isCounted(const char* path) {
    static const char* const root = std::getenv("FILE_FAULT_ROOT");
    return root != nullptr && path != nullptr &&
           (path[0] != '/' || std::strncmp(path, root, std::strlen(root)) == 0);
}

bool isCounted(int file) {
    return file >= 0 && file < static_cast<int>(isCountedFile.size()) &&
           isCountedFile.at(static_cast<std::size_t>(file));
}

/// Counts an operation. True if it is the one that fails; then `errno` is set.
bool fails(Kind kind) {
    const bool hit = ++counts.at(kind) == plan().number && plan().kind == kind;
    if (hit) {
        errno = plan().error;
    }
    return hit;
}

int opened(int file) {
    if (file >= 0 && file < static_cast<int>(isCountedFile.size())) {
        isCountedFile.at(static_cast<std::size_t>(file)) = true;
    }
    return file;
}

/// True if the operation on the path fails.
bool failsAt(Kind kind, const char* path) {
    return isCounted(path) && fails(kind);
}

bool failsAt(Kind kind, int file) {
    return isCounted(file) && fails(kind);
}

struct CountWriter {
    ~CountWriter() {
        const char* const name = std::getenv("FILE_FAULT_COUNT");
        const int file = name == nullptr ? -1
                                         : real<int (*)(const char*, int, ...)>("open")(
                                               name, O_WRONLY | O_CREAT | O_TRUNC, 0600);
        for (std::size_t i = 0; file >= 0 && i < kindNames.size(); ++i) {
            dprintf(file, "%s %d\n", kindNames.at(i), counts.at(i).load());
        }
    }
} countWriter;

bool isShort(Kind kind) {
    return plan().kind == kind && plan().error == 0;
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    static const auto next = real<int (*)(const char*, int, ...)>("open");
    if (!isCounted(path)) {
        return next(path, flags, mode);
    }
    return fails(opening) ? -1 : opened(next(path, flags, mode));
}

int open64(const char* path, int flags, ...) {
    va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    return open(path, flags, mode);
}

FILE* fopen(const char* path, const char* mode) {
    static const auto next = real<FILE* (*)(const char*, const char*)>("fopen");
    if (!isCounted(path)) {
        return next(path, mode);
    }
    FILE* const file = fails(opening) ? nullptr : next(path, mode);
    if (file != nullptr) {
        opened(fileno(file));
    }
    return file;
}

FILE* fopen64(const char* path, const char* mode) {
    return fopen(path, mode);
}

ssize_t read(int file, void* buffer, size_t size) {
    static const auto next = real<ssize_t (*)(int, void*, size_t)>("read");
    return failsAt(reading, file) ? -1 : next(file, buffer, size);
}

ssize_t write(int file, const void* buffer, size_t size) {
    static const auto next = real<ssize_t (*)(int, const void*, size_t)>("write");
    if (failsAt(writing, file)) {
        return isShort(writing) ? next(file, buffer, (size + 1) / 2) : -1;
    }
    return next(file, buffer, size);
}

ssize_t writev(int file, const iovec* vectors, int count) {
    static const auto next = real<ssize_t (*)(int, const iovec*, int)>("writev");
    if (failsAt(writing, file)) {
        static const auto plain = real<ssize_t (*)(int, const void*, size_t)>("write");
        return isShort(writing) && count > 0
                   ? plain(file, vectors[0].iov_base, (vectors[0].iov_len + 1) / 2)
                   : -1;
    }
    return next(file, vectors, count);
}

int close(int file) {
    static const auto next = real<int (*)(int)>("close");
    const bool failed = failsAt(closing, file);
    const int error = errno;
    if (isCounted(file)) {
        isCountedFile.at(static_cast<std::size_t>(file)) = false;
    }
    const int result = next(file);
    errno = failed ? error : errno;
    return failed ? -1 : result;
}

int fclose(FILE* stream) {
    static const auto next = real<int (*)(FILE*)>("fclose");
    const int file = fileno(stream);
    const bool failed = failsAt(closing, file);
    const int error = errno;
    if (isCounted(file)) {
        isCountedFile.at(static_cast<std::size_t>(file)) = false;
    }
    const int result = next(stream);
    errno = failed ? error : errno;
    return failed ? EOF : result;
}

int rename(const char* from, const char* to) {
    static const auto next = real<int (*)(const char*, const char*)>("rename");
    return failsAt(renaming, to) ? -1 : next(from, to);
}

int stat(const char* path, struct stat* status) {
    static const auto next = real<int (*)(const char*, struct stat*)>("stat");
    return failsAt(looking, path) ? -1 : next(path, status);
}

int stat64(const char* path, struct stat64* status) {
    static const auto next = real<int (*)(const char*, struct stat64*)>("stat64");
    return failsAt(looking, path) ? -1 : next(path, status);
}

int lstat(const char* path, struct stat* status) {
    static const auto next = real<int (*)(const char*, struct stat*)>("lstat");
    return failsAt(looking, path) ? -1 : next(path, status);
}

int fstat(int file, struct stat* status) {
    static const auto next = real<int (*)(int, struct stat*)>("fstat");
    return failsAt(looking, file) ? -1 : next(file, status);
}

int mkdir(const char* path, mode_t mode) {
    static const auto next = real<int (*)(const char*, mode_t)>("mkdir");
    return failsAt(making, path) ? -1 : next(path, mode);
}

int unlink(const char* path) {
    static const auto next = real<int (*)(const char*)>("unlink");
    return failsAt(removing, path) ? -1 : next(path);
}

ssize_t copy_file_range(int from, off64_t* fromPlace, int to, off64_t* toPlace, size_t size,
                        unsigned flags) {
    static const auto next =
        real<ssize_t (*)(int, off64_t*, int, off64_t*, size_t, unsigned)>("copy_file_range");
    return failsAt(copying, from) ? -1 : next(from, fromPlace, to, toPlace, size, flags);
}

ssize_t sendfile(int to, int from, off_t* place, size_t size) {
    static const auto next = real<ssize_t (*)(int, int, off_t*, size_t)>("sendfile");
    return failsAt(copying, from) ? -1 : next(to, from, place, size);
}

int ftruncate(int file, off_t size) {
    static const auto next = real<int (*)(int, off_t)>("ftruncate");
    return failsAt(cutting, file) ? -1 : next(file, size);
}

}  // extern "C"
