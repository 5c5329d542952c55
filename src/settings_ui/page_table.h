#pragma once

#include <array>
#include <span>
#include <string_view>

#include "settings/settings_table.h"

namespace quillmark {

/// Identifiers of the settings page's controls; they are those of the dialog template too.
namespace control {

inline constexpr int none = -1;  ///< labels and group boxes have no identifier of their own
inline constexpr int documentsDirectory = 5211;
inline constexpr int browseDocuments = 5212;
inline constexpr int headingLevel = 5202;
inline constexpr int headingLevelSpin = 5204;
inline constexpr int styleSheet = 5205;
inline constexpr int browseStyleSheet = 5206;
inline constexpr int arrows = 5207;
inline constexpr int contents = 5208;
inline constexpr int relativePaths = 5213;
inline constexpr int showIcons = 5214;
inline constexpr int iconFile = 5215;
inline constexpr int browseIconFile = 5216;
inline constexpr int gif = 5217;
inline constexpr int jpeg = 5218;
inline constexpr int passThrough = 5219;
inline constexpr int locate = 5220;
inline constexpr int olderBrowsers = 5222;
inline constexpr int help = 5223;
inline constexpr int imagesDirectory = 5601;
inline constexpr int browseImages = 5602;

}  // namespace control

/// What a row of the table stands for.
enum class ControlKind {
    label,
    groupBox,
    edit,
    numberEdit,  ///< takes digits only
    upDown,      ///< steps the number edit in front of it
    button,
    checkBox,
    radioButton,
    command,  ///< a command that the page answers though no control of the template sends it
};

/// What a control tells the page.
enum class ControlEvent { focused, textChanged, clicked };

/// What the page does about it.
enum class PageAction {
    none,
    load,
    markDirty,
    browseImages,
    browseDocuments,
    browseStyleSheet,
    browseIconFile,
    help,
};

/// An event of a control and what it leads to.
struct Route {
    ControlEvent event;
    PageAction action;
};

/// One row: a control with its text, the setting of group "Html" that it carries (null for none)
/// and its routes. Two controls may carry one setting between them.
struct PageControl {
    int id = control::none;
    ControlKind kind = ControlKind::label;
    const char* text = "";
    const char* setting = nullptr;
    std::array<Route, 2> routes{};
    /// The person never sees it, and cannot reach it.
    bool hidden = false;
};

/// All controls in tab order. The page, its twin on a terminal and the tests of the dialog
/// template are all driven by this one table.
[[nodiscard]] std::span<const PageControl> pageControls() noexcept;

/// The row of that identifier, or null.
[[nodiscard]] const PageControl* findControl(int id) noexcept;

/// What the event of that control leads to; `PageAction::none` for what is not routed.
[[nodiscard]] PageAction routeOf(int id, ControlEvent event) noexcept;

/// The setting that a control carries; empty for one that carries none.
[[nodiscard]] std::string_view settingOf(int id) noexcept;

/// The check boxes that carry a setting each, in the order in which those are read and written
/// (it is not the order of the boxes).
inline constexpr std::array checksInOrder{control::relativePaths, control::passThrough,
                                          control::olderBrowsers, control::locate,
                                          control::showIcons};

/// The range of the heading level's up-down control.
inline constexpr int lowestHeadingLevel = 0;
inline constexpr int highestHeadingLevel = maxHeadingLevel;

}  // namespace quillmark
