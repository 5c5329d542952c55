#pragma once

#include <string>
#include <utility>
#include <vector>

namespace quillmark::manual {

/// The two halves of a model element's handle, as `insertMark` takes them.
struct Handle {
    int low = 0;
    int high = 0;
};

/// What the manual is about, as a model: it gives the contents entries their icons.
class Model {
public:
    /// The handle that stands for a collection of elements.
    static constexpr Handle collection{-1, -1};

    /// A new element of a word's kind: "interface", "package", "diagram", "setting", "style", or
    /// "operation", "opening" and "closing" for operations. Throws `std::runtime_error` for
    /// another word. "collection" makes no element.
    Handle add(const std::string& name, const std::string& word);

    /// The model as the replay tool reads it.
    [[nodiscard]] std::string json() const;

private:
    struct Element {
        int low;
        std::string metaclass;
        std::vector<std::pair<std::string, std::string>> attributes;
    };
    std::vector<Element> elements_;
};

}  // namespace quillmark::manual
