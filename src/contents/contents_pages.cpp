#include "contents/contents_pages.h"

#include <tuple>

#include "contents/applet_contents.h"
#include "contents/contents_names.h"
#include "contents/frame_sets.h"
#include "contents/start_page.h"
#include "contents/support_files.h"
#include "contents/tree/archiver.h"
#include "contents/tree/tree_data_file.h"
#include "foundation/orx_exception.h"
#include "platform/files/failure_lines.h"
#include "platform/files/sys_directory.h"
#include "platform/out_of_memory.h"

namespace quillmark {

namespace {

/// Returns the file that the applet reads: the archive, or the plain file.
OrxString writeTreeData(const ContentsContext& context) {
    const OrxString dataFile = contents_names::treeData(context);
    try {
        writeTreeDataFile(dataFile, context.entries, context.showIcons);
    } catch (const OrxException&) {
        failure_lines::writeReason(context.trace);
        throw;
    }
    return packDataFile(dataFile, context.installDir, context.trace);
}

}  // namespace

void writeContentsPages(const ContentsContext& context) {
    const auto step = [&](const char* what, const auto& body) {
        survive(context.trace, what, body);
    };
    IconArchives archives;
    step("the support files", [&] { archives = copyContentsSupportFiles(context); });
    // For archivers that look for their files in the current directory. It may fail, because the
    // archiver also gets full paths.
    step("the directory of the archiver",
         [&] { std::ignore = SysDirectory::setCurrentDir(context.outputDir); });
    OrxString treeFile;
    step("the tree data", [&] { treeFile = writeTreeData(context); });
    step("the contents page", [&] { writeAppletContents(context, archives, treeFile); });
    if (context.ownStartPage) {
        step("the start page", [&] { writeStartPage(context); });
    } else if (context.supportOld) {
        step("a frame set", [&] { writeFixedFrameSet(context); });
        step("a frame set", [&] { writeStaticFrameSet(context); });
    }
}

}  // namespace quillmark
