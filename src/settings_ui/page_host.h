#pragma once

#include <optional>

#include "foundation/orx_string.h"

namespace quillmark {

/// The controls of a settings page, by identifier: those of a dialog or of a form without a window.
///
/// Texts are in UTF-8, here and in `PageHost`.
///
/// `setText` notifies the page (`SettingsPage::handle` with `textChanged`), as typing does;
/// `setChecked` does not.
class PageControls {
public:
    virtual ~PageControls() = default;
    [[nodiscard]] virtual OrxString text(int id) const = 0;
    virtual void setText(int id, const OrxString& text) = 0;
    [[nodiscard]] virtual bool isChecked(int id) const = 0;
    virtual void setChecked(int id, bool checked) = 0;
    /// Sets the range of an up-down control.
    virtual void setRange(int id, int lowest, int highest) = 0;
};

/// The parameters of a file-open dialog.
struct FileChoice {
    const char* filterName = "";
    const char* pattern = "";
    const char* title = "";
    /// The name that the dialog shows first.
    OrxString initialName;
    /// The size of the name buffer, in characters.
    static constexpr int bufferSize = 259;
};

/// What the page needs from the user and from the frame around it.
class PageHost {
public:
    virtual ~PageHost() = default;
    /// A message box of the page's window with an exclamation icon and an OK button.
    virtual void showMessage(const OrxString& text, const OrxString& title) = 0;
    /// The directory that the user picked, or nothing.
    [[nodiscard]] virtual std::optional<OrxString> chooseDirectory(const OrxString& title) = 0;
    /// The file that the user picked, or nothing.
    [[nodiscard]] virtual std::optional<OrxString> chooseFile(const FileChoice& choice) = 0;
    virtual void showHelp(const OrxString& helpFile, unsigned long context) = 0;
    /// The page became dirty, or clean.
    virtual void dirtyChanged(bool dirty) = 0;
};

}  // namespace quillmark
