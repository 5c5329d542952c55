#include <gmock/gmock.h>

#include <cstdio>
#include <span>

#include "settings_ui/windows/programs.h"
#include "settings_ui/windows/registered_component.h"

namespace {

/// Makes Wine draw the frames of windows itself, because there is no window manager. Wine reads
/// this when it creates the first window.
void drawWindowFrames() {
    constexpr char no[] = "N";
    RegSetKeyValueA(HKEY_CURRENT_USER, "Software\\Wine\\X11 Driver", "Managed", REG_SZ, no,
                    sizeof no);
}

}  // namespace

/// The arguments are the component library, which the tests reach through its registration, the
/// replay tool and the settings tool.
int main(int argc, char** argv) {
    drawWindowFrames();
    testing::InitGoogleMock(&argc, argv);
    const std::span<char*> arguments(argv, static_cast<std::size_t>(argc));
    if (arguments.size() != 4) {
        std::fputs("usage: settings_page_tests COMPONENT REPLAY SETTINGS\n", stderr);
        return 2;
    }
    quillmark::programs() = {arguments[2], arguments[3]};
    const quillmark::RegisteredComponent component(arguments[1]);
    if (!component.isRegistered()) {
        std::fprintf(stderr, "cannot register %s\n", arguments[1]);
        return 1;
    }
    return RUN_ALL_TESTS();
}
