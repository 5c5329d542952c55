#include "replay/play/document_encoding.h"

#include <string>

#include "foundation/ascii.h"
#include "foundation/utf8.h"
#include "settings/settings_table.h"

namespace quillmark::replay {

namespace {

constexpr const char* charSet = "CharSet";

std::string utf8Of(const Argument& argument) {
    return utf8::fromUtf16(std::get<WideText>(argument));
}

}  // namespace

void DocumentEncoding::startObject() {
    override_.reset();
    current_ = &next();
}

void DocumentEncoding::override(const Call& call) {
    if (ascii::equalIgnoringCase(utf8Of(call.arguments[0]), htmlGroup) &&
        ascii::equalIgnoringCase(utf8Of(call.arguments[1]), charSet)) {
        override_ = utf8Of(call.arguments[2]);
    }
}

const TextEncoding& DocumentEncoding::next() const {
    if (override_) {
        return TextEncoding::named(*override_);
    }
    const std::optional<OrxString> stored =
        settings_ == nullptr ? std::nullopt : settings_->read(htmlGroup, charSet);
    return TextEncoding::named(stored.value_or(OrxString()));
}

}  // namespace quillmark::replay
