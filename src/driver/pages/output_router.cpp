#include "driver/pages/output_router.h"

namespace quillmark {

DocHtmlSection* OutputRouter::section(SectionMode mode) const noexcept {
    switch (mode) {
        case SectionMode::header:
            return header_.get();
        case SectionMode::footer:
            return footer_.get();
        case SectionMode::body:
            break;
    }
    return nullptr;
}

void OutputRouter::openSection(SectionMode mode, int testLevel) {
    std::unique_ptr<DocHtmlSection>& place = mode == SectionMode::header ? header_ : footer_;
    if (place == nullptr) {
        place = std::make_unique<DocHtmlSection>();
    } else {
        place->clear();
    }
    place->setTestLevel(testLevel);
    makeCurrent(mode);
}

void OutputRouter::returnToBody() noexcept {
    makeCurrent(SectionMode::body);
}

void OutputRouter::freeSections() noexcept {
    returnToBody();
    header_.reset();
    footer_.reset();
}

void OutputRouter::makeCurrent(SectionMode mode) noexcept {
    mode_ = mode;
    DocHtmlSection* const open = section(mode);
    state_ = open != nullptr ? open->getState() : &bodyState_;
}

}  // namespace quillmark
