#include "support/paths.h"

const std::string& SourceDir() {
    static const std::string kFolder = TZ900_SOURCE_DIR;
    return kFolder;
}

const std::string& BinaryDir() {
    static const std::string kFolder = TZ900_BINARY_DIR;
    return kFolder;
}
