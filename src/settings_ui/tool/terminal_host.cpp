#include "settings_ui/tool/terminal_host.h"

#include "platform/sys_text.h"

namespace quillmark {

void TerminalHost::showMessage(const OrxString& text, const OrxString& title) {
    errors_ << SysText::toUtf8(title) << ": " << SysText::toUtf8(text) << '\n' << std::flush;
}

}  // namespace quillmark
