#include "driver/pages/output_router.h"

namespace quillmark {

OutputRouter::OutputRouter()
    : page_(OrxCountedPtr<DocHtmlPage>::make()),
      header_{std::make_unique<DocHtmlSection>()},
      footer_{std::make_unique<DocHtmlSection>()} {}

DocHtmlSection* OutputRouter::section(SectionMode mode) const noexcept {
    switch (mode) {
        case SectionMode::header:
            return header_.wasOpened ? header_.section.get() : nullptr;
        case SectionMode::footer:
            return footer_.wasOpened ? footer_.section.get() : nullptr;
        case SectionMode::body:
            break;
    }
    return nullptr;
}

void OutputRouter::openSection(SectionMode mode, int testLevel) noexcept {
    Section& place = mode == SectionMode::header ? header_ : footer_;
    place.wasOpened = true;
    place.section->clear();
    place.section->setTestLevel(testLevel);
    makeCurrent(mode);
}

void OutputRouter::returnToBody() noexcept {
    makeCurrent(SectionMode::body);
}

void OutputRouter::freeSections() noexcept {
    returnToBody();
    header_.wasOpened = false;
    footer_.wasOpened = false;
}

void OutputRouter::recode(Recoding& recoding) {
    bodyState_.recode(recoding);
    header_.section->recode(recoding);
    footer_.section->recode(recoding);
}

void OutputRouter::makeCurrent(SectionMode mode) noexcept {
    mode_ = mode;
    DocHtmlSection* const open = section(mode);
    state_ = open != nullptr ? open->getState() : &bodyState_;
}

}  // namespace quillmark
