#pragma once

#include <array>
#include <span>
#include <string_view>

#include "settings/settings_table.h"

namespace quillmark {

/// Identifiers of the settings page's controls; the dialog template has the same.
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

/// The kind of a row of the table.
enum class ControlKind {
    label,
    groupBox,
    edit,
    numberEdit,  ///< takes digits only
    upDown,      ///< steps the number edit of the previous row
    button,
    checkBox,
    radioButton,
    command,  ///< a command of the page that no control of the template sends
};

/// An event that a control reports to the page.
enum class ControlEvent { focused, textChanged, clicked };

/// The page's reaction to an event.
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

/// An event of a control and the action that it causes.
struct Route {
    ControlEvent event;
    PageAction action;
};

/// One row: a control with its text, the setting of group "Html" that it edits (null for none) and
/// its routes. Two controls may edit one setting together.
struct PageControl {
    int id = control::none;
    ControlKind kind = ControlKind::label;
    const char* text = "";
    const char* setting = nullptr;
    std::array<Route, 2> routes{};
    /// The user cannot see or reach it.
    bool hidden = false;
};

/// All controls in tab order. The page, its form on a terminal and the tests of the dialog template
/// use this table.
[[nodiscard]] std::span<const PageControl> pageControls() noexcept;

/// The row of that identifier, or null.
[[nodiscard]] const PageControl* findControl(int id) noexcept;

/// The action for an event of a control; `PageAction::none` if it is not routed.
[[nodiscard]] PageAction routeOf(int id, ControlEvent event) noexcept;

/// The setting that a control edits; empty if there is none.
[[nodiscard]] std::string_view settingOf(int id) noexcept;

/// The check boxes with a setting of their own, in the order in which the settings are read and
/// written. This is not the tab order.
inline constexpr std::array checksInOrder{control::relativePaths, control::passThrough,
                                          control::olderBrowsers, control::locate,
                                          control::showIcons};

/// The range of the heading level's up-down control.
inline constexpr int lowestHeadingLevel = 0;
inline constexpr int highestHeadingLevel = maxHeadingLevel;

}  // namespace quillmark
