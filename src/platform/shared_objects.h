#pragma once

#include <cstddef>
#include <memory>
#include <string_view>

// Memory and events that other programs on the machine share by name. A name is that of the system,
// "Global\TZ900_CDU_CONTENTS"; what stands for "Global\" the host decides, and without an answer of its own
// there are no shared objects. Here the memory is POSIX shared memory (shm_open) and an event a named
// semaphore (sem_open); with the host's "/" a peer opens "/TZ900_CDU_CONTENTS" and so on.
//
// What one process has made stays by its name when the handles here have gone, so that a reloaded module
// finds it and its peer notices nothing. It belongs to the user of the process alone.

/// Memory under a name. Empty until Open has succeeded.
class SharedMemory {
  public:
    /// Makes the memory, or takes over what stands under the name, with `size` bytes, all 0. False, and it is
    /// empty, when that can't be.
    bool Open(std::string_view name, std::size_t size);
    bool IsOpen() const { return object_ != nullptr; }

    /// Puts bytes at the memory's start in one move; a peer may see them half written. False on failure.
    bool Write(const void* bytes, std::size_t size);
    /// Copies the memory's first bytes out. False when it doesn't hold so many.
    bool Read(void* bytes, std::size_t size);

  private:
    struct Object;
    std::shared_ptr<Object> object_;  // a copy is the same object
};

/// An event under a name that falls when one has waited for it: set several times it is still one. As a
/// semaphore: to set is to post when the value is 0, to wait for it is to count it down to 0.
class SharedEvent {
  public:
    /// Makes the event, or takes over what stands under the name, not set. False when that can't be.
    bool Open(std::string_view name);

    void Set();
    /// True once after it has been set, without a wait.
    bool Poll();

  private:
    struct Object;
    std::shared_ptr<Object> object_;  // a copy is the same object
};
