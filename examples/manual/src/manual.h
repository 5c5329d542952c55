#pragma once

#include <string>
#include <vector>

#include "call_stream.h"
#include "composer.h"
#include "manual_data.h"
#include "model.h"

namespace quillmark::manual {

/// Names that the calls hand to the driver, as the host that plays them can reach the files.
struct ManualNames {
    /// The document file.
    std::string document;
    /// Put in front of "pictures/...", "texts/..." and "files/...".
    std::string sources;

    [[nodiscard]] std::string diagram() const { return sources + "pictures/subsystems.gif"; }
};

/// Makes the manual: one document with a page for each chapter, group and operation.
class Manual {
public:
    Manual(const ManualData& data, ManualNames names);

    /// The calls that write it.
    [[nodiscard]] const CallStream& calls() const noexcept { return calls_; }
    /// The directory of each page below the output directory, the first page's first.
    [[nodiscard]] const std::vector<std::string>& pageDirectories() const noexcept {
        return pageDirectories_;
    }
    [[nodiscard]] const Model& model() const noexcept { return model_; }
    /// The regions of the diagram, as the replay tool reads them.
    [[nodiscard]] std::string imageMapsJson() const;

private:
    void write();
    void sections();
    void startPage(const std::string& directory);
    void markElement(const std::string& name, const std::string& word);

    void chapters(const std::vector<Chapter>& chapters);
    void chapter(const Chapter& chapter);
    void group(const OperationGroup& group);
    void operation(const OperationText& text, const OperationGroup& group);
    void facts(const OperationText& text, const OperationGroup& group);
    void arguments(const OperationText& text);
    void example(const Example& example);
    void seeAlso(const OperationText& text, const OperationGroup& group);

    void directive(const std::string& directive);
    void index();
    void gallery();
    void diagram();
    void includeText(const std::string& name);
    void linkFile(const std::string& name);

    const ManualData& data_;
    ManualNames names_;
    CallStream calls_;
    Composer composer_;
    Model model_;
    std::vector<std::string> pageDirectories_;
};

}  // namespace quillmark::manual
