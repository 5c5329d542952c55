#include "replay/input/input_buffer.h"

#include <algorithm>
#include <cstdlib>
#include <new>

namespace quillmark::replay {

namespace {

constexpr std::size_t firstSize = std::size_t{256} * 1024;
constexpr std::size_t leastRoom = std::size_t{64} * 1024;
constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view whiteSpace = " \t\r\n";

}  // namespace

void InputBuffer::Bytes::Free::operator()(char* memory) const noexcept {
    // NOLINTNEXTLINE(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory): see grow
    std::free(memory);
}

void InputBuffer::Bytes::grow(std::size_t size) {
    // Nothing else grows without a copy.
    // NOLINTNEXTLINE(cppcoreguidelines-no-malloc,cppcoreguidelines-owning-memory)
    void* const grown = std::realloc(memory_.get(), size);
    if (grown == nullptr) {
        throw std::bad_alloc();
    }
    static_cast<void>(memory_.release());
    memory_.reset(static_cast<char*>(grown));
    size_ = size;
}

InputBuffer::InputBuffer(std::istream& input) : input_(input) {
    bytes_.grow(firstSize);
}

void InputBuffer::makeRoom() {
    if (begin_ > 0 && (begin_ == end_ || bytes_.size() - end_ <= leastRoom)) {
        std::copy(bytes_.data() + begin_, bytes_.data() + end_, bytes_.data());
        end_ -= begin_;
        begin_ = 0;
    }
    if (bytes_.size() - end_ <= leastRoom) {
        bytes_.grow(bytes_.size() * 2);
    }
}

bool InputBuffer::fill() {
    makeRoom();
    // Waits for one byte only and then takes whatever has arrived with it, so that input from a
    // pipe is not delayed.
    std::size_t count = 0;
    if (input_.peek() != std::istream::traits_type::eof()) {
        // With a very long line the buffer may have room for all that follows it, too.
        const std::size_t room = std::min(bytes_.size() - end_ - 1, firstSize);
        const auto wanted = static_cast<std::streamsize>(room);
        const std::streamsize ready = std::max<std::streamsize>(input_.rdbuf()->in_avail(), 1);
        count = static_cast<std::size_t>(
            input_.rdbuf()->sgetn(bytes_.data() + end_, std::min(ready, wanted)));
    }
    end_ += count;
    bytes_.data()[end_] = '\0';
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
