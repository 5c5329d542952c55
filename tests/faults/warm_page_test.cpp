// The calls that make up most of a report allocate nothing once the page's memory is there.

#include <gtest/gtest.h>

#include <functional>
#include <initializer_list>
#include <memory>
#include <sstream>
#include <string>

#include "component/object/document_object.h"
#include "dochtml/com_pointer.h"
#include "driver/doc_html.h"
#include "faults/allocation_failure.h"
#include "replay/input/call_stream_reader.h"
#include "replay/play/component_document.h"
#include "support/installed_file_system.h"
#include "support/memory_file_system.h"
#include "support/memory_settings_store.h"

namespace quillmark::testing {
namespace {

template <typename Work>
std::size_t allocationsOf(const Work& work) {
    const AllocationFailure counter(AllocationFailure::never);
    work();
    return AllocationFailure::count();
}

/// What it allocates is not the driver's.
class UncountedFiles final : public MemoryFileSystem {
public:
    bool fileExists(const OrxString& name) const override {
        const UncountedAllocations own;
        return MemoryFileSystem::fileExists(name);
    }
};

class WarmPage : public ::testing::Test {
protected:
    using Calls = std::function<void(DocHtml& document)>;

    WarmPage() {
        settings_.set("Html", "Navig", "4");
        settings_.set("Html", "StyleSheet", "");
        document_.create(u"C:\\output directory of the report\\report.htm");
        document_.insertTag(u"a target with a long name");
    }

    /// The allocations of calls on a page, after the same calls on the page before.
    std::size_t allocationsOnSecondPage(const Calls& calls) {
        // Makes room for more text than the calls write.
        document_.insertText(std::u16string(20'000, u'x'));
        calls(document_);
        document_.insertPageBreak();
        calls(document_);
        return allocationsOf([&] { calls(document_); });
    }

private:
    UncountedFiles files_;
    InstalledFileSystem filesInForce_{files_};
    InstalledSettingsStore settings_;
    DocHtml document_;
};

TEST_F(WarmPage, IsCountedWithTheAllocationsOfItsCalls) {
    // A new page needs memory. If this were not counted, the other tests could not fail.
    EXPECT_GT(allocationsOnSecondPage([](DocHtml& document) { document.insertPageBreak(); }), 0U);
}

TEST_F(WarmPage, TakesTextsWithoutAllocations) {
    const std::u16string paragraph(600, u'p');
    EXPECT_EQ(allocationsOnSecondPage([&](DocHtml& document) {
                  document.insertText(paragraph);
                  document.insertEndl();
                  document.insertText(u"two  blanks and a\ttabulator, so that the text changes");
                  document.insertEndl();
              }),
              0U);
}

TEST_F(WarmPage, TakesReferencesToAKnownTargetWithoutAllocations) {
    EXPECT_EQ(allocationsOnSecondPage([](DocHtml& document) {
                  document.insertXref(u"the text of a reference", u"a target with a long name");
                  document.insertXref(u"a page", u"Page 2");
                  document.insertXref(u"another page", u"Page 1");
              }),
              0U);
}

TEST_F(WarmPage, TakesCellsWithoutAllocations) {
    EXPECT_EQ(allocationsOnSecondPage([](DocHtml& document) {
                  document.setTextAlign(2);
                  document.startTable();
                  for (int cell = 0; cell < 8; ++cell) {
                      if (cell % 4 == 0) {
                          document.addRow();
                      }
                      document.addCell();
                      document.insertText(u"the text of a cell");
                  }
                  document.endTable();
              }),
              0U);
}

TEST_F(WarmPage, TakesFontsInCellsWithoutAllocations) {
    EXPECT_EQ(allocationsOnSecondPage([](DocHtml& document) {
                  document.startTable();
                  document.addRow();
                  document.addCell();
                  document.setFontName(u"Courier");
                  document.setFontSize(14);
                  document.setFontAttribute(1, true);
                  document.setFontAttribute(2, true);
                  document.addCell();
                  document.insertText(u"the text of a cell");
                  document.setFontAttribute(2, false);
                  document.addCell();
                  document.endTable();
                  document.setStyle(u"Normal");
              }),
              0U);
}

TEST_F(WarmPage, TakesStylesWithoutAllocations) {
    EXPECT_EQ(allocationsOnSecondPage([](DocHtml& document) {
                  document.setStyle(u"Heading 2, which has a long name");
                  document.setStyle(u"Heading 3, which has a long name");
                  document.setStyle(u"Normal");
                  document.setStyle(u"List Number 3");
                  document.insertText(u"an item");
                  document.setStyle(u"List Bullet 2");
                  document.setTextAlign(1);
                  document.setStyle(u"Normal");
              }),
              0U);
}

std::unique_ptr<replay::LateBoundDocument> componentDocument() {
    const DocumentMaker maker = []() -> std::unique_ptr<quillmark::IDocument> {
        return std::make_unique<DocHtml>();
    };
    void* object = nullptr;
    EXPECT_TRUE(SUCCEEDED(DocumentObject::make(maker, nullptr, IID_IDispatch, &object)));
    ComPointer<IDispatch> dispatch;
    *dispatch.receive() = static_cast<IDispatch*>(object);
    return std::make_unique<replay::ComponentDocument>(std::move(dispatch));
}

TEST_F(WarmPage, IsReachedThroughTheComponentWithoutAllocations) {
    const std::unique_ptr<replay::LateBoundDocument> document = componentDocument();
    const auto call = [&](const char* name, std::initializer_list<Argument> arguments = {}) {
        const int id = findOperation(name)->dispatchId;
        EXPECT_EQ(document->invoke(id, {arguments.begin(), arguments.size()}), InvokeStatus::done);
    };
    const std::u16string paragraph(600, u'p');
    const auto page = [&] {
        for (int i = 0; i < 3; ++i) {
            call("insertText", {WideText(paragraph)});
            call("insertText", {u"a text with another length"});
            call("insertXref", {u"a page", u"Page 1"});
            call("insertEndl");
        }
    };
    call("create", {u"C:\\output directory\\component.htm"});
    page();
    call("insertText", {WideText(std::u16string(20'000, u'x'))});
    call("insertPageBreak");
    page();
    EXPECT_EQ(allocationsOf(page), 0U);
}

TEST(WarmReader, TakesCallsWithoutAllocations) {
    std::string lines;
    for (int i = 0; i < 100; ++i) {
        lines +=
            "[\"insertXref\",\"a text that is longer than a short string\",\"target\"]\n"
            "[\"setFontAttribute\",1,true]\n[\"insertEndl\"]\n";
    }
    std::istringstream stream(lines);
    replay::InputBuffer input(stream);
    replay::CallStreamReader reader(input);
    replay::Call call;
    ASSERT_EQ(reader.next(call), replay::ReadResult::call);
    ASSERT_EQ(reader.next(call), replay::ReadResult::call);
    EXPECT_EQ(allocationsOf([&] {
                  while (reader.next(call) == replay::ReadResult::call) {
                  }
              }),
              0U);
}

}  // namespace
}  // namespace quillmark::testing
