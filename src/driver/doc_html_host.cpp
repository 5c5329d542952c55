// The other operations: sections, options, settings, trace, and those that do nothing here.

#include "driver/doc_html.h"
#include "driver/doc_html_impl.h"
#include "driver/text/element_handle.h"
#include "foundation/orx_exception.h"
#include "foundation/utf8.h"
#include "platform/signal_to_exception.h"
#include "platform/sys_shell.h"
#include "settings/settings_table.h"

namespace quillmark {

namespace {

/// The class identifier of the settings page, as text.
constexpr std::u16string_view settingsPageClass = u"{474BDD93-0170-11D3-A6BF-00104B2AEFE1}";

/// The value types of `overrideRegistry`, which are not the settings library's own.
enum class ValueType : std::int16_t { number = 1, text = 2, boolean = 3 };

RegEntry::Type entryType(ValueType valueType) noexcept {
    switch (valueType) {
        case ValueType::number:
            return RegEntry::Type::number;
        case ValueType::text:
            return RegEntry::Type::text;
        case ValueType::boolean:
            return RegEntry::Type::boolean;
    }
    return RegEntry().type();
}

}  // namespace

DocResult DocHtml::startHeader() {
    return impl_->operate("startHeader", [&] {
        impl_->calls.call("startHeader");
        impl_->context.out.openSection(SectionMode::header, impl_->context.settings.testLevel);
    });
}

DocResult DocHtml::endHeader() {
    return impl_->operate("endHeader", [&] {
        impl_->calls.call("endHeader");
        if (impl_->context.out.mode() == SectionMode::header) {
            impl_->style.closeAll();
            impl_->context.out.returnToBody();
        }
    });
}

DocResult DocHtml::startFooter() {
    return impl_->operate("startFooter", [&] {
        impl_->calls.call("startFooter");
        impl_->context.out.openSection(SectionMode::footer, impl_->context.settings.testLevel);
    });
}

DocResult DocHtml::endFooter() {
    return impl_->operate("endFooter", [&] {
        impl_->calls.call("endFooter");
        // Unlike `endHeader` this does not check what is open. In the body it closes the body's
        // tags.
        impl_->style.closeAll();
        impl_->context.out.returnToBody();
    });
}

DocResult DocHtml::setOption(WideText option, WideText value) {
    return impl_->operate("setOption", [&] {
        const OrxString name = impl_->bytesOf(option);
        const OrxString text = impl_->bytesOf(value);
        impl_->calls.call("setOption", name.view(), text.view());
        if (name == "title") {
            impl_->pages.setTitle(text);
        }
    });
}

DocResult DocHtml::trace(std::int16_t level) {
    Trace& trace = impl_->context.trace;
    survive(trace, "trace", [&] {
        const TextEncoding& encoding = *impl_->context.encoding;
        const TextEncoding::Scope scope(encoding);
        const OrxString logName =
            impl_->settings.read(logGroup, "LogName", defaultValue(logGroup, "LogName"))
                .asString(encoding);
        trace.purgeBefore(logName);
        if (level == 0) {
            trace.close();
            trace.setLevel(0);
        } else if (level > 0) {
            trace.open(logName);
            trace.setLevel(level);
        }
        impl_->context.out.page().setTrace(trace);
    });
    return resultOk;
}

DocResult DocHtml::overrideRegistry(WideText group, WideText name, WideText value,
                                    std::int16_t valueType) {
    survive(impl_->context.trace, "overrideRegistry", [&] {
        impl_->settings.override(RegEntry(utf8::fromUtf16(group), utf8::fromUtf16(name),
                                          utf8::fromUtf16(value),
                                          entryType(static_cast<ValueType>(valueType))));
    });
    return resultOk;
}

DocResult DocHtml::getPropPages(std::u16string& bstrCLSID) {
    survive(impl_->context.trace, "getPropPages", [&] { bstrCLSID = settingsPageClass; });
    return resultOk;
}

DocResult DocHtml::getDocType(std::u16string& docType) {
    survive(impl_->context.trace, "getDocType", [&] { docType = u"Html"; });
    return resultOk;
}

DocResult DocHtml::showLast() {
    return impl_->operate("showLast",
                          [&] { SysShell::open(impl_->context.names.documentFileName()); });
}

DocResult DocHtml::insertMark(std::int32_t ptr, bool isPrimary) {
    const auto half = static_cast<std::uint32_t>(ptr);
    if (isPrimary) {
        impl_->contents.setCurrentElement(ElementHandle::joinHighHalf(half));
    } else {
        ElementHandle::setLowHalf(half);
    }
    return resultOk;
}

DocResult DocHtml::insertDiagram(std::int32_t /*ptr*/, std::int16_t /*width*/,
                                 std::int16_t /*height*/) {
    return impl_->operate("insertDiagram", [&] {
        // Diagrams arrive as pictures through `insertImage`. Hosts only expect this call to be
        // guarded.
        try {
            CSignal2Exception::run([] {});
        } catch (const OrxException& problem) {
            impl_->context.traceError("ERR ", problem.reasonText());
            OrxException::logCaught();
        }
    });
}

// These are for drivers of other formats. This driver accepts them and does nothing.
DocResult DocHtml::start() {
    return resultOk;
}
DocResult DocHtml::stop() {
    return resultOk;
}
DocResult DocHtml::setOrientation(std::int16_t /*docorient*/) {
    return resultOk;
}
DocResult DocHtml::startFile(WideText /*fileName*/) {
    return resultOk;
}

}  // namespace quillmark
