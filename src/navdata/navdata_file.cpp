#include "navdata/navdata_file.h"

#include <string>

FileBytes ReadNavdata(std::string_view name) {
    return ReadFile(std::string("\\Velarion\\TZ900\\Navdata\\").append(name)).value_or(FileBytes{});
}
