// The services that a host provides through callbacks reach the driver through its own interfaces.

#include "component/services/module_services.h"

#include <gmock/gmock.h>

#include "component/services/callback_text.h"
#include "host/quillmark_mode.h"
#include "platform/files/drive_table.h"
#include "settings/register_base.h"

namespace quillmark::testing {
namespace {

using ::testing::ElementsAre;

/// The host's side: records what it is asked and answers from its members.
struct Host {
    std::vector<std::string> heard;
    bool fails = false;

    static Host& of(void* context) { return *static_cast<Host*>(context); }
    void hear(const std::string& what) { heard.push_back(what); }
};

std::string shown(const DochtmlText* text) {
    return std::string(viewOf(*text));
}

void answer(const DochtmlSink* sink, std::string_view text) {
    const DochtmlText argument = callbackText(text);
    sink->put(sink->context, &argument);
}

ModuleServices& services() {
    return ModuleServices::module();
}

DochtmlSettingsStore settingsOf(Host& host) {
    return {&host,
            [](void* context, const DochtmlText* group, const DochtmlText* name,
               const DochtmlSink* value) -> std::int32_t {
                Host::of(context).hear("read " + shown(group) + "." + shown(name));
                if (shown(name) == "Missing") {
                    return 0;
                }
                answer(value, "kept");
                return 1;
            },
            [](void* context, const DochtmlText* group, const DochtmlText* name,
               const DochtmlText* value) -> std::int32_t {
                Host::of(context).hear("write " + shown(group) + "." + shown(name) + "=" +
                                       shown(value));
                return shown(name) == "Kept" ? 1 : 0;
            }};
}

TEST(CallbackSettings, AreTheStoreInForce) {
    Host host;
    const DochtmlSettingsStore store = settingsOf(host);
    ASSERT_EQ(services().setSettingsStore(&store), S_OK);
    EXPECT_EQ(RegisterBase::store()->read("Html", "StyleSheet"), OrxString("kept"));
    EXPECT_EQ(RegisterBase::store()->read("Html", "Missing"), std::nullopt);
    EXPECT_TRUE(RegisterBase::store()->write("Html", "Kept", "1"));
    EXPECT_FALSE(RegisterBase::store()->write("Html", "Lost", "2"));
    EXPECT_EQ(services().setSettingsStore(nullptr), S_OK);
    EXPECT_THAT(host.heard, ElementsAre("read Html.StyleSheet", "read Html.Missing",
                                        "write Html.Kept=1", "write Html.Lost=2"));
}

TEST(CallbackProfilePath, ReplacesTheIniFile) {
    const DochtmlText path = callbackText("C:\\my.ini");
    ASSERT_EQ(services().setProfilePath(&path), S_OK);
    ASSERT_NE(AppProfileInterface::getInterface(), nullptr);
    EXPECT_EQ(AppProfileInterface::getInterface()->profilePath(), "C:\\my.ini");
    EXPECT_EQ(services().setProfilePath(nullptr), S_OK);
    EXPECT_EQ(AppProfileInterface::getInterface(), nullptr);
}

TEST(CallbackImageMaps, AnswerWithTheRegionsOfAPicture) {
    Host host;
    const DochtmlImageMaps maps{&host,
                                [](void*, const DochtmlText* picture, const DochtmlSink* texts) {
                                    answer(texts, "name of " + shown(picture));
                                    answer(texts, "target");
                                    answer(texts, "");
                                }};
    ASSERT_EQ(services().setImageMaps(&maps), S_OK);
    std::vector<OrxString> regions{"old"};
    CImageMapInterface::getInterface()->getRegions("a.gif", regions);
    EXPECT_THAT(regions, ElementsAre("name of a.gif", "target", ""));
    EXPECT_EQ(services().setImageMaps(nullptr), S_OK);
    EXPECT_EQ(CImageMapInterface::getInterface(), nullptr);
}

TEST(CallbackTraceListener, ReceivesLinesUpToItsLevel) {
    Host host;
    const DochtmlTraceListener listener{
        &host, Trace::calls, [](void* context, std::int32_t level, const DochtmlText* text) {
            Host::of(context).hear(std::to_string(level) + " " + shown(text));
        }};
    ASSERT_EQ(services().setTraceListener(&listener), S_OK);
    Trace trace;
    trace.write(Trace::errors, "ERR one\n");
    trace.write(Trace::reports, "too deep\n");
    EXPECT_EQ(services().setTraceListener(nullptr), S_OK);
    trace.write(Trace::errors, "ERR two\n");
    EXPECT_THAT(host.heard, ElementsAre("1 ERR one\n"));
}

TEST(CallbackExceptionLog, IsAskedBeforeItReceivesAMessage) {
    Host host;
    const DochtmlExceptionLog log{
        &host,
        [](void* context, const DochtmlText* category) -> std::int32_t {
            Host::of(context).hear("records " + shown(category));
            return shown(category) == "Catch" ? 1 : 0;
        },
        [](void* context, const DochtmlText* message) { Host::of(context).hear(shown(message)); }};
    ASSERT_EQ(services().setExceptionLog(&log), S_OK);
    EXPECT_THROW(OrxException::raise("boom"), OrxException);
    OrxException::logCatch("boom");
    EXPECT_EQ(services().setExceptionLog(nullptr), S_OK);
    EXPECT_THAT(host.heard,
                ElementsAre("records Throw", "records Catch", "Exception catch: boom\n"));
}

TEST(CallbackObserver, ReceivesTheEventsOfADocument) {
    Host host;
    DochtmlObserver observer{};
    observer.context = &host;
    observer.pageWritten = [](void* context, const DochtmlText* name) {
        Host::of(context).hear("page " + shown(name));
    };
    observer.fileCopied = [](void* context, const DochtmlText* name) {
        Host::of(context).hear("file " + shown(name));
    };
    observer.contentsEntryAdded = [](void* context) { Host::of(context).hear("entry"); };
    observer.unresolvedReferences = [](void* context, const DochtmlText* name, size_t count) {
        Host::of(context).hear(std::to_string(count) + " in " + shown(name));
    };
    ASSERT_EQ(services().setObserver(&observer), S_OK);
    DocumentObserver::current().pageWritten("a.htm");
    DocumentObserver::current().fileCopied("b.gif");
    DocumentObserver::current().contentsEntryAdded();
    DocumentObserver::current().unresolvedReferences("a.htm", 3);
    EXPECT_EQ(services().setObserver(nullptr), S_OK);
    EXPECT_THAT(host.heard, ElementsAre("page a.htm", "file b.gif", "entry", "3 in a.htm"));
}

TEST(CallbackObserver, MayLackCallbacks) {
    const DochtmlObserver deaf{};
    ASSERT_EQ(services().setObserver(&deaf), S_OK);
    EXPECT_NO_FATAL_FAILURE({
        DocumentObserver::current().pageWritten("a.htm");
        DocumentObserver::current().fileCopied("b.gif");
        DocumentObserver::current().contentsEntryAdded();
        DocumentObserver::current().unresolvedReferences("a.htm", 3);
    });
    EXPECT_EQ(services().setObserver(nullptr), S_OK);
}

TEST(CallbackMode, SetsTheSchemaType) {
    EXPECT_EQ(ModuleServices::setSchemaType(2), S_OK);
    EXPECT_EQ(CQuillmarkMode::GetSchemaType(), 2);
    EXPECT_EQ(ModuleServices::setSchemaType(0), S_OK);
    EXPECT_EQ(CQuillmarkMode::GetSchemaType(), 0);
}

TEST(CallbackDrives, AreLettersOnly) {
    const DochtmlText directory = callbackText("/srv/out");
    EXPECT_EQ(ModuleServices::setDrive('Q', &directory), S_OK);
    EXPECT_EQ(DriveTable::find('Q'), "/srv/out");
    EXPECT_EQ(ModuleServices::setDrive('Q', nullptr), S_OK);
    EXPECT_EQ(DriveTable::find('Q'), std::nullopt);
    EXPECT_EQ(ModuleServices::setDrive('1', &directory), E_INVALIDARG);
    EXPECT_EQ(ModuleServices::setDrive('A' + 0x100, &directory), E_INVALIDARG);
}

/// A model of one class "Operation" and two elements, 1 and 2; 1 leads to 2.
DochtmlModel modelOf(Host& host) {
    static const int first = 1;
    static const int second = 2;
    static const int onlyClass = 3;
    DochtmlModel model{};
    model.context = &host;
    model.object = [](void* context, std::uint64_t handle, DochtmlObject* object) -> HRESULT {
        *object = handle == 1 ? &first : handle == 2 ? &second : nullptr;
        return Host::of(context).fails ? E_FAIL : S_OK;
    };
    model.findClass = [](void*, const DochtmlText* name, DochtmlClass* found) -> HRESULT {
        *found = shown(name) == "Operation" ? &onlyClass : nullptr;
        return S_OK;
    };
    model.classOf = [](void*, DochtmlObject, DochtmlClass* found) -> HRESULT {
        *found = &onlyClass;
        return S_OK;
    };
    model.className = [](void*, DochtmlClass, const DochtmlSink* name) -> HRESULT {
        answer(name, "Operation");
        return S_OK;
    };
    model.attributeExists = [](void*, DochtmlClass, const DochtmlText* name,
                               std::int32_t* exists) -> HRESULT {
        *exists = shown(name) == "visibility" ? 1 : 0;
        return S_OK;
    };
    model.associationExists = [](void*, DochtmlClass, const DochtmlText* name,
                                 std::int32_t* exists) -> HRESULT {
        *exists = shown(name) == "next" ? 1 : 0;
        return S_OK;
    };
    model.hasAttribute = [](void*, DochtmlObject object, const DochtmlText* name,
                            std::int32_t* exists) -> HRESULT {
        *exists = object == &first && shown(name) == "visibility" ? 1 : 0;
        return S_OK;
    };
    model.attributeText = [](void* context, DochtmlObject, const DochtmlText*,
                             const DochtmlSink* value) -> HRESULT {
        answer(value, "public");
        return Host::of(context).fails ? E_FAIL : S_OK;
    };
    model.attributeBoolean = [](void*, DochtmlObject, const DochtmlText*,
                                std::int32_t* value) -> HRESULT {
        *value = 7;
        return S_OK;
    };
    model.attributeLong = [](void*, DochtmlObject, const DochtmlText*,
                             std::int32_t* value) -> HRESULT {
        *value = -7;
        return S_OK;
    };
    model.attributeDouble = [](void*, DochtmlObject, const DochtmlText*, double* value) -> HRESULT {
        *value = 0.5;
        return S_OK;
    };
    model.associated = [](void*, DochtmlObject object, const DochtmlText*, std::uint32_t index,
                          DochtmlObject* other) -> HRESULT {
        *other = object == &first && index < 2 ? &second : nullptr;
        return S_OK;
    };
    return model;
}

class CallbackModel : public ::testing::Test {
protected:
    void SetUp() override {
        const DochtmlModel model = modelOf(host_);
        ASSERT_EQ(services().setModel(&model), S_OK);
    }
    void TearDown() override {
        EXPECT_EQ(services().setModel(nullptr), S_OK);
        EXPECT_EQ(MMSchema::getSchema(), nullptr);
    }
    static const MMSchema& schema() { return *MMSchema::getSchema(); }

