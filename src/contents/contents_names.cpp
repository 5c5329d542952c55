#include "contents/contents_names.h"

#include "page/links/links.h"

namespace quillmark::contents_names {

namespace {

OrxString page(const ContentsContext& context, const char* suffix) {
    return context.baseName + suffix + context.extension;
}

}  // namespace

OrxString startPage(const ContentsContext& context) {
    return page(context, "");
}
OrxString appletContents(const ContentsContext& context) {
    return page(context, "_cnt");
}
OrxString fixedFrameSet(const ContentsContext& context) {
    return page(context, "_ffrm");
}
OrxString fixedContents(const ContentsContext& context) {
    return page(context, "_fcnt");
}
OrxString staticFrameSet(const ContentsContext& context) {
    return page(context, "_sfrm");
}
OrxString staticContents(const ContentsContext& context) {
    return page(context, "_scnt");
}
OrxString treeData(const ContentsContext& context) {
    return context.baseName + "_toc.dat";
}

OrxString fixedDetailLink(const ContentsContext& context) {
    return links::fromFilePart(context.baseName + "_dtl.htm");
}

OrxString fixedStaticContentsLink(const ContentsContext& context) {
    return links::fromFilePart(context.baseName + "_scnt.htm");
}

}  // namespace quillmark::contents_names
