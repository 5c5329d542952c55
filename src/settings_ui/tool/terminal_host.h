#pragma once

#include <ostream>

#include "settings_ui/page_host.h"

namespace quillmark {

/// Writes the page's messages to a stream, in UTF-8. There are no dialogs for files: the user types
/// the names.
class TerminalHost : public PageHost {
public:
    explicit TerminalHost(std::ostream& errors) : errors_(errors) {}

    void showMessage(const OrxString& text, const OrxString& title) override;
    [[nodiscard]] std::optional<OrxString> chooseDirectory(const OrxString& /*title*/) override {
        return std::nullopt;
    }
    [[nodiscard]] std::optional<OrxString> chooseFile(const FileChoice& /*choice*/) override {
        return std::nullopt;
    }
    void showHelp(const OrxString& /*helpFile*/, unsigned long /*context*/) override {}
    void dirtyChanged(bool /*dirty*/) override {}

private:
    std::ostream& errors_;
};

}  // namespace quillmark
