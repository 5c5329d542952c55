#include <gtest/gtest.h>

#include <memory>
#include <string>

#include "settings/register_cache.h"
#include "settings/register_dynamic.h"
#include "support/memory_settings_store.h"

namespace quillmark {
namespace {

RegEntry entry(const OrxString& value) {
    return {"Html", "Name", value};
}

TEST(SettingAsBoolean, IsTrueForTheWordAndForANumberOtherThanZero) {
    for (const char* const text : {"true", "TRUE", "True", "1", "-1", "42", " 7", "2x", "+3"}) {
        EXPECT_TRUE(entry(text).asBool()) << text;
    }
    for (const char* const text : {"", "false", "0", "00", "yes", "x1", " true", "trueish", "-0"}) {
        EXPECT_FALSE(entry(text).asBool()) << text;
    }
}

TEST(SettingAsNumber, IsReadAsFarAsItIsOne) {
    EXPECT_EQ(entry("50").asInt(), 50);
    EXPECT_EQ(entry(" \t-12abc").asInt(), -12);
    EXPECT_EQ(entry("+5").asInt(), 5);
    EXPECT_EQ(entry("0x10").asInt(), 0);
    EXPECT_EQ(entry("- 5").asInt(), 0);
    EXPECT_EQ(entry("+-5").asInt(), 0);
    EXPECT_EQ(entry("true").asInt(), 0);
    EXPECT_EQ(entry("").asInt(), 0);
    EXPECT_EQ(entry("3").asShort(), 3);
    EXPECT_EQ(entry("123456").asLong(), 123456L);
}

TEST(SettingAsNumber, StaysInThirtyTwoBits) {
    EXPECT_EQ(entry("2147483647").asInt(), 2147483647);
    EXPECT_EQ(entry("2147483648").asInt(), 2147483647);
    EXPECT_EQ(entry("-2147483648").asInt(), -2147483647 - 1);
    EXPECT_EQ(entry("-99999999999999999999999").asLong(), -2147483647L - 1);
    EXPECT_EQ(entry("65537").asShort(), 1);
}

TEST(SettingEntry, IsMadeFromEveryType) {
    EXPECT_EQ(RegEntry::ofBool(true).asString(), "true");
    EXPECT_EQ(RegEntry::ofBool(false).asString(), "false");
    EXPECT_EQ(RegEntry::ofShort(-3).asString(), "-3");
    EXPECT_EQ(RegEntry::ofInt(50).asString(), "50");
    EXPECT_EQ(RegEntry::ofLong(70000).asString(), "70000");
    EXPECT_EQ(RegEntry::ofString("pix").asString(), "pix");
    EXPECT_TRUE(RegEntry::ofBool(true).asBool());
    EXPECT_EQ(RegEntry::ofInt(50).asInt(), 50);
    EXPECT_EQ(RegEntry::ofBool(true).type(), RegEntry::Type::boolean);
    EXPECT_EQ(RegEntry::ofInt(1).type(), RegEntry::Type::number);
    EXPECT_EQ(RegEntry::ofString("").type(), RegEntry::Type::text);
}

class Registers : public testing::Test {
protected:
    [[nodiscard]] OrxString cached(const OrxString& group, const OrxString& name) const {
        return cache.read(group, name, RegEntry::ofString("fallback")).asString();
    }

    InstalledSettingsStore store;
    RegisterCache cache;
    RegisterDynamic direct;
};

TEST_F(Registers, GiveTheFallbackForWhatIsNotStored) {
    EXPECT_EQ(cached("Html", "HtmlPixDir"), "fallback");
    EXPECT_EQ(direct.read("Settings", "InstallDir", RegEntry::ofString("x")).asString(), "x");
}

TEST_F(Registers, GiveWhatIsStored) {
    store.set("Html", "HtmlPixDir", "images");
    EXPECT_EQ(cached("Html", "HtmlPixDir"), "images");
    EXPECT_EQ(cached("HTML", "htmlpixdir"), "images");
    const RegEntry read = direct.read("Html", "HtmlPixDir", RegEntry::ofInt(3));
    EXPECT_EQ(read.asString(), "images");
    EXPECT_EQ(read.group(), "Html");
    EXPECT_EQ(read.name(), "HtmlPixDir");
    EXPECT_EQ(read.type(), RegEntry::Type::number);
}

TEST_F(Registers, GiveAnEmptyTextThatIsStored) {
    store.set("Html", "StyleSheet", "");
    EXPECT_EQ(cached("Html", "StyleSheet"), "");
}

TEST_F(Registers, ReturnAnOverrideFromItsOwnCacheOnly) {
    store.set("Html", "Navig", "1");
    cache.override(RegEntry("Html", "Navig", "3"));
    EXPECT_EQ(cached("Html", "Navig"), "3");
    EXPECT_EQ(cached("html", "NAVIG"), "3");
    EXPECT_EQ(RegisterCache().read("Html", "Navig", RegEntry::ofInt(0)).asInt(), 1);
    EXPECT_EQ(direct.read("Html", "Navig", RegEntry::ofInt(0)).asInt(), 1);
    EXPECT_EQ(store.get("Html", "Navig"), "1");
}

TEST_F(Registers, ReturnTheLastOverride) {
    cache.override(RegEntry("Html", "Navig", "3"));
    cache.override(RegEntry("Html", "Navig", "2"));
    EXPECT_EQ(cached("Html", "Navig"), "2");
}

TEST_F(Registers, SeeAChangeOfTheStoreAtOnce) {
    EXPECT_EQ(cached("Html", "DontCopy"), "fallback");
    EXPECT_TRUE(direct.write("Html", "DontCopy", RegEntry::ofString(".gif")));
    EXPECT_EQ(cached("Html", "DontCopy"), ".gif");
}

}  // namespace
}  // namespace quillmark
