#include <gtest/gtest.h>

#include <vector>

#include "host/app_profile_interface.h"
#include "host/document_observer.h"
#include "host/image_map_interface.h"
#include "host/metamodel.h"
#include "host/quillmark_mode.h"

namespace quillmark {
namespace {

class Profile : public AppProfileInterface {
    OrxString profilePath() const override { return "C:\\x.ini"; }
};

class ImageMaps : public CImageMapInterface {
    void getRegions(const OrxString& picture, std::vector<OrxString>& regions) override {
        regions.push_back(picture);
    }
};

class Schema : public MMSchema {
    const MMObject* object(std::uint64_t /*handle*/) const override { return nullptr; }
    const MMClass* findClass(const OrxString& /*name*/) const override { return nullptr; }
};

TEST(HostServices, AreNullUntilTheHostInstallsThem) {
    EXPECT_EQ(AppProfileInterface::getInterface(), nullptr);
    EXPECT_EQ(CImageMapInterface::getInterface(), nullptr);
    EXPECT_EQ(MMSchema::getSchema(), nullptr);
    EXPECT_EQ(CQuillmarkMode::GetSchemaType(), 0);
}

TEST(HostServices, AreReplacedAndReturnTheOneBefore) {
    Profile profile;
    ImageMaps maps;
    Schema schema;
    EXPECT_EQ(AppProfileInterface::setInterface(&profile), nullptr);
    EXPECT_EQ(CImageMapInterface::setInterface(&maps), nullptr);
    EXPECT_EQ(MMSchema::setSchema(&schema), nullptr);
    EXPECT_EQ(AppProfileInterface::getInterface(), &profile);
    EXPECT_EQ(CImageMapInterface::getInterface(), &maps);
    EXPECT_EQ(MMSchema::getSchema(), &schema);
    EXPECT_EQ(AppProfileInterface::setInterface(nullptr), &profile);
    EXPECT_EQ(CImageMapInterface::setInterface(nullptr), &maps);
    EXPECT_EQ(MMSchema::setSchema(nullptr), &schema);
    EXPECT_EQ(AppProfileInterface::getInterface(), nullptr);
}

TEST(HostMode, IsSetByTheHost) {
    CQuillmarkMode::SetSchemaType(CQuillmarkMode::secondRuleSet);
    EXPECT_EQ(CQuillmarkMode::GetSchemaType(), 2);
    CQuillmarkMode::SetSchemaType(0);
    EXPECT_EQ(CQuillmarkMode::GetSchemaType(), 0);
}

TEST(Observers, DoNothingUnlessOneIsInstalled) {
    class Counter : public DocumentObserver {
    public:
        void pageWritten(const OrxString& /*fileName*/) override { ++pages; }
        int pages = 0;
    } counter;
    DocumentObserver::current().pageWritten("a");
    EXPECT_EQ(DocumentObserver::install(&counter), nullptr);
    DocumentObserver::current().pageWritten("b");
    DocumentObserver::current().contentsEntryAdded();
    EXPECT_EQ(DocumentObserver::install(nullptr), &counter);
    DocumentObserver::current().pageWritten("c");
    EXPECT_EQ(counter.pages, 1);
}

}  // namespace
}  // namespace quillmark
