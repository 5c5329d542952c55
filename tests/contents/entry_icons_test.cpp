#include "contents/entries/entry_icons.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "contents/fake_model.h"
#include "host/quillmark_mode.h"
#include "support/capturing_exception_log.h"

namespace quillmark {
namespace {

using testing::FakeObject;
using testing::FakeSchema;
using Lines = std::vector<std::string>;

/// Puts the host into a mode for one test.
class EntryIcons : public ::testing::Test {
protected:
    EntryIcons() : before_(CQuillmarkMode::GetSchemaType()) { CQuillmarkMode::SetSchemaType(0); }
    ~EntryIcons() override { CQuillmarkMode::SetSchemaType(before_); }

    static void expectIcons(const FakeObject& object, const char* gif, const char* stereoGif) {
        const FakeSchema schema(object);
        const auto icons = entryIconsOf(FakeSchema::handle);
        EXPECT_EQ(icons.gif, gif);
        EXPECT_EQ(icons.stereoGif, stereoGif);
    }

private:
    int before_;
};

class EntryIconsOfTheSecondRuleSet : public EntryIcons {
protected:
    EntryIconsOfTheSecondRuleSet() { CQuillmarkMode::SetSchemaType(2); }
};

TEST_F(EntryIcons, AreTheNoneIconWithoutAnElement) {
    const auto icons = entryIconsOf(0);
    EXPECT_EQ(icons.gif, "__None.gif");
    EXPECT_EQ(icons.stereoGif, "");
}

TEST_F(EntryIcons, AreTheCollectionIconForAHandleOfAllOnes) {
    const auto icons = entryIconsOf(0xFFFFFFFFFFFFFFFF);
    EXPECT_EQ(icons.gif, "__Collection.gif");
    EXPECT_EQ(icons.stereoGif, "");
}

TEST_F(EntryIcons, AreTheNoneIconForAnUnknownHandleWithoutALogLine) {
    const FakeObject object("Class");
    const FakeSchema schema(object);
    const CapturingExceptionLog log;
    EXPECT_EQ(entryIconsOf(99).gif, "__None.gif");
    EXPECT_EQ(log.messages(), Lines{});
}

TEST_F(EntryIcons, AreTheNoneIconWithoutAModel) {
    EXPECT_EQ(entryIconsOf(5).gif, "__None.gif");
}

TEST_F(EntryIcons, DistinguishClassesDiagramsAndTaggedValuesByKind) {
    expectIcons(FakeObject("Class").with("kind", "actor"), "Class_actor.gif", "");
    expectIcons(FakeObject("Diagram").with("kind", "Use Case"), "Diagram_Use Case.gif", "");
    expectIcons(FakeObject("TaggedValue").with("kind", "x"), "TaggedValue_x.gif", "");
    expectIcons(FakeObject("Class").with("visibility", "public"), "Class.gif", "");
}

TEST_F(EntryIcons, DistinguishOperationsAndAttributesByVisibility) {
    expectIcons(FakeObject("Operation").with("visibility", "public"), "Operation_public.gif", "");
    expectIcons(FakeObject("Attribute").with("visibility", "Private"), "Attribute_Private.gif", "");
    expectIcons(FakeObject("Operation").with("kind", "query"), "Operation.gif", "");
}

TEST_F(EntryIcons, HaveNoDetailForOtherMetaclasses) {
    expectIcons(FakeObject("Package").with("kind", "a").with("visibility", "b"), "Package.gif", "");
}

TEST_F(EntryIcons, AreNamedByTheMetaclassAloneForAnEmptyDetail) {
    expectIcons(FakeObject("Class").with("kind", ""), "Class.gif", "");
    expectIcons(FakeObject("Class"), "Class.gif", "");
}

TEST_F(EntryIcons, ShowAUserDefinedMetaclassAsStereotype) {
    expectIcons(FakeObject("Class").with("userDefinedMetaClass", "Entity"), "Class.gif",
                "Entity.gif");
}

TEST_F(EntryIcons, ShowNoStereotypeForAUserDefinedMetaclassEqualToTheMetaclass) {
    expectIcons(FakeObject("Class").with("userDefinedMetaClass", "Class"), "Class.gif", "");
    expectIcons(FakeObject("Class").with("userDefinedMetaClass", "class"), "Class.gif",
                "class.gif");
    expectIcons(FakeObject("Class").with("userDefinedMetaClass", ""), "Class.gif", "");
}

TEST_F(EntryIcons, IgnoreTheUserDefinedMetaclassWithoutAMetaclass) {
    FakeObject object("");
    object.with("userDefinedMetaClass", "Entity").attribute("userDefinedMetaClass").broken = true;
    const CapturingExceptionLog log;
    expectIcons(object, "__None.gif", "");
    EXPECT_EQ(log.messages(), Lines{});
}

TEST_F(EntryIcons, FollowTheFirstRuleSetForEveryOtherSchemaType) {
    FakeObject object("Class");
    object.with("metaClass", "Block").with("stereotype", "X");
    for (const int schemaType : {-1, 0, 1, 3}) {
        CQuillmarkMode::SetSchemaType(schemaType);
        expectIcons(object, "Class.gif", "");
    }
}

TEST_F(EntryIcons, TreatAFailureOfTheLibraryAsAnEmptyAnswerAndLogIt) {
    FakeObject object("Class");
    object.with("kind", "actor").with("userDefinedMetaClass", "Entity");
    object.attribute("kind").broken = true;
    const CapturingExceptionLog log;
    expectIcons(object, "Class.gif", "Entity.gif");
    EXPECT_EQ(log.messages(), (Lines{"Exception catch: attribute is broken\n"}));
}

TEST_F(EntryIcons, AreTheNoneIconWhenTheMetaclassCannotBeNamed) {
    FakeObject object("Class");
    object.metaclass().broken = true;
    const CapturingExceptionLog log;
    expectIcons(object, "__None.gif", "");
    EXPECT_EQ(log.messages(), (Lines{"Exception catch: class is broken\n"}));
}

TEST_F(EntryIconsOfTheSecondRuleSet, FollowTheMetaclassThatTheElementNames) {
    expectIcons(FakeObject("Class").with("metaClass", "Block"), "Block.gif", "");
}

TEST_F(EntryIconsOfTheSecondRuleSet, HaveTheStereotypeInLowerCase) {
    expectIcons(FakeObject("Class").with("metaClass", "Block").with("stereotype", "ValueType"),
                "Block.gif", "Block+valuetype.gif");
}

TEST_F(EntryIconsOfTheSecondRuleSet, IgnoreTheStereotypeWithoutAMetaclass) {
    expectIcons(FakeObject("Class").with("stereotype", "ValueType"), "__None.gif", "");
    expectIcons(FakeObject("Class").with("metaClass", "").with("stereotype", "v"), "__None.gif",
                "");
}

TEST_F(EntryIconsOfTheSecondRuleSet, AreTheSameForNoElementAndForACollection) {
    EXPECT_EQ(entryIconsOf(0).gif, "__None.gif");
    EXPECT_EQ(entryIconsOf(~std::uint64_t{0}).gif, "__Collection.gif");
}

}  // namespace
}  // namespace quillmark
