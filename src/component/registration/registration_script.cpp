#include "component/registration/registration_script.h"

#include <algorithm>

#include "foundation/orx_exception.h"

namespace quillmark {
namespace {

constexpr std::string_view blanks = " \t\r\n";
constexpr std::string_view modulePlaceholder = "%MODULE%";

struct Token {
    std::string text;
    bool isQuoted = false;

    [[nodiscard]] bool is(std::string_view word) const { return !isQuoted && text == word; }
};

class ScriptReader {
public:
    ScriptReader(std::string_view script, std::string_view modulePath)
        : rest_(script), modulePath_(modulePath) {
        advance();
    }

    std::vector<RegisteredKey> read() {
        expect("HKCR");
        expect("{");
        readKeysToBlockEnd({});
        if (!atEnd_) {
            fail("the end");
        }
        return std::move(keys_);
    }

private:
    void readKey(const std::string& parent) {
        RegisteredKey key;
        key.isShared = takeIf("NoRemove");
        key.replacesOld = takeIf("ForceRemove");
        key.path = (parent.empty() ? parent : parent + '\\') + takeName();
        if (takeIf("=")) {
            key.value = takeValue();
        }
        const bool hasBlock = takeIf("{");
        if (hasBlock) {
            readNamedValues(key);
        }
        const std::string path = key.path;
        keys_.push_back(std::move(key));
        if (hasBlock) {
            readKeysToBlockEnd(path);
        }
    }

    void readNamedValues(RegisteredKey& key) {
        while (takeIf("val")) {
            std::string name = takeName();
            expect("=");
            key.namedValues.emplace(std::move(name), takeValue());
        }
    }

    void readKeysToBlockEnd(const std::string& parent) {
        while (!takeIf("}")) {
            readKey(parent);
        }
    }

    std::string takeName() {
        if (token_.is("{") || token_.is("}") || token_.is("=")) {
            fail("a name");
        }
        return take();
    }

    std::string takeValue() {
        expect("s");
        if (!token_.isQuoted) {
            fail("a quoted text");
        }
        std::string value = take();
        for (std::size_t at = value.find(modulePlaceholder); at != std::string::npos;
             at = value.find(modulePlaceholder, at + modulePath_.size())) {
            value.replace(at, modulePlaceholder.size(), modulePath_);
        }
        return value;
    }

    void expect(std::string_view word) {
        if (!takeIf(word)) {
            fail(word);
        }
    }

    bool takeIf(std::string_view word) {
        const bool matches = !atEnd_ && token_.is(word);
        if (matches) {
            advance();
        }
        return matches;
    }

    std::string take() {
        if (atEnd_) {
            fail("more");
        }
        std::string text = std::move(token_.text);
        advance();
        return text;
    }

    void advance() {
        const std::size_t start = rest_.find_first_not_of(blanks);
        if (start == std::string_view::npos) {
            atEnd_ = true;
            token_ = {};
            return;
        }
        rest_.remove_prefix(start);
        if (rest_.front() == '\'') {
            readQuoted();
            return;
        }
        const std::size_t length = std::min(rest_.find_first_of(blanks), rest_.size());
        token_ = {std::string(rest_.substr(0, length)), false};
        rest_.remove_prefix(length);
    }

    void readQuoted() {
        token_ = {{}, true};
        for (;;) {
            rest_.remove_prefix(1);
            const std::size_t quote = rest_.find('\'');
            if (quote == std::string_view::npos) {
                fail("a closing quote");
            }
            token_.text += rest_.substr(0, quote);
            rest_.remove_prefix(quote + 1);
            if (rest_.empty() || rest_.front() != '\'') {
                return;
            }
            token_.text += '\'';
        }
    }

    [[noreturn]] void fail(std::string_view expected) const {
        OrxException::raise("The registration script has \"" + OrxString(token_.text) +
                            "\" where " + OrxString(expected) + " is expected.");
    }

    std::string_view rest_;
    std::string modulePath_;
    Token token_;
    bool atEnd_ = false;
    std::vector<RegisteredKey> keys_;
};

}  // namespace

std::vector<RegisteredKey> readRegistrationScript(std::string_view script,
                                                  std::string_view modulePath) {
    return ScriptReader(script, modulePath).read();
}

}  // namespace quillmark
