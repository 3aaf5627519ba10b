#pragma once

#include <atomic>
#include <condition_variable>
#include <cstdint>
#include <functional>
#include <mutex>
#include <span>
#include <string_view>
#include <thread>

#include "display/pictures/painted_gauges.h"
#include "paint/draw_list.h"
#include "platform/panel_gauges.h"

// The painted gauges: each paints its picture by a worker thread of its own, at most GaugeRefreshRate times a
// second and only when the host has asked.

class GDIMTGauge {
  public:
    explicit GDIMTGauge(const PaintedGauge& row) : row_(row) {}
    ~GDIMTGauge();
    GDIMTGauge(const GDIMTGauge&) = delete;
    GDIMTGauge& operator=(const GDIMTGauge&) = delete;

    /// The host's services: 3 starts the worker when the head of the chain can be painted, 10 asks for a
    /// picture, 12 ends the worker.
    void Callback(GaugeElement* element_tree, int service_id);

    /// Paints one picture if the host has asked for one. The body of the worker's loop; called in line where
    /// there are no workers. False when nothing was asked.
    bool PaintPendingFrame();

    const PaintedGauge& row() const { return row_; }

    /// Calls `use` with the last picture and its number, which rises with each change. Any thread.
    template <class Use>
    void WithPicture(Use&& use) {
        const std::lock_guard guard(picture_lock_);
        use(picture_, picture_number_);
    }

  private:
    void StartWorker(GaugeElement* element_tree);
    void StopWorker();
    void Work();
    void PaintFrame(GaugeElement& element);
    void KeepPicture();
    void PaintPixels(GaugeElement& element);

    const PaintedGauge& row_;
    std::atomic<GaugeElement*> element_ = nullptr;  // to paint next, written before frame_pending_
    std::atomic<int> frame_pending_ = 0;
    std::thread thread_;
    std::atomic<int> stop_ = 0;
    GaugeElement* first_element_ = nullptr;  // the chain's head, if it proved to hold a device context

    std::mutex sleep_lock_;  // the worker sleeps on it, so that neither a request nor its end waits
    std::condition_variable wake_;
    int period_ms_ = 55;

    DrawList composing_;  // the worker's own
    std::mutex picture_lock_;
    DrawList picture_;
    std::uint64_t picture_number_ = 0;
    const std::uint8_t* painted_pixels_ = nullptr;  // the surface that holds a picture, and which
    std::uint64_t painted_number_ = 0;
};

/// The gauge object of a painted gauge's instance; null before connect-to-window.
inline GDIMTGauge* GaugeOf(const GaugeInstance& instance) {
    return static_cast<GDIMTGauge*>(instance.user_data);
}

/// The service function of every painted gauge: makes the object at connect, forwards, destroys it at
/// disconnect.
void ServePaintedGauge(GaugeInstance* instance, int32_t service_id);

/// Calls `use` with the living gauge of that name, which can't go meanwhile; not at all when none is
/// connected.
void WithLivingGauge(std::string_view name, const std::function<void(GDIMTGauge&)>& use);
