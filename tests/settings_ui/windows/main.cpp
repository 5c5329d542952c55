#include <gmock/gmock.h>

#include <cstdio>

#include "settings_ui/windows/registered_component.h"

namespace {

/// Tells Wine to draw the frames of windows itself: no window manager is there. It is read when
/// the first window is made.
void drawWindowFrames() {
    constexpr char no[] = "N";
    RegSetKeyValueA(HKEY_CURRENT_USER, "Software\\Wine\\X11 Driver", "Managed", REG_SZ, no,
                    sizeof no);
}

}  // namespace

/// The last argument is the component library, which the tests reach through its registration.
int main(int argc, char** argv) {
    drawWindowFrames();
    testing::InitGoogleMock(&argc, argv);
    const quillmark::RegisteredComponent component(argv[argc - 1]);
    if (!component.isRegistered()) {
        std::fprintf(stderr, "cannot register %s\n", argv[argc - 1]);
        return 1;
    }
    return RUN_ALL_TESTS();
}
