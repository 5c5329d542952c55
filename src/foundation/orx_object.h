#pragma once

namespace quillmark {

/// The base class of the shared types. It has a virtual destructor and nothing else.
class OrxObject {
public:
    OrxObject() = default;
    OrxObject(const OrxObject&) = default;
    OrxObject(OrxObject&&) = default;
    OrxObject& operator=(const OrxObject&) = default;
    OrxObject& operator=(OrxObject&&) = default;
    virtual ~OrxObject() = default;
};

}  // namespace quillmark
