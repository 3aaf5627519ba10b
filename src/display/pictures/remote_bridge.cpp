#include "display/pictures/remote_bridge.h"

#include <array>
#include <initializer_list>
#include <iterator>

#include "platform/shared_objects.h"
#include "state/cfg.h"
#include "state/identity.h"
#include "state/remote.h"

namespace {

// One of the two pictures.
struct Picture {
    int gauge_id;
    RemoteImage RemoteState::*image;
    const char* contents;
    const char* output_event;
    int byte_size, high_byte_size;
    unsigned phases;  // bit n: due in phase n
};

constexpr unsigned At(std::initializer_list<int> phases) {
    unsigned bits = 0;
    for (const int phase : phases) bits |= 1u << phase;
    return bits;
}

constexpr Picture kPictures[] = {
    {16, &RemoteState::cdu, "Global\\TZ900_CDU_CONTENTS", "Global\\TZ900_CDU_OUTPUTCHANGED_EVENT", 662000,
     2648000, At({2, 6, 10, 14, 17})},
    {17, &RemoteState::efb, "Global\\TZ900_EFB_CONTENTS", "Global\\TZ900_EFB_OUTPUTCHANGED_EVENT", 426300,
     1705200, At({0, 4, 8, 12, 16})},
};

struct Output {
    SharedMemory contents;
    SharedEvent changed;
};

// What stands open. Not part of the state: it outlives the module's reset, as the names outlive the module.
struct Bridge {
    std::array<Output, std::size(kPictures)> outputs;
    SharedMemory input;
    SharedEvent input_changed;
};
Bridge bridge;

const Picture* FindPicture(int gauge_id) {
    for (const Picture& row : kPictures)
        if (row.gauge_id == gauge_id) return &row;
    return nullptr;
}

Output& OutputOf(const Picture& picture) {
    return bridge.outputs[static_cast<std::size_t>(&picture - kPictures)];
}

}  // namespace

void OpenRemoteBridge(bool high_resolution) {
    bool all_memory = bridge.input.Open("Global\\TZ900_CDU_EVENTDATA", sizeof(RemoteEvent));
    bridge.input_changed.Open("Global\\TZ900_CDU_INPUTCHANGED_EVENT");
    for (const Picture& row : kPictures) {
        const int size = high_resolution ? row.high_byte_size : row.byte_size;
        (remote.*row.image).byte_size = size;
        if (!OutputOf(row).contents.Open(row.contents, static_cast<std::size_t>(size))) all_memory = false;
        OutputOf(row).changed.Open(row.output_event);
    }
    remote.remote_ready = all_memory ? 1 : 0;
}

void OpenConfiguredBridge() {
    if (cfg.RemoteCdu == 1) OpenRemoteBridge(identity.panel_hires == 1 && cfg.remotecduhires == 1);
}

void MarkRemoteImages(int phase) {
    for (const Picture& row : kPictures)
        if ((row.phases >> phase & 1) != 0) (remote.*row.image).due = 1;
}

bool TakeRemoteImage(int gauge_id, const GaugeElement& surface) {
    const Picture* picture = FindPicture(gauge_id);
    if (picture == nullptr || remote.remote_ready == 0) return false;
    RemoteImage& image = remote.*picture->image;
    if (image.due == 0 || surface.byte_size != image.byte_size) return false;
    image.due = 0;
    image.width = surface.width;
    image.height = surface.height;
    return true;
}

void SendRemoteImage(int gauge_id, const GaugeElement& surface) {
    Output& output = OutputOf(*FindPicture(gauge_id));
    if (output.contents.Write(surface.pixels, static_cast<std::size_t>(surface.byte_size)))
        output.changed.Set();
}

bool PollRemoteEvent(RemoteEvent& event) {
    return bridge.input_changed.Poll() && bridge.input.Read(&event, sizeof event);
}
