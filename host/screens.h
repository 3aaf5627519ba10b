#pragma once

#include <string>
#include <string_view>

#include "host/session.h"

namespace host {

/// The gauge that paints a screen now: "capt_outb capt_inb fo_inb fo_outb lower hud stby efb_l efb_r debug".
/// The two-dimensional cockpit has gauges of its own for the captain's units. Empty for another name.
std::string GaugeOfScreen(std::string_view screen);
/// The same by whether the two-dimensional cockpit is shown; for other threads than the host's.
std::string GaugeOfScreen(std::string_view screen, bool in_2d);

/// Asks every visible gauge for a picture and has it painted at once, in gauge order.
void PaintGauges(Session& session);

/// Asks every visible gauge for a picture, which its worker paints in its own time.
void RequestPictures(Session& session);

/// The gauge that takes a screen's mouse presses, in the screen's logical frame; empty when none does.
std::string MouseGaugeOfScreen(std::string_view screen);

/// A screen's last picture as a PNG file; false when it has none or the file can't be written.
bool WritePictureFile(const Session& session, const std::string& screen, const std::string& file,
                      double scale);

}  // namespace host
