// Whatever happens inside the component, an operation returns 0 to the host.

#include <gmock/gmock.h>

#include <new>
#include <stdexcept>

#include "component/module/module_state.h"
#include "component/object/document_object.h"
#include "component/object/operation_calls.h"
#include "dochtml/com_pointer.h"
#include "support/capturing_exception_log.h"
#include "support/recording_document.h"

namespace quillmark::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FailingDocument final : public RecordingDocument {
public:
    DocResult create(WideText) override { OrxException::raise("no style sheet"); }
    DocResult close() override { throw std::runtime_error("out of paper"); }
    DocResult insertText(WideText) override { throw 5; }
    DocResult getDocType(std::u16string& text) override {
        text = u"half";
        throw std::runtime_error("too late");
    }
};

ComPointer<::IDocument> makeFailing() {
    ComPointer<::IDocument> object;
    EXPECT_EQ(
        DocumentObject::make(
            []() -> std::unique_ptr<IDocument> { return std::make_unique<FailingDocument>(); },
            nullptr, IID_IDocument, object.receive()),
        S_OK);
    return object;
}

TEST(Boundary, ReturnsZeroForAnExceptionAndLogsIt) {
    const CapturingExceptionLog log;
    const auto document = makeFailing();
    EXPECT_EQ(document->create(nullptr), S_OK);
    EXPECT_EQ(document->close(), S_OK);
    EXPECT_EQ(document->insertText(nullptr), S_OK);
    EXPECT_THAT(
        log.messages(),
        ElementsAre("Exception throw: no style sheet\n", "Exception catch: no style sheet\n",
                    "Exception catch: out of paper\n", "Exception catch: unknown exception\n"));
}

TEST(Boundary, IsTheSameForLateBoundCalls) {
    const CapturingExceptionLog log(CapturingExceptionLog::Records::catchesOnly);
    const auto document = makeFailing();
    LateArguments none({});
    EXPECT_EQ(invoke(*document.get(), 2, none.parameters()), S_OK);
    EXPECT_THAT(log.messages(), ElementsAre("Exception catch: out of paper\n"));
}

TEST(Boundary, ReturnsNoTextFromAFailedOperation) {
    const auto document = makeFailing();
    BSTR text = reinterpret_cast<BSTR>(&text);
    EXPECT_EQ(document->getDocType(&text), S_OK);
    EXPECT_EQ(text, nullptr);

    LateArguments out({OutText{}});
    EXPECT_EQ(invoke(*document.get(), 24, out.parameters()), S_OK);
    EXPECT_THAT(out.outText(), IsEmpty());
}

TEST(Boundary, ContinuesAfterAFailure) {
    const auto document = makeFailing();
    document->create(nullptr);
    EXPECT_EQ(document->insertEndl(), S_OK);
}

TEST(Boundary, ReportsAFailureToCreateADriver) {
    void* object = &object;
    EXPECT_EQ(DocumentObject::make([]() -> std::unique_ptr<IDocument> { throw std::bad_alloc(); },
                                   nullptr, IID_IDocument, &object),
              E_OUTOFMEMORY);
    EXPECT_EQ(object, nullptr);
    EXPECT_EQ(
        DocumentObject::make([]() -> std::unique_ptr<IDocument> { OrxException::raise("no"); },
                             nullptr, IID_IDocument, &object),
        E_UNEXPECTED);
    EXPECT_TRUE(moduleIsIdle());
}

TEST(Boundary, NeedsAPlaceForTheObject) {
    EXPECT_EQ(
        DocumentObject::make(
            []() -> std::unique_ptr<IDocument> { return std::make_unique<FailingDocument>(); },
            nullptr, IID_IDocument, nullptr),
        E_POINTER);
}

}  // namespace
}  // namespace quillmark::testing
