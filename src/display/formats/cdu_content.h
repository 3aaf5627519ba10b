#pragma once

#include "display/formats/format.h"

/// The CDU of the half's side.
void DrawCduContent(Graphics& graphics, const ContentPlace& place);
void TouchCduContent(const FormatTouch& at);
