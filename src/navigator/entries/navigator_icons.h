#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "contents/entries/contents_entry_list.h"
#include "foundation/orx_string.h"
#include "platform/trace.h"

namespace quillmark {

/// The pictures of the entries, as loose files in the navigator's directory.
class NavigatorIcons {
public:
    /// Where pictures are looked for, in this order. An empty one is passed over.
    using Sources = std::vector<OrxString>;

    /// Copies every picture in use into `directory`, which is made when there is one.
    NavigatorIcons(const ContentsEntryList& entries, const Sources& sources,
                   const OrxString& directory, const Trace& trace);

    /// The names of the copied pictures, in the order of their first use.
    [[nodiscard]] const std::vector<std::string>& names() const noexcept { return names_; }
    /// The place of a name in `names`, counted from 1; 0 for none.
    [[nodiscard]] std::uint32_t numberOf(std::string_view name) const;

private:
    void add(std::string_view name, const Sources& sources, const OrxString& directory,
             const Trace& trace);

    std::vector<std::string> names_;
    std::map<std::string, std::uint32_t, std::less<>> numbers_;
};

}  // namespace quillmark
