#pragma once

/// Keeps the graphics libraries that came with the module in the process when it goes. One of them allocates
/// as it is loaded and never frees: without this each reload of the module would leave some kilobytes behind.
void KeepGraphicsLibraries();
