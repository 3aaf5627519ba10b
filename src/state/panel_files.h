#pragma once

#include <span>
#include <string>

#include "state/growing_list.h"
#include "state/variable.h"

/// The stored panel states, and their saving by itself.
struct PanelFileState {
    GrowingList<std::string> PanelFiles;  // upper case, from 1, in the order of the folder
    int panel_file_count = 0;
    int autosave_secs = 0;  // since the last autosave
};

extern PanelFileState panel_files;
extern const std::span<const Variable> kPanelFileVariables;
