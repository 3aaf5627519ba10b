#pragma once

#include <string>
#include <vector>

#include "module/linkage.h"

/// Every variable of a loaded module with its value, a line each.
inline std::string AllVariables(const InspectionTable& table) {
    std::vector<std::string> names;
    table.list_variables(
        "",
        [](void* list, const char* name, const char*) {
            static_cast<std::vector<std::string>*>(list)->emplace_back(name);
        },
        &names);
    std::string text;
    for (const std::string& name : names)
        table.read_variable(
            name.c_str(),
            [](void* all, const char* path, const char* value) {
                static_cast<std::string*>(all)->append(path).append("=").append(value).append("\n");
            },
            &text);
    return text;
}
