#include "display/formats/debug_screen.h"

#include "display/formats/unbuilt.h"

void DrawDebugScreen(Graphics& graphics) {
    DrawName(graphics, 282, 424, "DEBUG");
}
