#pragma once

#include "display/routing/content_place.h"
#include "paint/graphics.h"

constexpr int kAirPage = 1, kCbPage = 2, kDoorPage = 3, kEfisDspPage = 4, kElecPage = 5, kFctlPage = 6,
              kFuelPage = 7, kGearPage = 8, kHydPage = 9, kMaintPage = 10, kStatPage = 11;

/// The two rows of keys above a page, about the middle of the half at a height of 237. The pages for
/// maintenance have one key, which leads back.
void DrawSysKeyStrip(Graphics& graphics, int half, int page);

/// The page that a press at x, y of a half chooses from `page`; `page` itself where there is no key.
int PageOfPress(int page, int x, int y);
