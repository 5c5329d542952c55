#pragma once

#include <optional>

#include "foundation/orx_string.h"

namespace quillmark {

/// The controls of a settings page, by identifier: a dialog's, or a form's without a window.
///
/// Putting a text into an edit box tells the page about it (`SettingsPage::handle` with
/// `textChanged`) as a person's typing does; checking a box from here tells nothing.
class PageControls {
public:
    virtual ~PageControls() = default;
    [[nodiscard]] virtual OrxString text(int id) const = 0;
    virtual void setText(int id, const OrxString& text) = 0;
    [[nodiscard]] virtual bool isChecked(int id) const = 0;
    virtual void setChecked(int id, bool checked) = 0;
    /// Tells an up-down control between which numbers it steps.
    virtual void setRange(int id, int lowest, int highest) = 0;
};

/// What a file-open dialog is told.
struct FileChoice {
    const char* filterName = "";
    const char* pattern = "";
    const char* title = "";
    /// The name that the dialog opens with.
    OrxString initialName;
    /// Characters that the name buffer holds.
    static constexpr int bufferSize = 259;
};

/// What the page asks of the person and of the frame around it.
class PageHost {
public:
    virtual ~PageHost() = default;
    /// A message box of the page's window with an exclamation icon and an OK button.
    virtual void showMessage(const OrxString& text, const OrxString& title) = 0;
    /// The directory that the person picked, or nothing.
    [[nodiscard]] virtual std::optional<OrxString> chooseDirectory(const OrxString& title) = 0;
    /// The file that the person picked, or nothing.
    [[nodiscard]] virtual std::optional<OrxString> chooseFile(const FileChoice& choice) = 0;
    virtual void showHelp(const OrxString& helpFile, unsigned long context) = 0;
    /// The page became dirty, or clean.
    virtual void dirtyChanged(bool dirty) = 0;
};

}  // namespace quillmark
