#include "replay/input/input_buffer.h"

#include <algorithm>

namespace quillmark::replay {

namespace {

constexpr std::size_t firstSize = std::size_t{256} * 1024;
constexpr std::size_t leastRoom = std::size_t{64} * 1024;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view whiteSpace = " \t\r\n";

}  // namespace

InputBuffer::InputBuffer(std::istream& input) : input_(input), bytes_(firstSize) {}

void InputBuffer::makeRoom() {
    if (begin_ > 0 && (begin_ == end_ || bytes_.size() - end_ <= leastRoom)) {
        std::copy(bytes_.begin() + static_cast<std::ptrdiff_t>(begin_),
                  bytes_.begin() + static_cast<std::ptrdiff_t>(end_), bytes_.begin());
        end_ -= begin_;
        begin_ = 0;
    }
    if (bytes_.size() - end_ <= leastRoom) {
        bytes_.resize(bytes_.size() * 2);
    }
}

bool InputBuffer::fill() {
    makeRoom();
    // Waits for one byte only and then takes whatever has arrived with it, so that input from a
    // pipe is not delayed.
    std::size_t count = 0;
    if (input_.peek() != std::istream::traits_type::eof()) {
        const auto room = static_cast<std::streamsize>(bytes_.size() - end_ - 1);
        const std::streamsize ready = std::max<std::streamsize>(input_.rdbuf()->in_avail(), 1);
        count = static_cast<std::size_t>(
            input_.rdbuf()->sgetn(bytes_.data() + end_, std::min(ready, room)));
    }
    end_ += count;
    bytes_[end_] = '\0';
    return count > 0;
}

InputFormat detectFormat(InputBuffer& input) {
    while (input.view().size() < byteOrderMark.size() && input.fill()) {
    }
    if (input.view().starts_with(byteOrderMark)) {
        input.drop(byteOrderMark.size());
    }
    std::size_t first = 0;
    while ((first = input.view().find_first_not_of(whiteSpace, first)) == std::string_view::npos) {
        first = input.view().size();
        if (!input.fill()) {
            return InputFormat::nothing;
        }
    }
    return input.view()[first] == '[' ? InputFormat::callStream : InputFormat::recording;
}

}  // namespace quillmark::replay
