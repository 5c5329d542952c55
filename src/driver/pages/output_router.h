#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "driver/pages/output_names.h"
#include "foundation/orx_counted_ptr.h"
#include "page/doc_html_page.h"
#include "page/doc_html_section.h"
#include "page/text_state.h"

namespace quillmark {

/// Where output goes.
enum class SectionMode { header = 0, body = 1, footer = 2 };

/// Routes all markup to the header section, the body of the current page, or the footer section.
/// It holds the current page with its number, both sections, and the text state in force.
class OutputRouter {
public:
    OutputRouter();
    OutputRouter(const OutputRouter&) = delete;
    OutputRouter& operator=(const OutputRouter&) = delete;
    ~OutputRouter() = default;

    /// Writes finished HTML to the section that is open.
    void writeOut(std::string_view html) {
        if (mode_ == SectionMode::body) {
            page_->append(html);
        } else if (DocHtmlSection* const open = section(mode_); open != nullptr) {
            open->insertText(html);
        }
    }

    [[nodiscard]] SectionMode mode() const noexcept { return mode_; }
    [[nodiscard]] bool inBody() const noexcept { return mode_ == SectionMode::body; }

    /// The current page.
    [[nodiscard]] DocHtmlPage& page() const noexcept { return *page_; }
    [[nodiscard]] const OrxCountedPtr<DocHtmlPage>& sharedPage() const noexcept { return page_; }
    void setPage(OrxCountedPtr<DocHtmlPage> page) noexcept { page_ = std::move(page); }

    /// The number of the current page. A second `create` does not reset it.
    [[nodiscard]] std::uint32_t pageNumber() const noexcept { return pageNumber_; }
    void nextPageNumber() noexcept { ++pageNumber_; }

    /// The text state that style, alignment and font calls change.
    [[nodiscard]] DocHtmlTextState& state() const noexcept { return *state_; }
    [[nodiscard]] DocHtmlTextState& bodyState() noexcept { return bodyState_; }

    /// The section for a mode. Null for the body, and for a section that was never opened.
    [[nodiscard]] DocHtmlSection* section(SectionMode mode) const noexcept;
    /// Empties a section and makes it current.
    void openSection(SectionMode mode, int testLevel) noexcept;
    /// Makes the body current.
    void returnToBody() noexcept;
    /// Makes the body current. Afterwards there are no sections.
    void freeSections() noexcept;
    /// Converts the names in the text states, and the sections, between two encodings.
    void recode(Recoding& recoding);

    /// Makes the body current for its lifetime, then the section that was open before.
    class BodyScope {
    public:
        explicit BodyScope(OutputRouter& out) noexcept : out_(out), mode_(out.mode_) {
            out_.returnToBody();
        }
        BodyScope(const BodyScope&) = delete;
        BodyScope& operator=(const BodyScope&) = delete;
        ~BodyScope() { out_.makeCurrent(mode_); }

    private:
        OutputRouter& out_;
        SectionMode mode_;
    };

private:
    void makeCurrent(SectionMode mode) noexcept;

    SectionMode mode_ = SectionMode::body;
    OrxCountedPtr<DocHtmlPage> page_;
    std::uint32_t pageNumber_ = OutputNames::firstPageNumber;
    /// A section exists from the start, so that opening it cannot fail. It counts once it is
    /// opened.
    struct Section {
        std::unique_ptr<DocHtmlSection> section;
        bool wasOpened = false;
    };
    Section header_;
    Section footer_;
    DocHtmlTextState bodyState_;
    DocHtmlTextState* state_ = &bodyState_;
};

}  // namespace quillmark
