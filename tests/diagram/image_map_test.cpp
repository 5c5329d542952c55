#include "diagram/image_map.h"

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "host/image_map_interface.h"

namespace quillmark {
namespace {

/// Answers every picture with the same regions, and remembers what it was asked.
class Regions final : public CImageMapInterface {
public:
    explicit Regions(std::vector<OrxString> texts)
        : texts_(std::move(texts)), before_(setInterface(this)) {}
    Regions(const Regions&) = delete;
    Regions& operator=(const Regions&) = delete;
    ~Regions() override { setInterface(before_); }

    void getRegions(const OrxString& picture, std::vector<OrxString>& regions) override {
        asked.append("[" + picture + "]");
        regions = texts_;
    }

    OrxString asked;

private:
    std::vector<OrxString> texts_;
    CImageMapInterface* before_;
};

/// Writes maps and records the markup in order.
class Recorder {
public:
    std::string write(const OrxString& picture = "a.gif") {
        std::string out;
        maps.write(picture, {[&](std::string_view markup) { out.append(markup); },
                             [&](const OrxString& bookmark, const OrxString& markup) {
                                 out.append("{").append(bookmark).append("}").append(markup);
                             }});
        return out;
    }

    ImageMapWriter maps;
};

TEST(ImageMap, WritesNothingWithoutAService) {
    Recorder recorder;
    EXPECT_EQ(recorder.write(), "");
    const Regions regions({"", "", ""});
    EXPECT_EQ(recorder.write(), " USEMAP=#map0 >\n<MAP NAME=\"map0\">\n</MAP");
}

TEST(ImageMap, WritesNothingForAPictureWithoutRegions) {
    const Regions none({});
    Recorder recorder;
    EXPECT_EQ(recorder.write(), "");
}

TEST(ImageMap, AsksForThePictureAsItWasNamed) {
    Regions regions({"n", "t", "c"});
    Recorder recorder;
    recorder.write("C:\\pics/a.gif");
    EXPECT_EQ(regions.asked, "[C:\\pics/a.gif]");
}

TEST(ImageMap, ClosesThePictureAndListsItsRegions) {
    const Regions regions({"Class A", "GUID-1", "0,0,10,0,10,10", "B", "GUID-2", "1,2"});
    Recorder recorder;
    EXPECT_EQ(recorder.write(),
              " USEMAP=#map0 >\n"
              "<MAP NAME=\"map0\">\n"
              "{GUID-1}  <AREA SHAPE=\"POLY\" COORDS=\"0,0,10,0,10,10\"  NAME=\"Class A\" "
              "GUID-1>\n"
              "{GUID-2}  <AREA SHAPE=\"POLY\" COORDS=\"1,2\"  NAME=\"B\" GUID-2>\n"
              "</MAP");
}

TEST(ImageMap, NumbersTheMapsOfADocumentAndStartsAgainWithTheNext) {
    const Regions regions({"", "", ""});
    Recorder recorder;
    EXPECT_EQ(recorder.write(), " USEMAP=#map0 >\n<MAP NAME=\"map0\">\n</MAP");
    EXPECT_EQ(recorder.write(), " USEMAP=#map1 >\n<MAP NAME=\"map1\">\n</MAP");
    recorder.maps.restart();
    EXPECT_EQ(recorder.write(), " USEMAP=#map0 >\n<MAP NAME=\"map0\">\n</MAP");
}

TEST(ImageMap, UsesNoNumberForAPictureWithoutRegions) {
    Recorder recorder;
    {
        const Regions regions({"n", "t", "c"});
        recorder.write();
    }
    {
        const Regions none({});
        recorder.write();
    }
    const Regions regions({"n", "t", "c"});
    EXPECT_EQ(recorder.write().substr(0, 13), " USEMAP=#map1");
}

TEST(ImageMap, PassesOverRegionsWithoutTargetOrCoordinates) {
    const Regions regions({"a", "", "1", "b", "t", "", "c", "u", "3"});
    Recorder recorder;
    EXPECT_EQ(recorder.write(),
              " USEMAP=#map0 >\n<MAP NAME=\"map0\">\n"
              "{u}  <AREA SHAPE=\"POLY\" COORDS=\"3\"  NAME=\"c\" u>\n"
              "</MAP");
}

TEST(ImageMap, WritesARegionWithoutAName) {
    const Regions regions({"", "t", "1"});
    Recorder recorder;
    EXPECT_EQ(recorder.write(),
              " USEMAP=#map0 >\n<MAP NAME=\"map0\">\n"
              "{t}  <AREA SHAPE=\"POLY\" COORDS=\"1\"  NAME=\"\" t>\n"
              "</MAP");
}

TEST(ImageMap, ReadsWhatAListLacksAtItsEndAsEmpty) {
    Recorder recorder;
    {
        const Regions regions({"a", "t", "1", "b"});
        EXPECT_EQ(recorder.write(),
                  " USEMAP=#map0 >\n<MAP NAME=\"map0\">\n"
                  "{t}  <AREA SHAPE=\"POLY\" COORDS=\"1\"  NAME=\"a\" t>\n"
                  "</MAP");
    }
    const Regions regions({"b", "u"});
    EXPECT_EQ(recorder.write(), " USEMAP=#map1 >\n<MAP NAME=\"map1\">\n</MAP");
}

TEST(ImageMap, HandsOutMarkupThatMayHoldTheTargetEarlier) {
    const Regions regions({"x", "POLY", "1"});
    Recorder recorder;
    EXPECT_EQ(recorder.write(),
              " USEMAP=#map0 >\n<MAP NAME=\"map0\">\n"
              "{POLY}  <AREA SHAPE=\"POLY\" COORDS=\"1\"  NAME=\"x\" POLY>\n"
              "</MAP");
}

TEST(ImageMap, CopiesEveryByteAsItIs) {
    const Regions regions({"<\"\xE4\n", "t\"", "%s"});
    Recorder recorder;
    EXPECT_EQ(recorder.write(),
              " USEMAP=#map0 >\n<MAP NAME=\"map0\">\n"
              "{t\"}  <AREA SHAPE=\"POLY\" COORDS=\"%s\"  NAME=\"<\"\xE4\n\" t\">\n"
              "</MAP");
}

}  // namespace
}  // namespace quillmark
