#pragma once

#include <string>

/// The top folder of the sources, and the folder of the built programs.
const std::string& SourceDir();
const std::string& BinaryDir();
