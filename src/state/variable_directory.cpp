#include "state/variable_directory.h"

#include <charconv>
#include <cmath>
#include <string>
#include <unordered_map>

#include "state/state_groups.h"

namespace {

std::unordered_map<std::string_view, const Variable*> BuildIndex() {
    std::unordered_map<std::string_view, const Variable*> index;
    for (const StateGroup& group : StateGroups())
        for (const Variable& variable : *group.variables) index.emplace(variable.name, &variable);
    return index;
}

const std::unordered_map<std::string_view, const Variable*> kIndex = BuildIndex();

// Cuts the name before the next '.' or '[' off the front of the path.
std::string_view TakeName(std::string_view& path) {
    const std::size_t end = path.find_first_of(".[");
    const std::string_view name = path.substr(0, end);
    path.remove_prefix(end == std::string_view::npos ? path.size() : end);
    return name;
}

// Takes "[N]" off the front of the path.
std::optional<int> TakeIndex(std::string_view& path) {
    const std::size_t end = path.find(']');
    if (end == std::string_view::npos) return {};
    int index = 0;
    const auto [rest, error] = std::from_chars(path.data() + 1, path.data() + end, index);
    if (error != std::errc{} || rest != path.data() + end) return {};
    path.remove_prefix(end + 1);
    return index;
}

std::optional<VariableRef> Step(const VariableRef& at, std::string_view& path) {
    if (path.front() == '[') {
        const std::optional<int> index = TakeIndex(path);
        if (!index || at.type->kind != ValueKind::kList) return {};
        void* item = at.type->list_item(at.address, *index);
        if (item == nullptr) return {};
        return VariableRef{at.type->item, item};
    }
    path.remove_prefix(1);
    const std::string_view name = TakeName(path);
    if (at.type->kind != ValueKind::kRecord) return {};
    for (const Field& field : at.type->fields)
        if (field.name == name) return VariableRef{field.type, field.member(at.address)};
    return {};
}

}  // namespace

std::optional<VariableRef> FindVariable(std::string_view path) {
    // A side's variable carries its prefix as a part of its name: "capt.ScratchPad".
    std::string_view rest = path;
    if (rest.starts_with("capt.") || rest.starts_with("fo.")) rest.remove_prefix(rest.find('.') + 1);
    const std::size_t prefix = path.size() - rest.size();
    TakeName(rest);
    const std::string_view name = path.substr(0, path.size() - rest.size());
    if (name.size() == prefix) return {};
    auto found = kIndex.find(name);
    // What stands once for each side is the captain's without one.
    if (found == kIndex.end() && prefix == 0) found = kIndex.find("capt." + std::string(name));
    if (found == kIndex.end()) return {};
    std::optional<VariableRef> at = VariableRef{found->second->type, found->second->address};
    while (at && !rest.empty()) at = Step(*at, rest);
    return at;
}

std::string_view NameOfVariable(const void* address) {
    for (const StateGroup& group : StateGroups())
        for (const Variable& variable : *group.variables)
            if (variable.address == address) return variable.name;
    return {};
}

std::string FormatNumber(double value) {
    if (std::isnan(value)) return "nan";
    if (std::isinf(value)) return value > 0 ? "inf" : "-inf";
    char text[64];
    const bool whole = value == std::floor(value) && std::fabs(value) < 1e15;
    const auto result = whole ? std::to_chars(text, text + sizeof text, static_cast<long long>(value))
                              : std::to_chars(text, text + sizeof text, value);
    return {text, result.ptr};
}

std::string FormatValue(const VariableRef& variable) {
    switch (variable.type->kind) {
        case ValueKind::kInt:
            return std::to_string(*static_cast<const int*>(variable.address));
        case ValueKind::kDouble:
            return FormatNumber(*static_cast<const double*>(variable.address));
        case ValueKind::kText:
            return *static_cast<const std::string*>(variable.address);
        case ValueKind::kTextView:
            return std::string(*static_cast<const std::string_view*>(variable.address));
        case ValueKind::kRecord:
        case ValueKind::kList:
            break;
    }
    return {};
}

bool StoreValue(const VariableRef& variable, std::string_view text) {
    if (variable.type->kind == ValueKind::kText) {
        *static_cast<std::string*>(variable.address) = text;
        return true;
    }
    double number = 0;
    const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc{} || rest != text.data() + text.size()) return false;
    if (!std::isfinite(number)) return false;
    if (variable.type->kind == ValueKind::kDouble) {
        *static_cast<double*>(variable.address) = number;
        return true;
    }
    if (variable.type->kind != ValueKind::kInt) return false;
    if (number != std::floor(number) || std::fabs(number) > 2147483647.0) return false;
    *static_cast<int*>(variable.address) = static_cast<int>(number);
    return true;
}