    Host host_;
};

TEST_F(CallbackModel, KnowsItsObjectsAndNoOthers) {
    EXPECT_NE(schema().object(1), nullptr);
    EXPECT_EQ(schema().object(1), schema().object(1));
    EXPECT_NE(schema().object(1), schema().object(2));
    EXPECT_EQ(schema().object(3), nullptr);
}

TEST_F(CallbackModel, DescribesClasses) {
    const MMClass* found = schema().object(1)->getClass();
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found, schema().findClass("Operation"));
    EXPECT_EQ(schema().findClass("Nothing"), nullptr);
    EXPECT_EQ(found->name(), "Operation");
    EXPECT_TRUE(found->attributeExists("visibility"));
    EXPECT_FALSE(found->attributeExists("next"));
    EXPECT_TRUE(found->associationExists("next"));
    EXPECT_FALSE(found->associationExists("visibility"));
}

TEST_F(CallbackModel, DescribesAttributes) {
    const MMAttribute* attribute = (*schema().object(1))["visibility"];
    ASSERT_NE(attribute, nullptr);
    EXPECT_EQ(attribute->asString(), "public");
    EXPECT_TRUE(attribute->asBoolean());
    EXPECT_EQ(attribute->asLongInt(), -7);
    EXPECT_EQ(attribute->asDouble(), 0.5);
    EXPECT_EQ((*schema().object(2))["visibility"], nullptr);
}

TEST_F(CallbackModel, FollowsAssociationsInOrder) {
    const MMObject* second = schema().object(2);
    EXPECT_THAT(schema().object(1)->objects("next"), ElementsAre(second, second));
    EXPECT_THAT(second->objects("next"), ElementsAre());
}

TEST_F(CallbackModel, ThrowsWhenTheHostReportsAFailure) {
    const MMAttribute* attribute = (*schema().object(1))["visibility"];
    host_.fails = true;
    EXPECT_THROW(static_cast<void>(schema().object(1)), OrxException);
    try {
        static_cast<void>(attribute->asString());
        FAIL() << "nothing was thrown";
    } catch (const OrxException& failure) {
        EXPECT_EQ(failure.reasonText(), "The host's model failed with result 0x80004005.");
    }
}

TEST(ModuleServices, RefuseRecordsWithoutTheirCallbacks) {
    const DochtmlSettingsStore store{};
    const DochtmlImageMaps maps{};
    const DochtmlModel model{};
    const DochtmlTraceListener listener{};
    const DochtmlExceptionLog log{};
    EXPECT_EQ(services().setSettingsStore(&store), E_INVALIDARG);
    EXPECT_EQ(services().setImageMaps(&maps), E_INVALIDARG);
    EXPECT_EQ(services().setModel(&model), E_INVALIDARG);
    EXPECT_EQ(services().setTraceListener(&listener), E_INVALIDARG);
    EXPECT_EQ(services().setExceptionLog(&log), E_INVALIDARG);
    EXPECT_EQ(MMSchema::getSchema(), nullptr);
}

}  // namespace
}  // namespace quillmark::testing
