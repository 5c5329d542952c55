#include "driver/pages/picture_names.h"

#include <gtest/gtest.h>

namespace quillmark {
namespace {

TEST(ImageNames, EndExactlyInOneOfThreeExtensions) {
    for (const char* const name : {"a.jpg", "a.jpeg", "a.gif", "C:\\x\\a.b.gif", ".gif"}) {
        EXPECT_TRUE(isImageName(name)) << name;
    }
    for (const char* const name :
         {"a.JPG", "a.Gif", "a.png", "a.bmp", "a", "", "gif", "a.gif.txt", "a.gif\\b"}) {
        EXPECT_FALSE(isImageName(name)) << name;
    }
}

}  // namespace
}  // namespace quillmark
