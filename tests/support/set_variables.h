#pragma once

#include <gtest/gtest.h>

#include <sstream>
#include <string>

#include "state/variable_directory.h"

/// Sets state variables by their names: "apu_rpm 80.5, apu_stopping 1".
inline void SetVariables(const std::string& text) {
    std::istringstream pairs(text);
    for (std::string pair; std::getline(pairs, pair, ',');) {
        std::istringstream words(pair);
        std::string name, value;
        words >> name >> value;
        const auto variable = FindVariable(name);
        ASSERT_TRUE(variable && StoreValue(*variable, value)) << name << ' ' << value;
    }
}

/// A state variable as text, by its name; empty for one that isn't there.
inline std::string StoredText(const std::string& name) {
    const auto variable = FindVariable(name);
    return variable ? FormatValue(*variable) : std::string();
}
