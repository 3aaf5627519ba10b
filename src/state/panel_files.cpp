#include "state/panel_files.h"

PanelFileState panel_files;

namespace {
constexpr Variable kPanelFileRows[] = {
    {"PanelFiles", &panel_files.PanelFiles},
    {"panel_file_count", &panel_files.panel_file_count},
    {"autosave_secs", &panel_files.autosave_secs},
};
}  // namespace

const std::span<const Variable> kPanelFileVariables = kPanelFileRows;
