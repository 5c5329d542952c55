#include "contents/locate_script.h"

#include <gtest/gtest.h>

#include <string>

namespace quillmark {
namespace {

// What the functions do is seen in a browser; here only what pages rely on by name.
TEST(LocateScript, HoldsItsPiecesInOrder) {
    std::size_t position = 0;
    for (const char* const piece :
         {"var bkmark, locatebtn = null ; \n", "function getClosestAnchor(lookIn)\n",
          "var _cnturl = location.href, baseurl = null ; \n", "function RelativeUrlPath(url)\n",
          "replace('\\\\', '/')", "function Locate(url, Obj, docmnt)\n",
          "\tdocument.applets[0].selectItemByUrl(urlpart) ;\n"}) {
        const std::size_t found = locateScript().find(piece, position);
        ASSERT_NE(found, std::string_view::npos) << piece;
        position = found + std::string_view(piece).size();
    }
    EXPECT_TRUE(locateScript().starts_with("var bkmark, locatebtn = null ; \n"));
    EXPECT_TRUE(locateScript().ends_with("\tdocument.applets[0].selectItemByUrl(urlpart) ;\n}\n"));
}

TEST(LocateScript, DoesNotEndTheScriptElementThatHoldsIt) {
    EXPECT_EQ(locateScript().find("</"), std::string_view::npos);
    EXPECT_EQ(locateScript().find("<!--"), std::string_view::npos);
}

}  // namespace
}  // namespace quillmark
