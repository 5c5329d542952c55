// The texts and the version that the library carries.

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/windows/windows_api.h"

namespace quillmark::testing {
namespace {

class Resources : public ::testing::Test {
protected:
    ~Resources() override { FreeLibrary(library_); }
    [[nodiscard]] std::string text(UINT id) const {
        char buffer[256] = {};
        LoadStringA(library_, id, buffer, sizeof buffer);
        return buffer;
    }

    HMODULE library_ = LoadLibraryA(DOCHTML_TEST_LIBRARY);
};

TEST_F(Resources, holdTheTexts) {
    EXPECT_EQ(text(5100), "Dochtmlcom");
    EXPECT_EQ(text(5102), "&HTML");
    EXPECT_EQ(text(5104), "HTML Settings");
    EXPECT_EQ(text(5103), "");
}

TEST_F(Resources, holdScriptsDialogAndTypeLibrary) {
    EXPECT_NE(FindResourceA(library_, MAKEINTRESOURCEA(5101), "REGISTRY"), nullptr);
    EXPECT_NE(FindResourceA(library_, MAKEINTRESOURCEA(5105), "REGISTRY"), nullptr);
    EXPECT_NE(FindResourceA(library_, MAKEINTRESOURCEA(5106), MAKEINTRESOURCEA(5)), nullptr);
    EXPECT_NE(FindResourceA(library_, MAKEINTRESOURCEA(1), "TYPELIB"), nullptr);
}

TEST(VersionInformation, namesTheModule) {
    DWORD ignored = 0;
    const DWORD size = GetFileVersionInfoSizeA(DOCHTML_TEST_LIBRARY, &ignored);
    ASSERT_GT(size, 0U);
    std::vector<char> block(size);
    ASSERT_TRUE(GetFileVersionInfoA(DOCHTML_TEST_LIBRARY, 0, size, block.data()));
    const auto value = [&](const std::string& name) -> std::string {
        void* text = nullptr;
        UINT length = 0;
        VerQueryValueA(block.data(), ("\\StringFileInfo\\040904B0\\" + name).c_str(), &text,
                       &length);
        return text == nullptr ? "" : static_cast<const char*>(text);
    };
    EXPECT_EQ(value("FileDescription"), "dochtmlcom Module");
    EXPECT_EQ(value("InternalName"), "DOCHTMLCOM");
    EXPECT_EQ(value("OriginalFilename"), "dochtmlcom.dll");
    EXPECT_EQ(value("FileVersion"), "2.1.0");
}

}  // namespace
}  // namespace quillmark::testing
