#include "display/formats/comm.h"

#include "base/area.h"
#include "display/formats/touch.h"
#include "display/formats/unbuilt.h"

void DrawComm(Graphics& graphics, const ContentPlace& place) {
    DrawFormatName(graphics, place, "COMM");
}

void TouchComm(const FormatTouch& at) {
    if (Area{1, 282, 1, 395}.Has(at.x, at.y)) LeaveClick(displays.comm_click, at);
}
