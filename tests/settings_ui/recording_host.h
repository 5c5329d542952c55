#pragma once

#include <optional>
#include <string>
#include <vector>

#include "settings_ui/page_host.h"

namespace quillmark {

/// A host that records what the page asks of it and answers as the test specifies.
class RecordingHost : public PageHost {
public:
    void showMessage(const OrxString& text, const OrxString& title) override {
        messages.push_back("[" + title.str() + "] " + text.str());
    }
    [[nodiscard]] std::optional<OrxString> chooseDirectory(const OrxString& title) override {
        asked.push_back(title.str());
        return answer;
    }
    [[nodiscard]] std::optional<OrxString> chooseFile(const FileChoice& choice) override {
        asked.push_back(std::string(choice.title) + "|" + choice.filterName + "|" + choice.pattern +
                        "|" + choice.initialName.str());
        return answer;
    }
    void showHelp(const OrxString& helpFile, unsigned long context) override {
        asked.push_back("help " + helpFile.str() + " " + std::to_string(context));
    }
    void dirtyChanged(bool dirty) override { dirtyReports.push_back(dirty); }

    std::optional<OrxString> answer;
    std::vector<std::string> messages;
    std::vector<std::string> asked;
    std::vector<bool> dirtyReports;
};

}  // namespace quillmark
