#include <CLI/CLI.hpp>
#include <iostream>

#include "host/scenario/scenario.h"

int main(int argc, char** argv) {
    CLI::App app("The desktop host of the TZ900 flight deck");
    app.require_subcommand(1);

    std::vector<std::string> files;
    CLI::App* run = app.add_subcommand("run", "Run scenarios, always with the same result");
    run->add_option("FILE", files, "scenario files in turn; - is standard input")->required();
    run->footer(host::ScenarioHelp());

    CLI11_PARSE(app, argc, argv);
    std::ios::sync_with_stdio(false);
    return host::RunScenarioFiles(files, TZ900_DEMO_ROOT);
}
