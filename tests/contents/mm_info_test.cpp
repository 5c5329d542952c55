#include "contents/entries/mm_info.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "contents/fake_model.h"
#include "support/capturing_exception_log.h"

namespace quillmark {
namespace {

using testing::FakeObject;
using testing::FakeSchema;
using Lines = std::vector<std::string>;

MMInfo infoOf(const MMObject& object) {
    MMInfo info;
    info.setObject(&object);
    return info;
}

TEST(MMInfo, HoldsTheObjectWithAHandle) {
    const FakeObject object("Class");
    const FakeSchema schema(object);
    const MMInfo info(FakeSchema::handle);
    EXPECT_EQ(info.getObject(), &object);
    EXPECT_EQ(info.className(), "Class");
}

TEST(MMInfo, HoldsNothingForAHandleThatTheModelDoesNotKnow) {
    const FakeObject object("Class");
    const FakeSchema schema(object);
    const CapturingExceptionLog log;
    const MMInfo info(FakeSchema::handle + 1);
    EXPECT_EQ(info.getObject(), nullptr);
    EXPECT_EQ(info.className(), "");
    EXPECT_EQ(log.messages(), Lines{});
}

TEST(MMInfo, HoldsNothingWithoutAModel) {
    const MMInfo info(FakeSchema::handle);
    EXPECT_EQ(info.getObject(), nullptr);
    EXPECT_FALSE(info.isObject("Class"));
}

TEST(MMInfo, ReadsAttributesAsEveryType) {
    FakeObject object("Class");
    object.with("kind", "abstract").with("leaf", "true").with("size", "-7").with("cost", "2.5");
    const MMInfo info = infoOf(object);
    EXPECT_EQ(info.getAttr("kind", &object), object[OrxString("kind")]);
    EXPECT_EQ(info.getAttrAsString("kind", &object), "abstract");
    EXPECT_TRUE(info.getAttrAsBool("leaf", &object));
    EXPECT_EQ(info.getAttrAsLong("size", &object), -7);
    EXPECT_EQ(info.getAttrAsDouble("cost", &object), 2.5);
}

TEST(MMInfo, IgnoresTheFlag) {
    FakeObject object("Class");
    object.with("kind", "abstract");
    EXPECT_EQ(infoOf(object).getAttrAsString("kind", &object, true), "abstract");
}

TEST(MMInfo, IsEmptyForAMissingAttribute) {
    const FakeObject object("Class");
    const MMInfo info = infoOf(object);
    EXPECT_EQ(info.getAttr("kind", &object), nullptr);
    EXPECT_EQ(info.getAttrAsString("kind", &object), "");
    EXPECT_FALSE(info.getAttrAsBool("kind", &object));
    EXPECT_EQ(info.getAttrAsLong("kind", &object), 0);
    EXPECT_EQ(info.getAttrAsDouble("kind", &object), 0.0);
}

TEST(MMInfo, IgnoresAnAttributeThatTheClassDoesNotHave) {
    FakeObject object("Class");
    object.with("kind", "abstract").metaclass().attributes.clear();
    EXPECT_EQ(infoOf(object).getAttr("kind", &object), nullptr);
}

TEST(MMInfo, AnswersEveryQueryOfNoObjectWithNothing) {
    const MMInfo info;
    EXPECT_EQ(info.getAttr("kind", nullptr), nullptr);
    EXPECT_EQ(info.getAttrAsString("kind", nullptr), "");
    EXPECT_EQ(info.getAssoc("owner", nullptr), nullptr);
    EXPECT_EQ(info.className(), "");
}

TEST(MMInfo, AnswersNothingForAnObjectWithoutAClass) {
    FakeObject object("Class");
    object.with("kind", "abstract").classless = true;
    const MMInfo info = infoOf(object);
    EXPECT_EQ(info.className(), "");
    EXPECT_EQ(info.getAttrAsString("kind", &object), "");
    EXPECT_EQ(info.getAssoc("owner", &object), nullptr);
}

TEST(MMInfo, FollowsAnAssociationToItsFirstEnd) {
    const FakeObject first("Package");
    const FakeObject second("Package");
    FakeObject object("Class");
    object.linked("owner", {&first, &second});
    const MMInfo info = infoOf(object);
    EXPECT_EQ(info.getAssoc("owner", &object), &first);
    MMInfo found;
    EXPECT_TRUE(info.getAssoc("owner", &object, found));
    EXPECT_EQ(found.getObject(), &first);
}

TEST(MMInfo, FindsNothingThroughAnAssociationWithoutEnds) {
    FakeObject object("Class");
    object.linked("owner", {});
    const MMInfo info = infoOf(object);
    MMInfo found = infoOf(object);
    EXPECT_EQ(info.getAssoc("owner", &object), nullptr);
    EXPECT_FALSE(info.getAssoc("owner", &object, found));
    EXPECT_FALSE(info.getAssoc("unknown", &object, found));
    EXPECT_EQ(found.getObject(), &object);
}

TEST(MMInfo, KnowsTheClassOfItsObject) {
    const FakeObject object("Class");
    const FakeSchema schema(object);
    const MMInfo info(FakeSchema::handle);
    EXPECT_TRUE(info.isObject("Class"));
    EXPECT_FALSE(info.isObject("class"));
    EXPECT_FALSE(info.isObject("Operation"));
}

TEST(MMInfo, ComparesTheObjectsThemselves) {
    const std::array<FakeObject, 2> objects = {FakeObject("Class"), FakeObject("Class")};
    const MMInfo first = infoOf(objects[0]);
    const MMInfo second = infoOf(objects[1]);
    EXPECT_TRUE(first == infoOf(objects[0]));
    EXPECT_FALSE(first != infoOf(objects[0]));
    EXPECT_FALSE(first == second);
    EXPECT_TRUE(first != second);
    EXPECT_TRUE(first < second);
    EXPECT_TRUE(second > first);
    EXPECT_FALSE(second < first);
}

TEST(MMInfo, AcceptsAnObjectOfTheExpectedClass) {
    const FakeObject object("Class");
    MMInfo info = infoOf(object);
    info.setMetaObjectName("Class");
    EXPECT_EQ(info.getMetaObjectName(), "Class");
    EXPECT_NO_THROW(info.validatePtr());
}

TEST(MMInfo, NamesBothClassesWhenAnObjectHasAnotherClass) {
    const FakeObject object("Operation");
    MMInfo info = infoOf(object);
    info.setMetaObjectName("Class");
    const CapturingExceptionLog log;
    try {
        info.validatePtr();
        FAIL() << "an Operation passed for a Class";
    } catch (const OrxException& problem) {
        EXPECT_EQ(problem.reasonText(),
                  "ERROR: A Operation pointer was given where a Class pointer was expected.");
    }
    EXPECT_EQ(log.messages(), (Lines{"Exception throw: ERROR: A Operation pointer was given where "
                                     "a Class pointer was expected.\n"}));
}

TEST(MMInfo, RefusesNoObjectWhereAClassIsExpected) {
    MMInfo info;
    EXPECT_NO_THROW(info.validatePtr());
    info.setMetaObjectName("Class");
    EXPECT_THROW(info.validatePtr(), OrxException);
}

TEST(MMInfo, LogsAFailureOfTheSchemaAndHoldsNoObject) {
    const FakeObject object("Class");
    FakeSchema schema(object);
    schema.broken = true;
    const CapturingExceptionLog log;
    EXPECT_EQ(MMInfo(FakeSchema::handle).getObject(), nullptr);
    EXPECT_EQ(log.messages(), (Lines{"Exception catch: schema is broken\n"}));
}

TEST(MMInfo, LogsAFailureOfAnObjectAndAnswersNothing) {
    FakeObject object("Class");
    object.with("kind", "abstract").linked("owner", {&object}).broken = true;
    const FakeSchema schema(object);
    const MMInfo info(FakeSchema::handle);
    const CapturingExceptionLog log;
    EXPECT_EQ(info.className(), "");
    EXPECT_EQ(info.getAttr("kind", &object), nullptr);
    EXPECT_EQ(info.getAssoc("owner", &object), nullptr);
    EXPECT_FALSE(info.isObject("Class"));
    EXPECT_EQ(
        log.messages(),
        (Lines{"Exception catch: object is broken\n", "Exception catch: object is broken\n",
               "Exception catch: object is broken\n", "Exception catch: object is broken\n"}));
}

TEST(MMInfo, LogsAFailureOfAnAttributeAndAnswersNothing) {
    FakeObject object("Class");
    object.with("kind", "7").attribute("kind").broken = true;
    const MMInfo info = infoOf(object);
    const CapturingExceptionLog log;
    EXPECT_EQ(info.getAttrAsString("kind", &object), "");
    EXPECT_FALSE(info.getAttrAsBool("kind", &object));
    EXPECT_EQ(info.getAttrAsLong("kind", &object), 0);
    EXPECT_EQ(info.getAttrAsDouble("kind", &object), 0.0);
    EXPECT_EQ(log.messages(), (Lines{"Exception catch: attribute is broken\n",
                                     "Exception catch: attribute is broken\n",
                                     "Exception catch: attribute is broken\n",
                                     "Exception catch: attribute is broken\n"}));
}

TEST(MMInfo, AnyOtherExceptionOfTheLibraryIsTreatedAlike) {
    FakeObject object("Class");
    object.with("size", "not a number");
    const CapturingExceptionLog log;
    EXPECT_EQ(infoOf(object).getAttrAsLong("size", &object), 0);
    ASSERT_EQ(log.messages().size(), 1U);
    EXPECT_EQ(log.messages()[0].substr(0, 17), "Exception catch: ");
}

}  // namespace
}  // namespace quillmark
