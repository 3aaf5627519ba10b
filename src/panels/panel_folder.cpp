#include "panels/panel_folder.h"

#include "base/text.h"
#include "state/panel_files.h"

namespace {

constexpr std::string_view kFolder = "\\Velarion\\TZ900\\PanelStates";
constexpr std::string_view kEnding = ".PNL";
constexpr std::size_t kMostBytes = std::size_t{8} << 20;

bool IsPanel(std::string_view upper_name) {
    return upper_name.size() > kEnding.size() && upper_name.ends_with(kEnding);
}

std::string PathOf(std::string_view name) {
    return std::string(kFolder) + '\\' + std::string(name);
}

}  // namespace

std::string PanelFileName(std::string_view name) {
    std::string upper = UpperCase(name);
    if (!IsPanel(upper)) upper += kEnding;
    return upper;
}

std::optional<FileBytes> ReadPanelFile(std::string_view name) {
    if (!IsPlainFileName(name)) return {};
    return ReadFile(PathOf(name), FileRoot::kSimulator, kMostBytes);
}

bool WritePanelFile(std::string_view name, std::string_view text) {
    return IsPlainFileName(name) && WriteFile(UpperCase(PathOf(name)), text);
}

void ListPanels() {
    panel_files.PanelFiles.clear();
    panel_files.panel_file_count = 0;
    for (const FolderEntry& entry : ListFolder(kFolder)) {
        const std::string upper = UpperCase(entry.name);
        if (!entry.is_folder && IsPanel(upper))
            panel_files.PanelFiles[++panel_files.panel_file_count] = upper;
    }
}
