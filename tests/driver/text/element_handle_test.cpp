#include "driver/text/element_handle.h"

#include <vector>

#include "driver/document_fixture.h"
#include "host/metamodel.h"

namespace quillmark {
namespace {

TEST(ElementHandle, JoinsBothHalvesOnce) {
    ElementHandle::setLowHalf(5);
    EXPECT_EQ(ElementHandle::joinHighHalf(7), 0x0000000700000005U);
    EXPECT_EQ(ElementHandle::joinHighHalf(7), 0x0000000700000000U);
}

TEST(ElementHandle, KeepsTheLastLowHalf) {
    ElementHandle::setLowHalf(1);
    ElementHandle::setLowHalf(0xFFFFFFFFU);
    EXPECT_EQ(ElementHandle::joinHighHalf(0xFFFFFFFFU), 0xFFFFFFFFFFFFFFFFU);
}

/// A model that knows nothing and keeps the handles that it is asked for.
class AskedSchema : public MMSchema {
public:
    AskedSchema() : before_(setSchema(this)) {}
    ~AskedSchema() override { setSchema(before_); }
    AskedSchema(const AskedSchema&) = delete;
    AskedSchema& operator=(const AskedSchema&) = delete;

    const MMObject* object(std::uint64_t handle) const override {
        handles.push_back(handle);
        return nullptr;
    }
    const MMClass* findClass(const OrxString&) const override { return nullptr; }

    mutable std::vector<std::uint64_t> handles;

private:
    const MMSchema* before_;
};

class Marks : public testing::OpenDocumentTest {
protected:
    void entry() {
        doc().startTOCEntry();
        doc().insertText(u"a");
        doc().endTOCEntry();
    }
    AskedSchema schema;
};

TEST_F(Marks, ChooseTheElementOfTheEntriesThatFollow) {
    EXPECT_EQ(doc().insertMark(5, false), 0);
    EXPECT_EQ(doc().insertMark(7, true), 0);
    entry();
    doc().insertMark(9, true);
    entry();
    EXPECT_EQ(schema.handles,
              (std::vector<std::uint64_t>{0x0000000700000005U, 0x0000000900000000U}));
    EXPECT_EQ(traced().find("Mark"), std::string::npos);
}

TEST_F(Marks, TakeNegativeHalvesAsTheirBits) {
    doc().insertMark(-2, false);
    doc().insertMark(-2147483647 - 1, true);
    entry();
    EXPECT_EQ(schema.handles, (std::vector<std::uint64_t>{0x80000000FFFFFFFEU}));
}

TEST_F(Marks, WriteNothing) {
    doc().insertMark(5, false);
    doc().insertMark(7, true);
    EXPECT_EQ(body(), "");
}

TEST_F(Marks, AreNotAskedForWithoutIcons) {
    html("ShowIcons", "false");
    open();
    doc().insertMark(7, true);
    entry();
    EXPECT_EQ(schema.handles, std::vector<std::uint64_t>{});
}

}  // namespace
}  // namespace quillmark
