// The command "edit" at a terminal, with the keys that edit a line.
#ifndef _WIN32

#include <gtest/gtest.h>
#include <poll.h>
#include <pty.h>
#include <sys/wait.h>
#include <termios.h>
#include <unistd.h>

#include <array>
#include <csignal>
#include <cstdlib>
#include <string>

#include "settings_ui/settings_tool_fixture.h"

namespace quillmark {

namespace {

constexpr const char* left = "\x1B[D";
constexpr const char* up = "\x1B[A";
constexpr const char* backspace = "\x7F";
constexpr const char* ctrlC = "\x03";
constexpr const char* ctrlD = "\x04";

/// The tool with a terminal that belongs to the test.
class AtATerminal : public SettingsToolTest {
protected:
    ~AtATerminal() override {
        if (child_ > 0) {
            kill(child_, SIGKILL);
            waitpid(child_, nullptr, 0);
        }
        close(terminal_);
    }

    void start(const char* locale = "C.UTF-8") {
        const std::string place = store();
        child_ = forkpty(&terminal_, nullptr, nullptr, nullptr);
        if (child_ == 0) {
            setenv("TERM", "xterm", 1);
            setenv("LC_ALL", locale, 1);
            execl(DOCHTML_SETTINGS_PROGRAM, "dochtml-settings", "--settings", place.c_str(), "edit",
                  nullptr);
            _exit(127);
        }
        ASSERT_GT(child_, 0);
    }
    /// Waits for a question, then types.
    void answer(const std::string& question, const std::string& keys) {
        while (shown_.find(question) == std::string::npos) {
            std::array<char, 4096> buffer{};
            pollfd ready{terminal_, POLLIN, 0};
            constexpr int milliseconds = 30'000;
            ASSERT_EQ(poll(&ready, 1, milliseconds), 1)
                << "no \"" << question << "\" in: " << shown_;
            const ssize_t size = read(terminal_, buffer.data(), buffer.size());
            ASSERT_GT(size, 0) << "no \"" << question << "\" in: " << shown_;
            shown_.append(buffer.data(), static_cast<std::size_t>(size));
        }
        shown_.clear();
        waitForEditor();
        ASSERT_EQ(::write(terminal_, keys.data(), keys.size()), static_cast<ssize_t>(keys.size()));
    }
    /// What `waitpid` says of the ended tool.
    int status() {
        std::array<char, 4096> buffer{};
        while (read(terminal_, buffer.data(), buffer.size()) > 0) {
        }
        int result = 0;
        waitpid(child_, &result, 0);
        child_ = -1;
        return result;
    }

private:
    /// Until the tool reads keys, the system itself would act on some of them.
    void waitForEditor() const {
        termios state{};
        for (int i = 0; i < 30'000; ++i) {
            ASSERT_EQ(tcgetattr(terminal_, &state), 0);
            if ((state.c_lflag & static_cast<tcflag_t>(ICANON)) == 0) {
                return;
            }
            usleep(1000);
        }
        FAIL() << "the tool does not read keys";
    }

    pid_t child_ = -1;
    int terminal_ = -1;
    std::string shown_;
};

TEST_F(AtATerminal, TheCursorMovesInTheAnswer) {
    start();
    answer("Images directory [pix]: ",
           std::string("imxages") + left + left + left + left + backspace + "\r");
    answer("documents directory [docs]: ", ctrlD);
    EXPECT_EQ(status(), 0);
    EXPECT_EQ(kept(), "[Html]\nHtmlPixDir=images\n");
}

TEST_F(AtATerminal, TheUpKeyFetchesTheValue) {
    start();
    answer("Images directory [pix]: ", "\r");
    answer("documents directory [docs]: ", std::string(up) + "2\r");
    answer("Style sheet [", ctrlD);
    EXPECT_EQ(status(), 0);
    EXPECT_EQ(kept(), "[Html]\nExternalDocDir=docs2\n");
}

TEST_F(AtATerminal, LettersAreUtf8InEveryLocale) {
    for (const char* const locale : {"C.UTF-8", "C"}) {
        keep("");
        start(locale);
        answer("Images directory [pix]: ", std::string("caf\xC3\xA9\xC3\xA8") + backspace + "\r");
        answer("documents directory [docs]: ", ctrlD);
        EXPECT_EQ(status(), 0);
        EXPECT_EQ(kept(), "[Html]\nHtmlPixDir=caf\xC3\xA9\n") << locale;
    }
}

TEST_F(AtATerminal, CtrlCCancels) {
    start();
    answer("Images directory [pix]: ", "images\r");
    answer("documents directory [docs]: ", ctrlC);
    EXPECT_EQ(WTERMSIG(status()), SIGINT);
    EXPECT_EQ(kept(), "");
}

}  // namespace

}  // namespace quillmark

#endif
