#include "platform/console.h"

#include <fcntl.h>
#include <io.h>

#include <cstdio>
#include <memory>

#include "foundation/utf8.h"
#include "platform/windows/this_module.h"
// Needs the types of the header above.
#include <shellapi.h>

namespace quillmark {

namespace {

std::string utf8From(const std::wstring& text) {
    return utf8::fromUtf16(std::u16string(text.begin(), text.end()));
}

}  // namespace

std::vector<std::string> Console::arguments(int /*argc*/, const char* const* /*argv*/) {
    // The arguments of `main` are in the code page and have lost what it cannot hold.
    int count = 0;
    const std::unique_ptr<LPWSTR, decltype(&LocalFree)> words(
        CommandLineToArgvW(GetCommandLineW(), &count), &LocalFree);
    std::vector<std::string> texts;
    for (int i = 1; words != nullptr && i < count; ++i) {
        texts.push_back(utf8From(words.get()[i]));
    }
    return texts;
}

std::string Console::executablePath() {
    return utf8From(moduleFileName(nullptr));
}

bool Console::errorsGoToTerminal() noexcept {
    return _isatty(_fileno(stderr)) != 0;
}

void Console::reportFailedWrites() noexcept {}

void Console::readInputAsBytes() noexcept {
    _setmode(_fileno(stdin), _O_BINARY);
}

}  // namespace quillmark
