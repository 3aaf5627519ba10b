#include "display/formats/cdu_content.h"

#include "cdu/unit/cdu_format.h"
#include "cdu/unit/items.h"

void DrawCduContent(Graphics& graphics, const ContentPlace& place) {
    DrawCdu(graphics, place.half, place.side);
}

void TouchCduContent(const FormatTouch& at) {
    OnCduTouch(at.side, at.x, at.y);
}
