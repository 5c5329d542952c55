#pragma once

namespace quillmark {

/// Counts a live object of the module for as long as it exists. Every object that a host can hold
/// has one as a member. Objects of all apartments share the count.
class LiveObject {
public:
    LiveObject() noexcept;
    LiveObject(const LiveObject&) = delete;
    LiveObject& operator=(const LiveObject&) = delete;
    ~LiveObject();
};

/// Counts a user of the host's services: an object that calls the driver, or a call that writes to
/// the exception log.
class ServiceUser {
public:
    ServiceUser() noexcept;
    ServiceUser(const ServiceUser&) = delete;
    ServiceUser& operator=(const ServiceUser&) = delete;
    ~ServiceUser();
};

/// Whether there is such a user. After a false result, a new user sees everything that was done
/// before this call.
[[nodiscard]] bool servicesHaveUsers() noexcept;

/// Adds or removes a lock of a host on the module.
void lockModule(bool lock) noexcept;

/// Whether no object and no lock is alive, so that the library may be unloaded.
[[nodiscard]] bool moduleIsIdle() noexcept;

}  // namespace quillmark
