#include "settings_ui/tool/terminal_host.h"

namespace quillmark {

void TerminalHost::showMessage(const OrxString& text, const OrxString& title) {
    errors_ << title << ": " << text << '\n' << std::flush;
}

}  // namespace quillmark
