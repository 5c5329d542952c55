#pragma once

#include <algorithm>
#include <cstddef>
#include <vector>

namespace quillmark {

/// Makes room for one more element, growing as the vector itself does. The next `push_back` or
/// `emplace_back` of an element that does not throw cannot fail then. With it a structure of
/// several parts gets all its memory before it changes the first part.
template <typename Element>
void makeRoomForOne(std::vector<Element>& elements) {
    if (elements.size() == elements.capacity()) {
        elements.reserve(std::max(std::size_t{1}, elements.size() * 2));
    }
}

}  // namespace quillmark
