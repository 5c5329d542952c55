// The tables of functions of C hosts are those of the C++ interfaces.

#include <gmock/gmock.h>

#include "dochtml/client.h"
#include "dochtml/dochtml_c.h"
#include "plain_c.h"

namespace quillmark::testing {
namespace {

class CTables : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_EQ(dochtml_initialize(), S_OK);
        ASSERT_EQ(dochtml_create_document_from(DOCHTML_TEST_LIBRARY, &document_), S_OK);
        ASSERT_EQ(dochtml_host_services_from(DOCHTML_TEST_LIBRARY, &services_), S_OK);
    }
    void TearDown() override {
        document_->table->Release(document_);
        services_->table->Release(services_);
        dochtml_uninitialize();
    }

    DochtmlDocument* document_ = nullptr;
    DochtmlHostServices* services_ = nullptr;
};

TEST_F(CTables, LeadToTheOperations) {
    Text type;
    EXPECT_EQ(document_->table->getDocType(document_, type.receive()), S_OK);
    EXPECT_EQ(type.view(), u"Html");
    EXPECT_EQ(document_->table->getPropPages(document_, type.receive()), S_OK);
    EXPECT_EQ(type.view(), u"{474BDD93-0170-11D3-A6BF-00104B2AEFE1}");
    EXPECT_EQ(document_->table->popDirectory(document_), S_OK);
}

TEST_F(CTables, LeadToNamesAndIdentifiers) {
    Text name(u"popDirectory");
    LPOLESTR names[] = {name.get()};
    DISPID id = 0;
    EXPECT_EQ(document_->table->GetIDsOfNames(document_, &IID_NULL, names, 1, 0, &id), S_OK);
    EXPECT_EQ(id, 42);
    DISPPARAMS none{};
    EXPECT_EQ(document_->table->Invoke(document_, id, &IID_NULL, 0, DISPATCH_METHOD, &none, nullptr,
                                       nullptr, nullptr),
              S_OK);
}

TEST_F(CTables, TreatANullReservedIdentifierAsNone) {
    Text name(u"popDirectory");
    LPOLESTR names[] = {name.get()};
    DISPID id = 0;
    EXPECT_EQ(document_->table->GetIDsOfNames(document_, nullptr, names, 1, 0, &id), S_OK);
    EXPECT_EQ(id, 42);
    DISPPARAMS none{};
    EXPECT_EQ(document_->table->Invoke(document_, id, nullptr, 0, DISPATCH_METHOD, &none, nullptr,
                                       nullptr, nullptr),
              S_OK);
}

TEST_F(CTables, LeadFromInterfaceToInterface) {
    void* same = nullptr;
    EXPECT_EQ(document_->table->QueryInterface(document_, &IID_IDocument, &same), S_OK);
    EXPECT_EQ(same, document_);
    EXPECT_EQ(document_->table->Release(document_), 1U);
}

TEST_F(CTables, AreReachedFromPlainCByTheIdentifiersOfTheHeaders) {
    EXPECT_EQ(plain_c_call_by_name(document_), S_OK);
    EXPECT_EQ(plain_c_find_services(services_), S_OK);
}

TEST_F(CTables, AcceptServices) {
    std::string heard;
    const DochtmlTraceListener listener{
        &heard, 10, [](void* context, int32_t, const DochtmlText* text) {
            static_cast<std::string*>(context)->append(text->data, text->size);
        }};
    EXPECT_EQ(services_->table->setTraceListener(services_, &listener), S_OK);
    EXPECT_EQ(document_->table->insertEndl(document_), S_OK);
    EXPECT_EQ(services_->table->setTraceListener(services_, nullptr), S_OK);
    EXPECT_EQ(document_->table->insertEndl(document_), S_OK);
    EXPECT_EQ(heard, "dochtml->insertEndl();\n");
    EXPECT_EQ(services_->table->setObserver(services_, nullptr), S_OK);
}

}  // namespace
}  // namespace quillmark::testing
