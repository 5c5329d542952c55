// The library as hosts load it: a document of all 42 operations, called in every way, is the same
// as the one that the driver itself writes.

#include <gmock/gmock.h>

#include <filesystem>
#include <functional>

#include "driver/doc_html.h"
#include "platform/trace.h"
#include "support/environment_variable.h"
#include "support/temp_dir.h"
#include "tested_component.h"
#include "whole_document.h"

namespace quillmark::testing {
namespace {

namespace fs = std::filesystem;

/// Every visible result of a document.
struct Outcome {
    std::map<std::string, std::string> files;
    std::vector<std::string> calls;
    std::vector<std::u16string> outTexts;

    friend bool operator==(const Outcome&, const Outcome&) = default;
};

/// The directory of one document. All documents use the same name, so that results can be compared.
class Workplace {
public:
    Workplace() {
        dir_.put("plain.css", "BODY { }\n");
        dir_.put("dot.gif", "GIF89a");
        dir_.put("notes.txt", "Notes\n");
    }
    [[nodiscard]] std::string directory() const { return dir_.path().str(); }
    [[nodiscard]] std::map<std::string, std::string> files() const {
        std::map<std::string, std::string> all;
        const fs::path root = dir_.native();
        for (const auto& entry : fs::recursive_directory_iterator(root)) {
            if (entry.is_regular_file()) {
                const std::string name = fs::relative(entry.path(), root).generic_string();
                all[name] = withoutDirectory(
                    dir_.content(OrxString(name).replaceStr("/", "\\")).value_or("unreadable"));
            }
        }
        return all;
    }
    /// The directory differs from run to run.
    [[nodiscard]] std::string withoutDirectory(std::string text) const {
        return OrxString(text).replaceStr(dir_.path(), "HERE").str();
    }

private:
    TempDir dir_;
};

using Call = std::function<std::u16string(const Step&)>;

Outcome drive(const Workplace& place, const Call& call, const std::string& leftOut = {}) {
    Outcome outcome;
    for (const Step& step : wholeDocument(place.directory())) {
        if (step.name != leftOut) {
            outcome.outTexts.push_back(call(step));
        }
    }
    return outcome;
}

using Way = std::u16string (*)(::IDocument&, const Step&);

Outcome throughComponent(Way way, const std::string& leftOut = {}) {
    const Workplace place;
    const Apartment apartment;
    Outcome outcome;
    {
        const Component component = testedComponent();
        const auto document = component.createDocument();
        outcome = drive(
            place, [&](const Step& step) { return way(*document.get(), step); }, leftOut);
    }
    outcome.files = place.files();
    return outcome;
}

Outcome withoutComponent() {
    const Workplace place;
    Outcome outcome;
    {
        DocHtml document;
        outcome = drive(place, [&](const Step& step) { return callDirectly(document, step); });
    }
    outcome.files = place.files();
    return outcome;
}

class WholeDocument : public ::testing::Test {
protected:
    EnvironmentVariable clock_{"SOURCE_DATE_EPOCH", "0"};
    TempDir config_;
    EnvironmentVariable settings_{"XDG_CONFIG_HOME", config_.native()};
};

TEST_F(WholeDocument, ContainsEveryOperation) {
    std::set<std::string> names;
    for (const Step& step : wholeDocument("")) {
        names.insert(step.name);
    }
    EXPECT_EQ(names.size(), 42U);
}

TEST_F(WholeDocument, IsTheSameThroughTheTableAsFromTheDriver) {
    EXPECT_EQ(throughComponent(&callByTable), withoutComponent());
}

TEST_F(WholeDocument, IsTheSameByDispatchIdentifierAsFromTheDriver) {
    EXPECT_EQ(throughComponent(&callById), withoutComponent());
}

TEST_F(WholeDocument, IsTheSameByNameAsFromTheDriver) {
    EXPECT_EQ(throughComponent(&callByName), withoutComponent());
}

TEST_F(WholeDocument, IsOnTheDisk) {
    const Outcome outcome = throughComponent(&callById);
    std::vector<std::string> names;
    for (const auto& [name, content] : outcome.files) {
        names.push_back(name);
    }
    EXPECT_THAT(names,
                ::testing::ElementsAre("calls.log", "dot.gif", "notes.txt", "out/docs/notes.txt",
                                       "out/pix/dot.gif", "out/plain.css", "out/rep.htm",
                                       "out/rep_cnt.htm", "out/rep_dtl.htm", "out/rep_dtl3.htm",
                                       "out/rep_toc.dat", "out/sub/rep_dtl2.htm", "plain.css"));
    EXPECT_THAT(outcome.files.at("out/sub/rep_dtl2.htm"), ::testing::HasSubstr("In a directory"));
    EXPECT_THAT(outcome.outTexts,
                ::testing::IsSupersetOf({std::u16string(u"{474BDD93-0170-11D3-A6BF-00104B2AEFE1}"),
                                         std::u16string(u"Html")}));
}

/// The operations that can be left out without changing the document: some are accepted and do
/// nothing, `showLast` only shows the document, and a diagram and a mark need a model.
TEST_F(WholeDocument, ShowsTheEffectOfEveryOperationThatHasOne) {
    const std::set<std::string> withoutEffect = {"start",         "stop",      "setOrientation",
                                                 "showLast",      "startFile", "setTableRowHeight",
                                                 "insertDiagram", "insertMark"};
    const Outcome whole = throughComponent(&callById);
    std::set<std::string> names;
    for (const Step& step : wholeDocument("")) {
        names.insert(step.name);
    }
    for (const std::string& name : names) {
        Outcome less = throughComponent(&callById, name);
        const bool isOutOperation = name == "getPropPages" || name == "getDocType";
        if (!isOutOperation) {
            less.outTexts = whole.outTexts;
        }
        EXPECT_EQ(less == whole, withoutEffect.count(name) != 0) << name;
    }
}

using Handles = std::vector<std::uint64_t>;

template <typename... Arguments>
HRESULT knowsNothing(void* /*context*/, Arguments...) {
    return E_FAIL;
}

/// An empty model that records what it is asked for.
DochtmlModel askedModel(Handles& asked) {
    DochtmlModel model{};
    model.context = &asked;
    model.object = [](void* context, std::uint64_t handle, DochtmlObject* object) -> HRESULT {
        static_cast<Handles*>(context)->push_back(handle);
        *object = nullptr;
        return S_OK;
    };
    const auto noClass = [](void*, const DochtmlText*, DochtmlClass* found) -> HRESULT {
        *found = nullptr;
        return S_OK;
    };
    model.findClass = noClass;
    model.classOf = &knowsNothing;
    model.className = &knowsNothing;
    model.attributeExists = &knowsNothing;
    model.associationExists = &knowsNothing;
    model.hasAttribute = &knowsNothing;
    model.attributeText = &knowsNothing;
    model.attributeBoolean = &knowsNothing;
    model.attributeLong = &knowsNothing;
    model.attributeDouble = &knowsNothing;
    model.associated = &knowsNothing;
    return model;
}

TEST_F(WholeDocument, AsksTheModelOfTheHostForTheMarkedElement) {
    const Apartment apartment;
    const Workplace place;
    Handles asked;
    const Component component = testedComponent();
    const auto services = component.hostServices();
    ASSERT_TRUE(services);
    const DochtmlModel model = askedModel(asked);
    ASSERT_EQ(services->setModel(&model), S_OK);
    {
        const auto document = component.createDocument();
        drive(place, [&](const Step& step) { return callByTable(*document.get(), step); });
    }
    EXPECT_EQ(services->setModel(nullptr), S_OK);
    EXPECT_THAT(asked, ::testing::Contains(0xFFFFFFFB00000000U));
}

TEST_F(WholeDocument, IsReportedToTheHostCallByCall) {
    const Apartment apartment;
    const Workplace place;
    std::string heard;
    const DochtmlTraceListener listener{
        &heard, 10, [](void* context, std::int32_t, const DochtmlText* text) {
            static_cast<std::string*>(context)->append(text->data, text->size);
        }};
    const Component component = testedComponent();
    const auto services = component.hostServices();
    ASSERT_TRUE(services);
    ASSERT_EQ(services->setTraceListener(&listener), S_OK);
    {
        const auto document = component.createDocument();
        drive(place, [&](const Step& step) { return callById(*document.get(), step); });
    }
    EXPECT_EQ(services->setTraceListener(nullptr), S_OK);
    EXPECT_THAT(heard, ::testing::HasSubstr("dochtml->insertXref(\"to the start\",\"here\");\n"));
    EXPECT_THAT(heard, ::testing::HasSubstr("dochtml->close();\n"));
}

}  // namespace
}  // namespace quillmark::testing
