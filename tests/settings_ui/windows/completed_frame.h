#pragma once

#include "platform/windows/windows_api.h"

// These need the types of windows_api.h above them.
#include <ole2.h>
#include <olectl.h>

namespace quillmark {

/// The class of the settings page.
inline constexpr CLSID settingsPageClass{
    0x474BDD93, 0x0170, 0x11D3, {0xA6, 0xBF, 0x00, 0x10, 0x4B, 0x2A, 0xEF, 0xE1}};

/// A page class of the tests, which passes all calls on to a settings page of the registered class
/// and does what Wine's property frame omits: it enables Apply when the page reports that it is
/// dirty, and applies the page when Apply or OK is pressed.
inline constexpr CLSID completedPageClass{
    0x9C1F5A30, 0x6D0B, 0x4C8E, {0x9A, 0x41, 0x5B, 0x1E, 0x0C, 0x77, 0x21, 0x5D}};

/// Offers that class to the calling thread for as long as it exists.
class CompletedPageClass {
public:
    CompletedPageClass();
    CompletedPageClass(const CompletedPageClass&) = delete;
    CompletedPageClass& operator=(const CompletedPageClass&) = delete;
    ~CompletedPageClass();

private:
    DWORD registration_ = 0;
};

}  // namespace quillmark
