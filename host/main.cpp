#include <CLI/CLI.hpp>
#include <algorithm>
#include <cctype>
#include <iostream>

#include "host/fly/fly.h"
#include "host/scenario/scenario.h"
#include "host/version.h"

int main(int argc, char** argv) {
    CLI::App app("The desktop host of the TZ900 flight deck");
    app.require_subcommand(1);
    app.set_version_flag("--version", "tz900 " + std::string(host::kVersion));

    std::vector<std::string> files;
    CLI::App* run = app.add_subcommand("run", "Run scenarios, always with the same result");
    run->add_option("FILE", files,
                    "scenarios in turn: a file, a folder for all *.scn in it, - for standard input")
        ->required();
    run->footer(host::ScenarioHelp());

    host::FlyOptions fly_options;
    fly_options.demo_root = TZ900_DEMO_ROOT;
    fly_options.page_folder = TZ900_PAGE_FOLDER;
    CLI::App* fly = app.add_subcommand("fly", "Fly a route, with the flight deck in a browser");
    CLI::Option* headless = fly->add_flag("--headless", fly_options.headless,
                                          "no flight deck; as fast as the machine allows, to the end");
    fly->add_flag("--cold", fly_options.cold,
                  "on the ground, everything off; the flight is yours, a --route entered for you to activate")
        ->excludes(headless);
    fly->add_flag("--no-pilot", fly_options.no_pilot,
                  "on the runway with the route entered, and nobody flies but you")
        ->excludes(headless);
    fly->add_option("--record", fly_options.record,
                    "write what pilots and host do to this new file, a scenario for tz900 run");
    CLI::Option* play = fly->add_option(
        "--play", fly_options.play,
        "show a recording on the flight deck; the flight is yours where it ends, or when you touch anything");
    fly->add_option("--plot", fly_options.plot,
                    "draw the route, the path on the navigation display and the track into this SVG file")
        ->needs(headless);
    fly->add_option("--rate", fly_options.rate, "times real time")->check(CLI::Range(0.25, 64.0));
    fly->add_option("--port", fly_options.port, "of the flight deck, 8900; 0 is any free one")
        ->check(CLI::Range(0, 65535));
    fly->add_option("--address", fly_options.address,
                    "of the flight deck, 127.0.0.1; a wider one, such as 0.0.0.0, asks for a token");
    const auto plain = [](const std::string& token) {
        const bool good = token.size() >= 8 && std::all_of(token.begin(), token.end(), [](unsigned char c) {
                              return std::isalnum(c) || c == '-' || c == '_';
                          });
        return good ? std::string() : "a token is 8 or more letters, digits, - and _";
    };
    fly->add_option("--token", fly_options.token, "what a browser must know; made up when not given")
        ->check(CLI::Validator(plain, ""));
    fly->add_option("--route", fly_options.route, "a filed route text instead of the demonstration's");
    fly->add_option("--wind", fly_options.wind, "direction it blows from, degrees true, and knots")
        ->expected(2);
    fly->add_option("--root", fly_options.root, "the simulator's root folder")->check(CLI::ExistingDirectory);
    fly->add_option("--navdata", fly_options.navdata, "the navigation data folder")
        ->check(CLI::ExistingDirectory);
    fly->add_option("--aircraft", fly_options.aircraft, "the title of an aircraft under the root");

    for (const char* of_a_flight : {"--headless", "--cold", "--no-pilot", "--record", "--route", "--wind",
                                    "--root", "--navdata", "--aircraft"})
        play->excludes(fly->get_option(of_a_flight));

    CLI11_PARSE(app, argc, argv);
    if (*fly) return host::Fly(fly_options);
    std::ios::sync_with_stdio(false);
    return host::RunScenarioFiles(files, TZ900_DEMO_ROOT);
}
