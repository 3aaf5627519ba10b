#include "display/pictures/gauge.h"

#include <algorithm>
#include <chrono>
#include <vector>

#include "display/pictures/frame.h"
#include "display/pictures/remote_bridge.h"
#include "paint/rasterise.h"
#include "platform/host.h"
#include "platform/state_lock.h"
#include "state/cfg.h"

namespace {

// The gauges that live, for those who look at pictures by name. Changed by connect and disconnect only.
struct LivingGauges {
    std::mutex lock;
    std::vector<GDIMTGauge*> gauges;
};
LivingGauges living;

// A surface of four bytes a pixel without gaps, as the rasteriser paints it.
bool HasOurPixels(const GaugeElement& element) {
    constexpr int kLargest = 8192;
    if (element.pixels == nullptr || element.width < 1 || element.height < 1 || element.width > kLargest ||
        element.height > kLargest)
        return false;
    const bool aligned = reinterpret_cast<std::uintptr_t>(element.pixels) % alignof(std::uint32_t) == 0;
    return aligned && element.byte_size == element.width * element.height * 4;
}

}  // namespace

GDIMTGauge::~GDIMTGauge() {
    StopWorker();
}

void GDIMTGauge::Callback(GaugeElement* element_tree, int service_id) {
    switch (service_id) {
        case kServicePostInstall:
            StartWorker(element_tree);
            break;
        case kServicePreDraw:
            if (first_element_ != nullptr && frame_pending_ == 0) {
                element_ = element_tree;
                frame_pending_ = 1;
                wake_.notify_one();  // without the lock, since the host never waits: one lost costs a period
            }
            break;
        case kServicePreKill:
            StopWorker();
            break;
        default:
            break;
    }
}

void GDIMTGauge::StartWorker(GaugeElement* element_tree) {
    StopWorker();
    painted_pixels_ = nullptr;
    frame_pending_ = 0;  // what was asked for stood on the elements of before
    const bool can_be_painted = element_tree != nullptr && element_tree->device_context != nullptr;
    first_element_ = can_be_painted ? element_tree : nullptr;
    if (can_be_painted && Host().paints_in_line() == 0) thread_ = std::thread([this] { Work(); });
}

// Never called with the state lock held: the worker may be waiting for it.
void GDIMTGauge::StopWorker() {
    {
        const std::lock_guard guard(sleep_lock_);
        stop_ = 1;
    }
    wake_.notify_all();
    if (thread_.joinable()) thread_.join();
    stop_ = 0;
}

void GDIMTGauge::Work() {
    while (stop_ == 0) {
        const std::chrono::milliseconds period(period_ms_);
        const bool painted = PaintPendingFrame();
        std::unique_lock guard(sleep_lock_);
        if (painted) wake_.wait_for(guard, period, [this] { return stop_ != 0; });
        wake_.wait_for(guard, period, [this] { return stop_ != 0 || frame_pending_ != 0; });
    }
}

bool GDIMTGauge::PaintPendingFrame() {
    if (frame_pending_ == 0) return false;
    if (GaugeElement* element = element_) {
        if (element->device_context != nullptr) PaintFrame(*element);
        std::atomic_ref(element->flags) &= ~kElementDirty;
    }
    frame_pending_ = 0;
    return true;
}

void GDIMTGauge::PaintFrame(GaugeElement& element) {
    bool goes_to_peer = false;
    {
        const StateLock lock;
        period_ms_ = static_cast<int>(1000 / std::clamp<double>(cfg.GaugeRefreshRate, 1, 1000));
        if (!ComposeFrame(row_, composing_)) return;
        goes_to_peer = HasOurPixels(element) && TakeRemoteImage(row_.gauge_id, element);
    }
    KeepPicture();
    if (!goes_to_peer) return;
    PaintPixels(element);
    SendRemoteImage(row_.gauge_id, element);
}

// Only this thread changes the picture, so that it may read it without the lock.
void GDIMTGauge::PaintPixels(GaugeElement& element) {
    if (painted_pixels_ == element.pixels && painted_number_ == picture_number_) return;
    RasteriseOnto(picture_, element.width, element.height, reinterpret_cast<std::uint32_t*>(element.pixels));
    painted_pixels_ = element.pixels;
    painted_number_ = picture_number_;
}

void GDIMTGauge::KeepPicture() {
    const std::lock_guard guard(picture_lock_);
    if (composing_ == picture_) return;
    std::swap(composing_, picture_);
    ++picture_number_;
}

void ServePaintedGauge(GaugeInstance* instance, int32_t service_id) {
    GDIMTGauge* gauge = GaugeOf(*instance);
    if (service_id == kServiceConnectToWindow && gauge == nullptr) {
        const PaintedGauge* row = FindPaintedGauge(instance->gauge->name);
        if (row == nullptr) return;
        gauge = new GDIMTGauge(*row);
        instance->user_data = gauge;
        const std::lock_guard guard(living.lock);
        living.gauges.push_back(gauge);
        return;
    }
    if (gauge == nullptr) return;
    if (service_id == kServiceDisconnect) {
        {
            const std::lock_guard guard(living.lock);
            std::erase(living.gauges, gauge);
        }
        delete gauge;
        instance->user_data = nullptr;
        return;
    }
    gauge->Callback(instance->elements, service_id);
}

void WithLivingGauge(std::string_view name, const std::function<void(GDIMTGauge&)>& use) {
    const std::lock_guard guard(living.lock);
    for (GDIMTGauge* gauge : living.gauges)
        if (gauge->row().name == name) return use(*gauge);
}
