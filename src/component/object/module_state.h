#pragma once

namespace quillmark {

/// Counts one live object of the module for as long as it exists; a member of everything that a
/// host can hold. The count is the one thing that objects of several apartments share.
class LiveObject {
public:
    LiveObject() noexcept;
    LiveObject(const LiveObject&) = delete;
    LiveObject& operator=(const LiveObject&) = delete;
    ~LiveObject();
};

/// Counts one user of the services that a host has lent: an object that calls the driver, or a call
/// without one that tells the exception log.
class ServiceUser {
public:
    ServiceUser() noexcept;
    ServiceUser(const ServiceUser&) = delete;
    ServiceUser& operator=(const ServiceUser&) = delete;
    ~ServiceUser();
};

/// Whether there is one. A user that comes after the answer "no" sees all that was done before it.
[[nodiscard]] bool servicesHaveUsers() noexcept;

/// Adds (or takes away) a lock that a host holds on the module.
void lockModule(bool lock) noexcept;

/// Whether no object and no lock is alive, so that the library may be unloaded.
[[nodiscard]] bool moduleIsIdle() noexcept;

}  // namespace quillmark
