#pragma once

#include <semaphore.h>

#include <cstdint>
#include <string>
#include <vector>

// A program that shows the lower unit and the captain's tablet in windows of its own and presses their keys:
// it knows the module by shared memory and events alone.

namespace host {

/// What stands for "Global\" in the names that the module shares: "/" where this session serves the whole
/// machine (`world.serves_peers`), else a beginning that no other process has. What has been made under it
/// goes from the machine when the process ends; when it was killed, as soon as another one asks.
std::string SharedNames();

class RemotePeer {
  public:
    RemotePeer() = default;
    RemotePeer(const RemotePeer&) = delete;
    RemotePeer& operator=(const RemotePeer&) = delete;
    ~RemotePeer();

    /// Opens what the module has made; false when it has made nothing.
    bool Open();

    enum Screen { kLower, kTablet };
    /// The picture as it stands in the memory, as many bytes as that has.
    std::vector<std::uint8_t> Picture(Screen screen) const;
    /// A new picture has been written since the last call; waits for it up to so many milliseconds.
    bool HasNewPicture(Screen screen, int wait_ms = 0);

    /// Writes a record for the module: device 0 captain's CDU, 1 first officer's, 2 tablet; kind 0 a key
    /// code, 2 a touch.
    void Send(int device, int kind, int code, int x = 0, int y = 0);

  private:
    int contents_[2] = {-1, -1};
    int input_ = -1;
    sem_t* changed_[2] = {nullptr, nullptr};
    sem_t* input_changed_ = nullptr;
};

}  // namespace host
