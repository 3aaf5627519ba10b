#include "display/formats/info.h"

#include "display/formats/touch.h"
#include "display/formats/unbuilt.h"

void DrawInfo(Graphics& graphics, const ContentPlace& place) {
    DrawFormatName(graphics, place, "INFO");
    // What the crew has been told on the first page is told once.
    if (displays.info_page != 1 && displays.info_status > 0) displays.info_status = 0;
}

void TouchInfo(const FormatTouch& at) {
    LeaveClick(displays.info_click, at);
}
