#include "common/work_places.h"

#include <malloc.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

namespace quillmark::bench {

namespace {

namespace fs = std::filesystem;

fs::path rootOf(const char* variable, const fs::path& otherwise) {
    const char* named = std::getenv(variable);
    return (named != nullptr ? fs::path(named) : otherwise) /
           ("dochtml-bench-" + std::to_string(::getpid()));
}

/// The directories of one place; gone when the program ends.
class WorkPlace {
public:
    explicit WorkPlace(fs::path root) : root_(std::move(root)) {}
    WorkPlace(const WorkPlace&) = delete;
    WorkPlace& operator=(const WorkPlace&) = delete;
    ~WorkPlace() {
        std::error_code ignored;
        fs::remove_all(root_, ignored);
    }

    fs::path next() {
        fs::path directory = root_ / std::to_string(++count_);
        fs::create_directories(directory);
        return directory;
    }

private:
    fs::path root_;
    int count_ = 0;
};

}  // namespace

fs::path freshDirectory(Place place) {
    static WorkPlace disk(rootOf("DOCHTML_BENCH_DISK", fs::current_path()));
    static WorkPlace memory(rootOf("DOCHTML_BENCH_MEMORY", "/dev/shm"));
    return (place == Place::disk ? disk : memory).next();
}

void settle(Place place) {
    ::malloc_trim(0);
    if (place == Place::disk) {
        ::sync();
    }
}

}  // namespace quillmark::bench
