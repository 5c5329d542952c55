#include "replay/input/host_files/host_file.h"

#include <array>
#include <cerrno>
#include <fstream>
#include <system_error>

#include "replay/input/bad_input.h"

namespace quillmark::replay {

namespace {

[[noreturn]] void refuse(std::string_view shown, const std::string& reason) {
    throw BadInput("cannot read " + std::string(shown) + (reason.empty() ? "" : ": " + reason));
}

}  // namespace

void refuseFile(std::string_view shown) {
    refuse(shown, errno != 0 ? std::generic_category().message(errno) : std::string());
}

void checkRegularFile(const std::filesystem::path& file, std::string_view shown) {
    std::error_code failure;
    const std::filesystem::file_status status = std::filesystem::status(file, failure);
    if (status.type() == std::filesystem::file_type::not_found) {
        refuse(shown, std::make_error_code(std::errc::no_such_file_or_directory).message());
    }
    if (failure) {
        refuse(shown, failure.message());
    }
    if (!std::filesystem::is_regular_file(status)) {
        refuse(shown, "not a regular file");
    }
}

std::string readHostFile(const std::filesystem::path& file, std::string_view shown) {
    checkRegularFile(file, shown);
    errno = 0;
    std::ifstream input(file, std::ios::binary);
    std::string bytes;
    std::array<char, 65536> piece{};
    while (input.read(piece.data(), piece.size()) || input.gcount() > 0) {
        bytes.append(piece.data(), static_cast<std::size_t>(input.gcount()));
    }
    // A failed read sets the bad bit; the end of the file does not.
    if (!input.is_open() || input.bad()) {
        refuseFile(shown);
    }
    return bytes;
}

}  // namespace quillmark::replay
