#pragma once

#include <memory>
#include <string>
#include <vector>

#include "component/object/document_object.h"
#include "dochtml/com_pointer.h"
#include "support/recording_document.h"

namespace quillmark::testing {

/// A document object whose driver records its calls.
class RecordedObject {
public:
    explicit RecordedObject(IUnknown* outer = nullptr) {
        result_ = DocumentObject::make(&makeRecording, outer,
                                       outer == nullptr ? IID_IDocument : IID_IUnknown,
                                       object_.receive());
        recording_ = newest;
    }

    [[nodiscard]] HRESULT result() const noexcept { return result_; }
    [[nodiscard]] ::IDocument& document() const noexcept { return *object_.get(); }
    [[nodiscard]] std::vector<std::string>& calls() const noexcept { return recording_->calls; }
    void release() noexcept { object_.reset(); }

private:
    static std::unique_ptr<IDocument> makeRecording() {
        auto recording = std::make_unique<RecordingDocument>();
        newest = recording.get();
        return recording;
    }
    inline static RecordingDocument* newest = nullptr;

    ComPointer<::IDocument> object_;
    RecordingDocument* recording_ = nullptr;
    HRESULT result_ = E_UNEXPECTED;
};

}  // namespace quillmark::testing
