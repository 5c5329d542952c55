#pragma once

#include <string_view>

namespace quillmark {

/// The JavaScript that the locate buttons of the detail pages call. `Locate(url, Obj, docmnt)`
/// finds the last contents anchor before the button and selects its entry in the applet's tree.
[[nodiscard]] std::string_view locateScript() noexcept;

}  // namespace quillmark
