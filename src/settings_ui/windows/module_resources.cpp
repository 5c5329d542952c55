#include "settings_ui/windows/module_resources.h"

#include <cstring>
#include <string_view>
#include <utility>

#include "platform/windows/this_module.h"

namespace quillmark {

namespace {

/// The header of an extended dialog template, laid out as in the resource: members are aligned to
/// 16-bit words.
#pragma pack(push, 2)
struct TemplateHeader {
    WORD version;
    WORD signature;
    DWORD helpId;
    DWORD extendedStyle;
    DWORD style;
    WORD itemCount;
    short x;
    short y;
    short width;
    short height;
};
#pragma pack(pop)

struct TemplateFont {
    WORD points = 0;
    WORD weight = 0;
    std::wstring face;
};

/// Skips a menu, class or title of the header, which is empty, a number or a text.
const WORD* afterName(const WORD* at) {
    constexpr WORD numberFollows = 0xFFFF;
    if (*at == numberFollows) {
        return at + 2;
    }
    while (*at != 0) {
        ++at;
    }
    return at + 1;
}

TemplateFont fontOf(const TemplateHeader* header) {
    const auto* at = reinterpret_cast<const WORD*>(header + 1);
    constexpr int namesInHeader = 3;
    for (int i = 0; i < namesInHeader; ++i) {
        at = afterName(at);
    }
    constexpr int wordsBeforeFace = 3;
    return {at[0], at[1], reinterpret_cast<const wchar_t*>(at + wordsBeforeFace)};
}

/// Selects the font into a screen device context in order to measure it.
class FontMeasure {
public:
    explicit FontMeasure(const TemplateFont& font) : screen_(GetDC(nullptr)) {
        constexpr int pointsPerInch = 72;
        LOGFONTW wanted{};
        wanted.lfHeight = -MulDiv(font.points, GetDeviceCaps(screen_, LOGPIXELSY), pointsPerInch);
        wanted.lfWeight = font.weight;
        wanted.lfCharSet = DEFAULT_CHARSET;
        font.face.copy(wanted.lfFaceName, LF_FACESIZE - 1);
        font_ = CreateFontIndirectW(&wanted);
        previous_ = SelectObject(screen_, font_);
    }
    FontMeasure(const FontMeasure&) = delete;
    FontMeasure& operator=(const FontMeasure&) = delete;
    ~FontMeasure() {
        SelectObject(screen_, previous_);
        DeleteObject(font_);
        ReleaseDC(nullptr, screen_);
    }

    /// The average width and the height of a character, which are 4 and 8 dialog units.
    [[nodiscard]] SIZE baseUnits() const {
        constexpr std::wstring_view letters =
            L"ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
        constexpr int pairs = 26;
        SIZE extent{};
        GetTextExtentPoint32W(screen_, letters.data(), static_cast<int>(letters.size()), &extent);
        TEXTMETRICW metrics{};
        GetTextMetricsW(screen_, &metrics);
        return {(extent.cx / pairs + 1) / 2, metrics.tmHeight};
    }

private:
    HDC screen_;
    HFONT font_ = nullptr;
    HGDIOBJ previous_ = nullptr;
};

}  // namespace

std::wstring resourceString(WORD id) {
    // Without a buffer the call returns a pointer to the text, which has no terminating zero.
    const wchar_t* text = nullptr;
    const int length = LoadStringW(thisModule(), id, reinterpret_cast<wchar_t*>(&text), 0);
    return length > 0 ? std::wstring(text, static_cast<std::size_t>(length)) : std::wstring();
}

SIZE dialogPixels(WORD id) {
    const HRSRC found = FindResourceA(thisModule(), MAKEINTRESOURCEA(id), RT_DIALOG);
    const HGLOBAL loaded = found == nullptr ? nullptr : LoadResource(thisModule(), found);
    const auto* const header = static_cast<const TemplateHeader*>(LockResource(loaded));
    if (header == nullptr) {
        return {};
    }
    constexpr int unitsAcross = 4;
    constexpr int unitsDown = 8;
    const SIZE base = FontMeasure(fontOf(header)).baseUnits();
    return {MulDiv(header->width, base.cx, unitsAcross),
            MulDiv(header->height, base.cy, unitsDown)};
}

}  // namespace quillmark
