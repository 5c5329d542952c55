#pragma once

#include <string_view>

namespace quillmark {

/// The JavaScript behind the locate buttons of the detail pages: `Locate(url, Obj, docmnt)`
/// selects in the applet's tree the entry of the nearest contents anchor in front of the button.
[[nodiscard]] std::string_view locateScript() noexcept;

}  // namespace quillmark
