// The texts and the version in the resources of the library.

#include <gtest/gtest.h>

#include <optional>
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

TEST_F(Resources, ContainTheTexts) {
    EXPECT_EQ(text(5100), "Dochtmlcom");
    EXPECT_EQ(text(5102), "&HTML");
    EXPECT_EQ(text(5104), "HTML Settings");
    EXPECT_EQ(text(5103), "");
}

TEST_F(Resources, ContainScriptsDialogAndTypeLibrary) {
    EXPECT_NE(FindResourceA(library_, MAKEINTRESOURCEA(5101), "REGISTRY"), nullptr);
    EXPECT_NE(FindResourceA(library_, MAKEINTRESOURCEA(5105), "REGISTRY"), nullptr);
    EXPECT_NE(FindResourceA(library_, MAKEINTRESOURCEA(5106), MAKEINTRESOURCEA(5)), nullptr);
    EXPECT_NE(FindResourceA(library_, MAKEINTRESOURCEA(1), "TYPELIB"), nullptr);
}

class VersionInformation : public ::testing::Test {
protected:
    void SetUp() override {
        DWORD ignored = 0;
        block_.resize(GetFileVersionInfoSizeA(DOCHTML_TEST_LIBRARY, &ignored));
        ASSERT_FALSE(block_.empty());
        ASSERT_TRUE(GetFileVersionInfoA(DOCHTML_TEST_LIBRARY, 0, static_cast<DWORD>(block_.size()),
                                        block_.data()));
    }
    [[nodiscard]] std::optional<std::string> value(const std::string& name) const {
        void* text = nullptr;
        UINT length = 0;
        const std::string place = "\\StringFileInfo\\040904B0\\" + name;
        if (VerQueryValueA(block_.data(), place.c_str(), &text, &length) == FALSE) {
            return std::nullopt;
        }
        return std::string(static_cast<const char*>(text));
    }

    std::vector<char> block_;
};

TEST_F(VersionInformation, NamesTheModule) {
    EXPECT_EQ(value("FileDescription"), "dochtmlcom Module");
    EXPECT_EQ(value("InternalName"), "DOCHTMLCOM");
    EXPECT_EQ(value("OriginalFilename"), "dochtmlcom.dll");
    EXPECT_EQ(value("FileVersion"), "2.1.0");
}

TEST_F(VersionInformation, SaysThatTheLibraryRegistersItself) {
    EXPECT_EQ(value("OLESelfRegister"), "");
}

}  // namespace
}  // namespace quillmark::testing
