#pragma once

#include <string>
#include <string_view>

#include "module/linkage.h"
#include "state/variable_directory.h"

/// Where an inspection call puts its results.
struct Results {
    ResultSink sink;
    void* context;

    void Add(std::string_view name, const std::string& value) const {
        sink(context, std::string(name).c_str(), value.c_str());
    }
    void Add(std::string_view name, double value) const { Add(name, FormatNumber(value)); }
    /// The reason why a call gives nothing; gives the 0 that such a call returns.
    int Fail(const std::string& reason) const {
        Add("error", reason);
        return 0;
    }
};
