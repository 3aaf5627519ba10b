#include <CLI/CLI.hpp>

int main(int argc, char** argv) {
    CLI::App app("The desktop host of the TZ900 flight deck");
    CLI11_PARSE(app, argc, argv);
    return 0;
}
