#include "host/remote_peer.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <system_error>

#include "host/process.h"
#include "host/world/world.h"

namespace host {
namespace {

constexpr const char* kContents[] = {"TZ900_CDU_CONTENTS", "TZ900_EFB_CONTENTS"};
constexpr const char* kOutputChanged[] = {"TZ900_CDU_OUTPUTCHANGED_EVENT", "TZ900_EFB_OUTPUTCHANGED_EVENT"};
constexpr const char* kEventData = "TZ900_CDU_EVENTDATA";
constexpr const char* kInputChanged = "TZ900_CDU_INPUTCHANGED_EVENT";

void RemoveNames(const std::string& names) {
    for (const char* name : {kContents[0], kContents[1], kEventData}) shm_unlink((names + name).c_str());
    for (const char* name : {kOutputChanged[0], kOutputChanged[1], kInputChanged})
        sem_unlink((names + name).c_str());
}

constexpr std::string_view kPrivateNamePrefix = "tz900.";  // the process id follows, and a point

std::string PrivateNames() {
    return "/" + std::string(kPrivateNamePrefix) + std::to_string(getpid()) + ".";
}

// Processes that were killed left their private names to the machine, which shows them as files.
void RemoveNamesOfTheDead() {
    constexpr std::string_view kSemaphore = "sem.";
    std::error_code error;
    for (const auto& entry : std::filesystem::directory_iterator("/dev/shm", error)) {
        std::string name = entry.path().filename();
        if (name.starts_with(kSemaphore)) name.erase(0, kSemaphore.size());
        if (!name.starts_with(kPrivateNamePrefix)) continue;
        if (IsProcessGone(std::atoi(name.c_str() + kPrivateNamePrefix.size())))
            std::filesystem::remove(entry.path(), error);
    }
}

// The module is told names, and leaves what it makes; this outlives every session of the process.
struct GivenNames {
    std::atomic<bool> private_given = false, machine_given = false;
    ~GivenNames() {
        if (private_given) RemoveNames(PrivateNames());
        if (machine_given) RemoveNames("/");
    }
};
GivenNames given;

int OpenMemory(const char* name, int mode) {
    return shm_open((SharedNames() + name).c_str(), mode, 0);
}

sem_t* OpenEvent(const char* name) {
    sem_t* event = sem_open((SharedNames() + name).c_str(), 0);
    return event == SEM_FAILED ? nullptr : event;
}

}  // namespace

std::string SharedNames() {
    if (world.serves_peers) {
        given.machine_given = true;
        return "/";
    }
    if (!given.private_given.exchange(true)) RemoveNamesOfTheDead();
    return PrivateNames();
}

RemotePeer::~RemotePeer() {
    for (const int memory : {contents_[0], contents_[1], input_})
        if (memory >= 0) close(memory);
    for (sem_t* event : {changed_[0], changed_[1], input_changed_})
        if (event != nullptr) sem_close(event);
}

bool RemotePeer::Open() {
    bool all = true;
    for (const Screen screen : {kLower, kTablet}) {
        contents_[screen] = OpenMemory(kContents[screen], O_RDONLY);
        changed_[screen] = OpenEvent(kOutputChanged[screen]);
        all = all && contents_[screen] >= 0 && changed_[screen] != nullptr;
    }
    input_ = OpenMemory(kEventData, O_RDWR);
    input_changed_ = OpenEvent(kInputChanged);
    return all && input_ >= 0 && input_changed_ != nullptr;
}

std::vector<std::uint8_t> RemotePeer::Picture(Screen screen) const {
    struct stat status {};
    if (fstat(contents_[screen], &status) != 0) return {};
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(status.st_size));
    const ssize_t got = pread(contents_[screen], bytes.data(), bytes.size(), 0);
    bytes.resize(got < 0 ? 0 : static_cast<std::size_t>(got));
    return bytes;
}

bool RemotePeer::HasNewPicture(Screen screen, int wait_ms) {
    timespec until{};
    clock_gettime(CLOCK_REALTIME, &until);
    until.tv_nsec += wait_ms % 1000 * 1'000'000L;
    until.tv_sec += wait_ms / 1000 + until.tv_nsec / 1'000'000'000;
    until.tv_nsec %= 1'000'000'000;
    return sem_timedwait(changed_[screen], &until) == 0;
}

void RemotePeer::Send(int device, int kind, int code, int x, int y) {
    const std::int32_t record[] = {device, kind, code, x, y};
    if (pwrite(input_, record, sizeof record, 0) == static_cast<ssize_t>(sizeof record))
        sem_post(input_changed_);
}

}  // namespace host
