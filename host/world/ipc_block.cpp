#include "host/world/ipc_block.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>

#include "host/world/world.h"

namespace host {
namespace {

constexpr int kOffsetRequest = 0xD000, kOffsetIcao = 0xD004, kOffsetToken = 0xD008, kOffsetRunways = 0xD00C;
constexpr std::uint32_t kRequestRunways = 0x4BD9;
constexpr std::string_view kDesignators = " LRCW";

bool IsInBlock(int offset, int size) {
    const int block = static_cast<int>(world.ipc.size());
    return offset >= 0 && size >= 0 && size <= block && offset <= block - size;
}

// Runway number and designator code of "07L"; the number is 0 for what is no runway.
void WriteRunway(const std::string& name, std::uint8_t* pair) {
    const int number = std::atoi(name.c_str());
    const std::size_t designator = name.empty() ? std::string_view::npos : kDesignators.find(name.back());
    pair[0] = static_cast<std::uint8_t>(number >= 1 && number <= 36 ? number : 0);
    pair[1] = static_cast<std::uint8_t>(designator == std::string_view::npos ? 0 : designator);
}

void AnswerRunways() {
    const std::string icao(reinterpret_cast<const char*>(world.ipc.data()) + kOffsetIcao, 4);
    std::fill_n(world.ipc.begin() + kOffsetRunways, 8, std::uint8_t{0});
    for (const auto& airport : world.active_runways) {
        if (airport[0] != icao) continue;
        for (std::size_t i = 0; i < 4; ++i)
            WriteRunway(airport[i + 1], world.ipc.data() + kOffsetRunways + 2 * i);
    }
    std::memcpy(world.ipc.data() + kOffsetToken, &kRequestRunways, sizeof kRequestRunways);
}

}  // namespace

int IpcOpen() {
    return world.active_runways.empty() ? 0 : 1;
}

void IpcWrite(int offset, const void* bytes, int size) {
    if (bytes != nullptr && IsInBlock(offset, size))
        std::memcpy(world.ipc.data() + offset, bytes, static_cast<std::size_t>(size));
}

void IpcRead(int offset, void* bytes, int size) {
    if (bytes != nullptr && IsInBlock(offset, size)) world.ipc_reads.push_back({offset, bytes, size});
}

int IpcProcess() {
    std::uint32_t request = 0;
    std::memcpy(&request, world.ipc.data() + kOffsetRequest, sizeof request);
    if (request == kRequestRunways) AnswerRunways();
    for (const IpcQueuedRead& read : world.ipc_reads)
        std::memcpy(read.bytes, world.ipc.data() + read.offset, static_cast<std::size_t>(read.size));
    world.ipc_reads.clear();
    return 1;
}

void IpcClose() {
    world.ipc_reads.clear();
}

}  // namespace host
