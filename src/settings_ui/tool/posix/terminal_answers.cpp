#include <histedit.h>
#include <langinfo.h>
#include <unistd.h>

#include <clocale>
#include <cstdio>
#include <string_view>

#include "settings_ui/tool/answer_source.h"

namespace quillmark {

namespace {

/// The library reads characters by the rules of the locale; the tool's texts are UTF-8.
void readUtf8() noexcept {
    const char* const users = setlocale(LC_CTYPE, "");
    if (users == nullptr || std::string_view(nl_langinfo(CODESET)) != "UTF-8") {
        setlocale(LC_CTYPE, "C.UTF-8");
    }
}

/// Answers that the user edits on the terminal. "Up" fetches the current value.
class TerminalAnswers final : public AnswerSource {
public:
    TerminalAnswers()
        : history_(history_init()), editor_(el_init("dochtml-settings", stdin, stdout, stderr)) {
        HistEvent event{};
        history(history_, &event, H_SETSIZE, 1);
        el_set(editor_, EL_CLIENTDATA, this);
        el_set(editor_, EL_PROMPT, &TerminalAnswers::promptOf);
        el_set(editor_, EL_EDITOR, "emacs");
        // Ctrl+C ends the tool, with the terminal as it was.
        el_set(editor_, EL_SIGNAL, 1);
        el_set(editor_, EL_HIST, history, history_);
    }
    TerminalAnswers(const TerminalAnswers&) = delete;
    TerminalAnswers& operator=(const TerminalAnswers&) = delete;
    ~TerminalAnswers() override {
        el_end(editor_);
        history_end(history_);
    }

    [[nodiscard]] std::optional<std::string> ask(const std::string& prompt,
                                                 const std::string& current) override {
        prompt_ = prompt;
        HistEvent event{};
        history(history_, &event, H_CLEAR);
        if (!current.empty()) {
            history(history_, &event, H_ENTER, current.c_str());
        }
        int length = 0;
        const char* const line = el_gets(editor_, &length);
        if (line == nullptr || length <= 0) {
            return std::nullopt;
        }
        std::string_view answer(line);
        answer.remove_suffix(answer.ends_with('\n') ? 1 : 0);
        return std::string(answer);
    }

private:
    static char* promptOf(EditLine* editor) {
        TerminalAnswers* self = nullptr;
        el_get(editor, EL_CLIENTDATA, &self);
        return self->prompt_.data();
    }

    std::string prompt_;
    History* history_;
    EditLine* editor_;
};

}  // namespace

std::unique_ptr<AnswerSource> makeTerminalAnswers() {
    if (isatty(STDIN_FILENO) != 1 || isatty(STDOUT_FILENO) != 1) {
        return nullptr;
    }
    readUtf8();
    return std::make_unique<TerminalAnswers>();
}

}  // namespace quillmark
