#pragma once

#include <string>

namespace quillmark {

/// The line of the static listing that links to `href`.
inline std::string entry(const std::string& href, const std::string& text) {
    return "<A HREF=\"" + href + "\">" + text + "</a><BR>\n";
}

}  // namespace quillmark
