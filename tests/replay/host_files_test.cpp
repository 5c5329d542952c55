#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "command_line/utf8_path.h"
#include "replay/input/bad_input.h"
#include "replay/input/host_files/image_map_file.h"
#include "replay/input/host_files/model_file.h"
#include "support/temp_dir.h"

namespace quillmark::replay {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class HostFiles : public ::testing::Test {
protected:
    std::filesystem::path written(std::string_view text) {
        dir_.put("file.json", text);
        return pathFrom(dir_.nativeFile("file.json"));
    }
    template <typename File>
    std::string refusal(std::string_view text) {
        try {
            const File file(written(text), "file.json");
        } catch (const BadInput& problem) {
            return problem.what();
        }
        return "accepted";
    }

    TempDir dir_;
};

TEST_F(HostFiles, ContainTheRegionsOfAPicture) {
    ImageMapFile maps(written(R"({"C:\\pics\\a.gif": ["A", "a", "0,0", "B"], "b.gif": []})"),
                      "file.json");
    std::vector<OrxString> regions;
    maps.getRegions("C:\\pics\\a.gif", regions);
    EXPECT_THAT(regions, ElementsAre("A", "a", "0,0", "B"));
}

TEST_F(HostFiles, ContainNoRegionsOfAnUnknownPicture) {
    ImageMapFile maps(written(R"({"a.gif": ["A", "a", "0,0"]})"), "file.json");
    std::vector<OrxString> regions;
    maps.getRegions("A.GIF", regions);
    EXPECT_THAT(regions, IsEmpty());
}

TEST_F(HostFiles, RefuseImageMapsThatAreNotLists) {
    EXPECT_EQ(refusal<ImageMapFile>("[]"), "file.json:1: the file must contain a JSON object");
    EXPECT_EQ(refusal<ImageMapFile>(R"({"a.gif": "A"})"),
              "file.json: a.gif: the regions must be a list of strings");
    EXPECT_EQ(refusal<ImageMapFile>(R"({"a.gif": ["A", 1]})"),
              "file.json: a.gif: the regions must be a list of strings");
}

TEST_F(HostFiles, ReportTheLineOfMalformedJson) {
    EXPECT_EQ(refusal<ImageMapFile>("{\n\"a\" 1}"),
              "file.json:2: malformed JSON: Missing a colon after a name of object member.");
    EXPECT_EQ(refusal<ModelFile>(""), "file.json:1: malformed JSON: The document is empty.");
}

TEST_F(HostFiles, SurviveDeepNesting) {
    EXPECT_THAT(refusal<ModelFile>("{\"elements\":" + std::string(1000000, '[')),
                ::testing::HasSubstr("malformed JSON"));
}

TEST_F(HostFiles, AreRefusedWhenMissing) {
    try {
        const ModelFile model(pathFrom(dir_.nativeFile("none.json")), "none.json");
        FAIL() << "nothing was thrown";
    } catch (const BadInput& problem) {
        EXPECT_STREQ(problem.what(), "cannot read none.json: No such file or directory");
    }
}

TEST_F(HostFiles, ContainTheElementsOfAModel) {
    const ModelFile model(written(R"({"schemaType": 2, "elements": {
            "0x0000000700000005": {"class": "Operation",
                "attributes": {"visibility": "public", "rank": 7, "abstract": true,
                               "weight": 1.5}},
            "9": {"class": "Operation"}}})"),
                          "file.json");
    EXPECT_EQ(model.schemaType(), 2);
    const MMObject* const element = model.object(0x0000000700000005);
    ASSERT_NE(element, nullptr);
    EXPECT_EQ(element->getClass()->name(), "Operation");
    EXPECT_EQ((*element)["visibility"]->asString(), "public");
    EXPECT_EQ((*element)["rank"]->asLongInt(), 7);
    EXPECT_EQ((*element)["rank"]->asString(), "7");
    EXPECT_TRUE((*element)["abstract"]->asBoolean());
    EXPECT_DOUBLE_EQ((*element)["weight"]->asDouble(), 1.5);
    EXPECT_EQ((*element)["Visibility"], nullptr);
    EXPECT_TRUE(element->getClass()->attributeExists("visibility"));
    EXPECT_FALSE(element->getClass()->attributeExists("kind"));
    EXPECT_FALSE(element->getClass()->associationExists("owner"));
    EXPECT_THAT(element->objects("owner"), IsEmpty());

    // Elements of the same class share one description, which has the members of all of them.
    const MMObject* const other = model.object(9);
    ASSERT_NE(other, nullptr);
    EXPECT_EQ(other->getClass(), element->getClass());
    EXPECT_EQ((*other)["visibility"], nullptr);
    EXPECT_EQ(model.findClass("Operation"), element->getClass());
    EXPECT_EQ(model.findClass("Class"), nullptr);
    EXPECT_EQ(model.object(8), nullptr);
}

TEST_F(HostFiles, SelectTheFirstRuleSetWhenAModelNamesNone) {
    EXPECT_EQ(ModelFile(written(R"({"elements": {}})"), "file.json").schemaType(), 1);
}

TEST_F(HostFiles, RefuseModelsOfAnotherShape) {
    EXPECT_EQ(refusal<ModelFile>("{}"), "file.json: the model has no \"elements\" object");
    EXPECT_EQ(refusal<ModelFile>(R"({"schemaType": "1", "elements": {}})"),
              "file.json: \"schemaType\" must be an integer");
    EXPECT_EQ(refusal<ModelFile>(R"({"elements": {"x": {"class": "A"}}})"),
              "file.json: x: the key is not a 64-bit handle");
    EXPECT_EQ(refusal<ModelFile>(R"({"elements": {"0x10000000000000000": {"class": "A"}}})"),
              "file.json: 0x10000000000000000: the key is not a 64-bit handle");
    EXPECT_EQ(refusal<ModelFile>(R"({"elements": {"": {"class": "A"}}})"),
              "file.json: : the key is not a 64-bit handle");
    EXPECT_EQ(refusal<ModelFile>(R"({"elements": {"1": {}}})"),
              "file.json: 1: the element has no \"class\" string");
    EXPECT_EQ(refusal<ModelFile>(R"({"elements": {"1": {"class": "A", "attributes": 1}}})"),
              "file.json: 1: \"attributes\" must be an object");
    EXPECT_EQ(
        refusal<ModelFile>(R"({"elements": {"1": {"class": "A", "attributes": {"a": null}}}})"),
        "file.json: 1: the attribute must be a string, a number or a boolean");
}

}  // namespace
}  // namespace quillmark::replay
