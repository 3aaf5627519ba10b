#pragma once

/// Keeps the graphics libraries that came with the module in the process when it goes. Some of them keep
/// what they have allocated until the process ends: without this each reload of the module would leave some
/// kilobytes behind.
void KeepGraphicsLibraries();
