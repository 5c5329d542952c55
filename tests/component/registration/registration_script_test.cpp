#include "component/registration/registration_script.h"

#include <gmock/gmock.h>

#include "component/registration/module_files.h"
#include "foundation/orx_exception.h"

namespace quillmark::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Pair;

std::vector<std::string> paths(const std::vector<RegisteredKey>& keys) {
    std::vector<std::string> all;
    for (const RegisteredKey& key : keys) {
        all.push_back(key.path);
    }
    return all;
}

TEST(RegistrationScript, ListsKeysParentsFirst) {
    const auto keys =
        readRegistrationScript("HKCR\n{\n A = s 'a'\n {\n B\n { C\n }\n D\n }\n E\n}\n", "");
    EXPECT_THAT(paths(keys), ElementsAre("A", "A\\B", "A\\B\\C", "A\\D", "E"));
}

TEST(RegistrationScript, SetsNoDefaultValueForAKeyWithoutOne) {
    const auto keys = readRegistrationScript("HKCR { A = s '' B }", "");
    EXPECT_EQ(keys[0].value, "");
    EXPECT_EQ(keys[1].value, std::nullopt);
}

TEST(RegistrationScript, MarksSharedAndReplacedKeys) {
    const auto keys = readRegistrationScript("HKCR { NoRemove CLSID { ForceRemove {1} } A }", "");
    EXPECT_TRUE(keys[0].isShared);
    EXPECT_FALSE(keys[0].replacesOld);
    EXPECT_EQ(keys[1].path, "CLSID\\{1}");
    EXPECT_TRUE(keys[1].replacesOld);
    EXPECT_FALSE(keys[1].isShared);
    EXPECT_FALSE(keys[2].isShared || keys[2].replacesOld);
}

TEST(RegistrationScript, ReadsNamedValues) {
    const auto keys = readRegistrationScript(
        "HKCR { A = s 'x' { val One = s '1' val 'Number Two' = s '2' B } }", "");
    EXPECT_THAT(keys[0].namedValues, ElementsAre(Pair("Number Two", "2"), Pair("One", "1")));
    EXPECT_EQ(keys[1].path, "A\\B");
}

TEST(RegistrationScript, InsertsThePathOfTheModuleIntoValues) {
    const auto keys = readRegistrationScript("HKCR { A = s '%MODULE%,%MODULE%' }", "C:\\%MODULE%");
    EXPECT_EQ(keys[0].value, "C:\\%MODULE%,C:\\%MODULE%");
}

TEST(RegistrationScript, ReadsADoubledQuoteAsOne) {
    const auto keys = readRegistrationScript("HKCR { 'it''s' = s 'a''b' }", "");
    EXPECT_EQ(keys[0].path, "it's");
    EXPECT_EQ(keys[0].value, "a'b");
}

TEST(RegistrationScript, RefusesAMalformedScript) {
    for (const char* script :
         {"", "HKLM { }", "HKCR", "HKCR {", "HKCR { A", "HKCR { A = s", "HKCR { A = s bare }",
          "HKCR { A = d '5' }", "HKCR { A = s 'open }", "HKCR { = s 'x' }", "HKCR { } B",
          "HKCR { A { val } }", "HKCR { A { val X } }", "HKCR { { } }"}) {
        EXPECT_THROW(static_cast<void>(readRegistrationScript(script, "")), OrxException) << script;
    }
}

#ifndef _WIN32
// On Windows the scripts are resources of the library. Other tests read them there.

TEST(DriverScript, ContainsTheKeysOfTheDriver) {
    const auto keys = readRegistrationScript(registrationScript(driverScript), "/lib/x.so");
    EXPECT_THAT(
        paths(keys),
        ElementsAre("DocHtml.DocHtml.2.1.0", "DocHtml.DocHtml.2.1.0\\CLSID", "DocHtml.DocHtml",
                    "DocHtml.DocHtml\\CurVer", "CLSID",
                    "CLSID\\{474BDD91-0170-11d3-A6BF-00104B2AEFE1}",
                    "CLSID\\{474BDD91-0170-11d3-A6BF-00104B2AEFE1}\\ProgID",
                    "CLSID\\{474BDD91-0170-11d3-A6BF-00104B2AEFE1}\\VersionIndependentProgID",
                    "CLSID\\{474BDD91-0170-11d3-A6BF-00104B2AEFE1}\\Programmable",
                    "CLSID\\{474BDD91-0170-11d3-A6BF-00104B2AEFE1}\\InprocServer32"));
    EXPECT_EQ(keys.back().value, "/lib/x.so");
    EXPECT_THAT(keys.back().namedValues, ElementsAre(Pair("ThreadingModel", "Apartment")));
}

TEST(PageScript, GivesTheClassOfThePageNoProgramIdentifier) {
    const auto keys = readRegistrationScript(registrationScript(pageScript), "/lib/x.so");
    EXPECT_THAT(paths(keys),
                ElementsAre("HtmlComPage.HtmlComPage.2.1.0", "HtmlComPage.HtmlComPage.2.1.0\\CLSID",
                            "HtmlComPage.HtmlComPage", "HtmlComPage.HtmlComPage\\CurVer", "CLSID",
                            "CLSID\\{474BDD93-0170-11d3-A6BF-00104B2AEFE1}",
                            "CLSID\\{474BDD93-0170-11d3-A6BF-00104B2AEFE1}\\Programmable",
                            "CLSID\\{474BDD93-0170-11d3-A6BF-00104B2AEFE1}\\InprocServer32"));
}
#endif

}  // namespace
}  // namespace quillmark::testing
