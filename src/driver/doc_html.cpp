// The operations for the life of a document: create, close, page breaks and directories.

#include "driver/doc_html.h"

#include "contents/contents_pages.h"
#include "contents/support_files.h"
#include "driver/doc_html_impl.h"
#include "driver/pages/arrow_bar.h"
#include "foundation/orx_exception.h"
#include "page/links/links.h"
#include "platform/files/sys_directory.h"
#include "platform/files/sys_file.h"
#include "platform/recoding.h"

namespace quillmark {

namespace {

/// Looks for a style sheet without a directory in the installation directory. Throws if the file
/// does not exist. The setting keeps the path even then, because later pages link to it.
void findStyleSheet(DocumentSettings& settings, const Trace& trace) {
    OrxString& path = settings.styleSheet;
    if (SysFile::getDir(path).isEmpty()) {
        path = SysFile::appendToDir(settings.installDir, path);
    }
    if (!SysFile::exists(path, trace)) {
        OrxException::raise("Html style sheet does not exist.\n" + path);
    }
}

}  // namespace

DocHtml::DocHtml() {
    const TextEncoding::Scope scope(encodingIn({}));
    impl_ = std::make_unique<DocHtmlImpl>();
}

DocHtml::~DocHtml() {
    const TextEncoding::Scope scope(*impl_->context.encoding);
    try {
        // Without the sections, the last page of a document that was never closed gets no header
        // and no footer.
        impl_->context.out.freeSections();
        if (!impl_->isLost && !impl_->context.out.page().isEmpty()) {
            DocHtml::close();
        }
        impl_->pages.releaseHeldPages();
    } catch (...) {
        OrxException::logCaught();
    }
}

DocResult DocHtml::create(WideText fileName) {
    impl_->isLost = false;
    impl_->isLost = !survive(impl_->context.trace, "create", [&] {
        takeEncoding();
        const TextEncoding::Scope scope(*impl_->context.encoding);
        startDocument(impl_->bytesOf(fileName));
    });
    return resultOk;
}

void DocHtml::takeEncoding() {
    const TextEncoding& next = encodingIn(impl_->settings);
    if (&next == impl_->context.encoding) {
        return;
    }
    Recoding recoding(*impl_->context.encoding, next);
    impl_->context.out.recode(recoding);
    impl_->contents.recode(recoding);
    impl_->pages.recode(recoding);
    recoding.commit();
    impl_->context.encoding = &next;
}

void DocHtml::startDocument(const OrxString& name) {
    DocumentContext& context = impl_->context;
    DocumentSettings& settings = context.settings;
    impl_->calls.call("create", name.view());
    impl_->images.restart();
    impl_->pages.releaseHeldPages();

    context.names.setDocument(name);
    links::setDefaultBase(context.names.outputDir());
    impl_->contents.reset();
    impl_->contents.setOutputDir(context.names.outputDir());
    impl_->bookmarks.clear();

    settings.readPlaces(impl_->settings, context.names.outputDir());
    context.names.setDetailNames(settings.hasContentsPages());
    context.copier = FileCopier(settings.dontCopy);
    impl_->contents.setLevel(settings.tocLevel);
    impl_->contents.setShowIcons(settings.showIcons);
    if (!settings.styleSheet.isEmpty()) {
        findStyleSheet(settings, context.trace);
        survive(context.trace, "the copy of the style sheet", [&] {
            settings.styleSheet = context.copyTo(context.names.outputDir(), settings.styleSheet);
        });
    }
    impl_->contents.leaveEntry();
    settings.readTexts(impl_->settings);
    impl_->text.setPassThrough(settings.passThrough);
    if (settings.hasArrows()) {
        survive(context.trace, "the copies of the arrows", [&] { copyArrowPictures(context); });
    }
    if (!settings.readIniFile(context.trace)) {
        useJnlp_ = false;
    }
    survive(context.trace, "the navigator", [this] { startNavigator(); });
    impl_->pages.setNavigator(impl_->navigator);
    impl_->pages.preparePage(context.out.pageNumber());
    impl_->pages.startPage();
}

void DocHtml::startNavigator() {
    const DocumentContext& context = impl_->context;
    const DocumentSettings& settings = context.settings;
    impl_->navigator.reset();
    if (settings.hasNavigator()) {
        impl_->navigator =
            Navigator::create({.baseName = context.names.baseName(),
                               .extension = context.names.extension(),
                               .supportDir = installedName(settings.installDir, "navigator"),
                               .iconDir = SysFile::getDir(settings.iconFile)},
                              std::make_unique<DocumentDecoder>(*context.encoding), context.trace);
    }
}

DocResult DocHtml::close() {
    return impl_->operate("close", [this] {
        if (!impl_->context.out.page().isEmpty()) {
            impl_->calls.call("close");
        }
        endPage(true);
        if (impl_->context.settings.hasContentsPages()) {
            writeContents();
        }
    });
}

void DocHtml::endPage(bool last) {
    impl_->pages.endPage(last, [this] {
        for (std::int32_t depth = impl_->tables.depth(); depth > 0; --depth) {
            endTable();
        }
    });
    impl_->breakJustMade = false;
}

void DocHtml::writeContents() {
    appletJar_ = useJnlp_ ? "toc2.jar" : "toc2_OLD.jar";
    appletArchive_ = useJnlp_ ? "" : "toc2.jar";
    const DocumentContext& context = impl_->context;
    const DocumentSettings& settings = context.settings;
    const OrxString styleSheetLink =
        settings.styleSheet.isEmpty()
            ? OrxString()
            : links::relativeFile(settings.styleSheet, context.names.outputDir());
    writeContentsPages({
        .baseName = context.names.baseName(),
        .extension = context.names.extension(),
        .title = impl_->pages.title(),
        .bodyTags = settings.bodyTags,
        .styleSheetLink = styleSheetLink,
        .showIcons = settings.showIcons,
        .iconFile = settings.iconFile,
        .supportOld = settings.supportOld,
        .ownStartPage = impl_->navigator == nullptr,
        .locateInBrowser = settings.locateInBrowser,
        .useJnlp = useJnlp_,
        .appletJar = appletJar_,
        .appletArchive = appletArchive_,
        .appletJnlp = appletJnlp_,
        .installDir = settings.installDir,
        .outputDir = context.names.outputDir(),
        .pixDir = settings.pixDir,
        .firstDetailPage = context.names.pageFileName(OutputNames::firstPageNumber, ""),
        .copier = context.copier,
        .trace = context.trace,
        .entries = impl_->contents.entries(),
    });
    if (impl_->navigator != nullptr) {
        impl_->navigator->write({.title = impl_->pages.title(),
                                 .bodyTags = settings.bodyTags,
                                 .styleSheetLink = styleSheetLink},
                                impl_->contents.entries(), context.trace);
    }
}

DocResult DocHtml::insertPageBreak() {
    return impl_->operate("insertPageBreak", [this] {
        impl_->calls.pageBreak();
        if (impl_->breakJustMade && impl_->context.out.page().getLineCount() < 2) {
            return;
        }
        impl_->pages.preparePage(impl_->context.out.pageNumber() + 1);
        endPage(false);
        impl_->context.out.nextPageNumber();
        impl_->pages.startPage();
    });
}

DocResult DocHtml::pushDirectory(WideText directoryName) {
    return impl_->operate("pushDirectory", [&] {
        if (!impl_->tables.inTable()) {
            enterDirectory(impl_->bytesOf(directoryName));
        }
    });
}

void DocHtml::enterDirectory(const OrxString& directoryName) {
    DocumentContext& context = impl_->context;
    impl_->pages.setSubDirectory(context.names.shortenedDirectory(directoryName));
    if (context.out.page().getLineCount() > 1) {
        insertPageBreak();
        impl_->breakJustMade = true;
    } else {
        context.out.page().setFileName(impl_->pages.pageFileName());
    }
    if (!impl_->pages.subDirectory().isEmpty()) {
        SysDirectory::checkDirectoryAndCreate(context.pageDir());
    }
}

DocResult DocHtml::popDirectory() {
    return impl_->operate("popDirectory", [this] {
        if (!impl_->tables.inTable()) {
            impl_->pages.setSubDirectory("");
        }
    });
}

}  // namespace quillmark
