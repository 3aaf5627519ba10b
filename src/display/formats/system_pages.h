#pragma once

#include "display/formats/format.h"

/// The system page of a half. Its touch strips choose the page.
void DrawSystemPage(Graphics& graphics, const ContentPlace& place);
void TouchSystemPage(const FormatTouch& at);
