#include "settings_ui/page_table.h"

#include <algorithm>

namespace quillmark {

namespace {

using enum ControlKind;

constexpr std::array<Route, 2> whenChanged{{{ControlEvent::textChanged, PageAction::markDirty}}};
constexpr std::array<Route, 2> whenClicked{{{ControlEvent::clicked, PageAction::markDirty}}};

constexpr std::array<Route, 2> browses(PageAction action) {
    return {{{ControlEvent::clicked, action}}};
}

// The first box loads the page: a host gives it the focus when it shows the page.
constexpr std::array<Route, 2> loadsOrChanges{{{ControlEvent::focused, PageAction::load},
                                               {ControlEvent::textChanged, PageAction::markDirty}}};

// The documents directory has no route: editing it alone does not make the page dirty.
constexpr std::array controlRows{
    PageControl{control::none, label, "Images &directory"},
    PageControl{control::imagesDirectory, edit, "", "HtmlPixDir", loadsOrChanges},
    PageControl{control::browseImages, button, "...", nullptr, browses(PageAction::browseImages)},
    PageControl{control::none, label, "&External documents directory"},
    PageControl{control::documentsDirectory, edit, "", "ExternalDocDir"},
    PageControl{control::browseDocuments, button, "...", nullptr,
                browses(PageAction::browseDocuments)},
    PageControl{control::none, label, "&Style sheet"},
    PageControl{control::styleSheet, edit, "", "StyleSheet", whenChanged},
    PageControl{control::browseStyleSheet, button, "...", nullptr,
                browses(PageAction::browseStyleSheet)},
    PageControl{control::relativePaths, checkBox, "&Use relative directory paths", "UseRelative",
                whenClicked},
    PageControl{control::passThrough, checkBox, "&Pass through HTML", "PassThrough", whenClicked},
    PageControl{control::olderBrowsers, checkBox, "Support &older browsers", "SupportOld",
                whenClicked},
    PageControl{control::none, groupBox, "Navigation"},
    PageControl{control::contents, checkBox, "&Table of contents", "Navig", whenClicked},
    PageControl{control::arrows, checkBox, "&Back/next arrows", "Navig", whenClicked},
    PageControl{control::none, groupBox, "Table of contents"},
    PageControl{control::showIcons, checkBox, "Show &icons", "ShowIcons", whenClicked},
    PageControl{control::none, label, "Heading le&vel"},
    PageControl{control::headingLevel, numberEdit, "", "TOCLevel", whenChanged},
    PageControl{control::headingLevelSpin, upDown, "Spin1"},
    PageControl{control::none, label, "&Customized icon file"},
    PageControl{control::iconFile, edit, "", "IconFile", whenChanged},
    PageControl{control::browseIconFile, button, "...", nullptr,
                browses(PageAction::browseIconFile)},
    PageControl{control::none, groupBox, "Diagram file type", nullptr, {}, true},
    PageControl{control::jpeg, radioButton, "&JPEG", "DiagramType", whenClicked, true},
    PageControl{control::gif, radioButton, "&GIF", "DiagramType", whenClicked, true},
    PageControl{control::locate, checkBox, "Support &locate in browser", "LocateInBrowser",
                whenClicked},
    PageControl{control::help, command, "", nullptr, browses(PageAction::help)},
};

}  // namespace

std::span<const PageControl> pageControls() noexcept {
    return controlRows;
}

const PageControl* findControl(int id) noexcept {
    if (id == control::none) {
        return nullptr;
    }
    const auto* const found = std::ranges::find(controlRows, id, &PageControl::id);
    return found == controlRows.end() ? nullptr : &*found;
}

PageAction routeOf(int id, ControlEvent event) noexcept {
    const PageControl* const row = findControl(id);
    if (row == nullptr) {
        return PageAction::none;
    }
    const auto* const found = std::ranges::find(row->routes, event, &Route::event);
    return found == row->routes.end() ? PageAction::none : found->action;
}

std::string_view settingOf(int id) noexcept {
    const PageControl* const row = findControl(id);
    return row == nullptr || row->setting == nullptr ? std::string_view() : row->setting;
}

}  // namespace quillmark
