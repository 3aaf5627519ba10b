#include "platform/shared_objects.h"

#include <fcntl.h>
#include <semaphore.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <string>

#include "platform/host.h"

namespace {

constexpr mode_t kOwnersAlone = S_IRUSR | S_IWUSR;

// The name as the machine has it; empty when there can be none.
std::string MachineName(std::string_view name) {
    constexpr std::string_view kGlobal = "Global\\";
    const std::string space = SharedNameSpace();
    const bool usable = space.starts_with('/') && space.find('/', 1) == std::string::npos;
    if (!usable || !name.starts_with(kGlobal)) return {};
    name.remove_prefix(kGlobal.size());
    return space + std::string(name);
}

// The memory is reached through its descriptor, not through a mapping: a peer may cut it short, or the
// machine may be out of memory, and then a call fails where a mapping would end the process.
bool ResizeAndClear(int descriptor, off_t size) {
    struct stat status {};
    if (fstat(descriptor, &status) != 0) return false;
    if (status.st_size != size && ftruncate(descriptor, size) != 0) return false;
    return fallocate(descriptor, FALLOC_FL_PUNCH_HOLE | FALLOC_FL_KEEP_SIZE, 0, size) == 0;
}

}  // namespace

struct SharedMemory::Object {
    explicit Object(int opened) : descriptor(opened) {}
    Object(const Object&) = delete;
    ~Object() { close(descriptor); }
    int descriptor;
};

bool SharedMemory::Open(std::string_view name, std::size_t size) {
    object_.reset();
    const std::string machine_name = MachineName(name);
    if (machine_name.empty()) return false;
    const int descriptor = shm_open(machine_name.c_str(), O_CREAT | O_RDWR, kOwnersAlone);
    if (descriptor < 0) return false;
    object_ = std::make_shared<Object>(descriptor);
    if (!ResizeAndClear(descriptor, static_cast<off_t>(size))) object_.reset();
    return IsOpen();
}

bool SharedMemory::Write(const void* bytes, std::size_t size) {
    return IsOpen() && pwrite(object_->descriptor, bytes, size, 0) == static_cast<ssize_t>(size);
}

bool SharedMemory::Read(void* bytes, std::size_t size) {
    return IsOpen() && pread(object_->descriptor, bytes, size, 0) == static_cast<ssize_t>(size);
}

struct SharedEvent::Object {
    explicit Object(sem_t* opened) : semaphore(opened) {}
    Object(const Object&) = delete;
    ~Object() { sem_close(semaphore); }
    sem_t* semaphore;
};

bool SharedEvent::Open(std::string_view name) {
    object_.reset();
    const std::string machine_name = MachineName(name);
    if (machine_name.empty()) return false;
    sem_t* semaphore = sem_open(machine_name.c_str(), O_CREAT, kOwnersAlone, 0);
    if (semaphore == SEM_FAILED) return false;
    object_ = std::make_shared<Object>(semaphore);
    Poll();
    return true;
}

void SharedEvent::Set() {
    int value = 0;
    if (object_ != nullptr && sem_getvalue(object_->semaphore, &value) == 0 && value == 0)
        sem_post(object_->semaphore);
}

bool SharedEvent::Poll() {
    constexpr int kMostPosts = 1000;  // a peer that posts without end doesn't hold up the host
    bool was_set = false;
    for (int i = 0; object_ != nullptr && i < kMostPosts && sem_trywait(object_->semaphore) == 0; ++i)
        was_set = true;
    return was_set;
}
