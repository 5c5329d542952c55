#include "settings_ui/windows/screenshot.h"

#include <fstream>
#include <vector>

namespace quillmark {

namespace {

struct Picture {
    BITMAPINFOHEADER info{};
    std::vector<char> pixels;
};

Picture capture(HWND window) {
    RECT place{};
    GetWindowRect(window, &place);
    Picture picture;
    picture.info.biSize = sizeof(picture.info);
    picture.info.biWidth = place.right - place.left;
    picture.info.biHeight = place.bottom - place.top;
    picture.info.biPlanes = 1;
    picture.info.biBitCount = 32;
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    void* pixels = nullptr;
    const HBITMAP bitmap =
        CreateDIBSection(memory, reinterpret_cast<const BITMAPINFO*>(&picture.info), DIB_RGB_COLORS,
                         &pixels, nullptr, 0);
    const HGDIOBJ previous = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, picture.info.biWidth, picture.info.biHeight, screen, place.left, place.top,
           SRCCOPY);
    GdiFlush();
    const auto* const bytes = static_cast<const char*>(pixels);
    picture.pixels.assign(bytes, bytes + picture.info.biWidth * picture.info.biHeight * 4);
    SelectObject(memory, previous);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return picture;
}

/// Drawing reaches the screen with a delay. Waits until the screen no longer changes.
Picture captureWhenStill(HWND window) {
    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
    constexpr DWORD pause = 500;
    Picture picture = capture(window);
    for (int still = 0; still < 3;) {
        Sleep(pause);
        Picture next = capture(window);
        still = next.pixels == picture.pixels ? still + 1 : 0;
        picture = std::move(next);
    }
    return picture;
}

}  // namespace

void saveScreenshot(HWND window, const std::string& file) {
    const Picture picture = captureWhenStill(window);
    BITMAPFILEHEADER head{};
    head.bfType = 0x4D42;
    head.bfOffBits = sizeof(head) + sizeof(picture.info);
    head.bfSize = head.bfOffBits + static_cast<DWORD>(picture.pixels.size());
    std::ofstream out(file, std::ios::binary);
    out.write(reinterpret_cast<const char*>(&head), sizeof(head));
    out.write(reinterpret_cast<const char*>(&picture.info), sizeof(picture.info));
    out.write(picture.pixels.data(), static_cast<std::streamsize>(picture.pixels.size()));
}

}  // namespace quillmark
