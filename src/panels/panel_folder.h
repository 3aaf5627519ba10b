#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

/// The name that a panel's file has in the folder: upper case, ".PNL" at its end, once.
std::string PanelFileName(std::string_view name);

/// A panel's file; nothing when it is missing, unreadable, too large, or no plain name.
std::optional<FileBytes> ReadPanelFile(std::string_view name);
bool WritePanelFile(std::string_view name, std::string_view text);

/// Fills `panel_files.PanelFiles` with the stored panels.
void ListPanels();
