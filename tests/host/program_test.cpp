// The program itself, run as its users run it: what it leaves behind.

#include <fcntl.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <thread>
#include <vector>

#include "support/file_text.h"
#include "support/paths.h"

namespace {

namespace fs = std::filesystem;

/// A folder that goes with the test; `tz900` runs with its temporary files in tmp/ and what it prints in out.
struct Workplace {
    fs::path folder;
    Workplace() {
        std::string name = (fs::temp_directory_path() / "tz900_test_XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) std::abort();
        folder = name;
        fs::create_directories(folder / "tmp");
    }
    ~Workplace() { fs::remove_all(folder); }

    fs::path Put(const std::string& name, const std::string& text) const {
        fs::create_directories((folder / name).parent_path());
        std::ofstream(folder / name) << text;
        return folder / name;
    }
    bool TemporaryIsEmpty() const { return fs::is_empty(folder / "tmp"); }
    std::string Printed() const { return FileText(folder / "out"); }

    pid_t Start(std::vector<std::string> words) const {
        words.insert(words.begin(), BinaryDir() + "/tz900");
        std::vector<char*> arguments;
        for (std::string& word : words) arguments.push_back(word.data());
        arguments.push_back(nullptr);
        const pid_t child = fork();
        if (child != 0) return child;
        const int out = open((folder / "out").c_str(), O_WRONLY | O_CREAT | O_TRUNC, 0600);
        dup2(out, STDOUT_FILENO);
        dup2(out, STDERR_FILENO);
        setenv("TMPDIR", (folder / "tmp").c_str(), 1);
        execv(arguments[0], arguments.data());
        _exit(127);
    }
    static bool IsRunning(pid_t child) {
        siginfo_t ended = {};
        waitid(P_PID, static_cast<id_t>(child), &ended, WEXITED | WNOHANG | WNOWAIT);
        return ended.si_pid == 0;
    }
    /// The exit status, or 1000 and the number of the signal that killed it.
    static int WaitFor(pid_t child) {
        int status = 0;
        waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : 1000 + WTERMSIG(status);
    }
    int Run(const std::vector<std::string>& words) const { return WaitFor(Start(words)); }
};

TEST(Program, ConfigurationLinesOverlayTheFile) {
    const Workplace place;
    const fs::path root = place.folder / "root", file = root / "Velarion/tz900.cfg";
    fs::copy(SourceDir() + "/data/root", root, fs::copy_options::recursive);
    const std::string before = FileText(file);
    const auto run = [&](const std::string& lines, const std::string& seconds) {
        const fs::path scenario =
            place.Put("case.scn", "root " + root.string() + "\n" + lines + "start\nrun " + seconds +
                                      "\nget AccelHt TransAlt WeightUnit\n");
        EXPECT_EQ(place.Run({"run", scenario}), 0) << place.Printed();
        return place.Printed();
    };
    const std::string plain = run("", "1");
    const std::string overlaid = "AccelHt = 1700\nTransAlt = 9000\nWeightUnit = LBS\n";
    EXPECT_NE(plain, overlaid);
    EXPECT_EQ(run("cfg TransAlt=8000\ncfg AccelHt=1700\ncfg TransAlt=9000\n", "1"), overlaid);
    EXPECT_EQ(FileText(file), before);
    EXPECT_EQ(run("", "1"), plain);

    // Stored fuel in another unit has the system itself save its configuration, with what is in force.
    place.Put("root/Velarion/tz900_fuel.cfg", "[Config]\nUnits=1\n");
    const std::string saved = "AccelHt = 1700\nTransAlt = 9000\nWeightUnit = KGS\n";
    EXPECT_EQ(run("cfg AccelHt=1700\ncfg TransAlt=9000\ncfg LoadFuelonAircraftLoad=1\n", "6"), saved);
    EXPECT_NE(FileText(file), before);
    EXPECT_EQ(run("", "1"), saved);
}

TEST(Program, LeavesNothingInTheTemporaryFolder) {
    const Workplace place;
    const std::string endless = place.Put("endless.scn", "start\nrun 5000000\n");
    const std::string first = place.Put("first.scn", "start\n");
    const struct {
        std::vector<std::string> words;
        int signal, status;
    } kCases[] = {
        {{"run", endless}, SIGTERM, 128 + SIGTERM},    {{"run", first, endless}, SIGINT, 128 + SIGINT},
        {{"fly", "--port", "0", "--cold"}, SIGHUP, 0}, {{"fly", "--port", "0"}, SIGTERM, 0},
        {{"run", endless}, SIGKILL, 1000 + SIGKILL},
    };
    for (const auto& row : kCases) {
        const pid_t child = place.Start(row.words);
        while (place.TemporaryIsEmpty() && place.IsRunning(child))
            std::this_thread::sleep_for(std::chrono::milliseconds(1));
        kill(child, row.signal);
        EXPECT_EQ(place.WaitFor(child), row.status) << row.words[0] << ' ' << place.Printed();
        EXPECT_EQ(place.TemporaryIsEmpty(), row.signal != SIGKILL);
    }
    // What a killed one left goes with the next start, what others keep there doesn't.
    const std::string others[] = {"tz900-root-" + std::to_string(getpid()) + "-abcdef/x", "tz900-notes/x"};
    for (const std::string& name : others) place.Put("tmp/" + name, "");
    EXPECT_EQ(place.Run({"run", first}), 0) << place.Printed();
    EXPECT_EQ(std::distance(fs::directory_iterator(place.folder / "tmp"), {}), 2);
}

TEST(Program, RunsAllScenariosOfAFolder) {
    const Workplace place;
    place.Put("all/b.scn", "log open\nstart\nlog b\n");
    place.Put("all/a/last.scn", "\xEF\xBB\xBFstart\nlog a\n");
    place.Put("all/notes.txt", "no scenario");
    EXPECT_EQ(place.Run({"run", place.folder / "all"}), 0);
    EXPECT_EQ(place.Printed(), "a\nopen\nb\n");
    EXPECT_EQ(place.Run({"run", place.folder / "tmp"}), 2);
    EXPECT_EQ(place.Printed(),
              (place.folder / "tmp").string() + ": holds no scenario, no file with a name in .scn\n");
}

TEST(Program, AFlightThatCannotStartTellsWhyAndLeavesNothing) {
    const Workplace place;
    const std::string taken = place.Put("taken.scn", "mine");
    const int other = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in here = {};
    here.sin_family = AF_INET;
    here.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t size = sizeof here;
    ASSERT_EQ(bind(other, reinterpret_cast<const sockaddr*>(&here), size), 0);
    ASSERT_EQ(listen(other, 1), 0);
    getsockname(other, reinterpret_cast<sockaddr*>(&here), &size);
    const struct {
        std::vector<std::string> words;
        std::string told;
    } kCases[] = {
        {{"--record", taken}, "taken.scn exists"},
        {{"--record", place.folder / "new.scn", "--aircraft", "glider"}, "there are:\n  TZ900-10 GE House\n"},
        {{"--record", place.folder / "new.scn", "--port", std::to_string(ntohs(here.sin_port))}, "in use"},
    };
    for (const auto& row : kCases) {
        std::vector<std::string> words = {"fly"};
        words.insert(words.end(), row.words.begin(), row.words.end());
        EXPECT_EQ(place.Run(words), 2);
        const std::string printed = place.Printed();
        EXPECT_NE(printed.find(row.told), std::string::npos) << printed;
        EXPECT_TRUE(printed.starts_with("tz900 fly: ")) << "before all else: " << printed;
        EXPECT_FALSE(fs::exists(place.folder / "new.scn"));
        EXPECT_TRUE(place.TemporaryIsEmpty());
    }
    close(other);
    EXPECT_EQ(FileText(taken), "mine");
}

TEST(Program, TellsWhatItReadAndGivesUpAFlightThatGetsNowhere) {
    const Workplace place;
    for (const char* name : {"ints.txt", "apts.txt", "navs.txt", "awys.txt"}) {
        const fs::path file = fs::path(SourceDir()) / "data/root/Velarion/TZ900/Navdata" / name;
        place.Put(std::string("navdata/") + name, "NORTH NORTH 0 90.5 0 VOR 112.3\n" + FileText(file));
    }
    place.Put("navdata/selcal.txt", "; nobody\n");
    EXPECT_EQ(place.Run({"fly", "--headless", "--navdata", place.folder / "navdata", "--route",
                         "KSEA/16L BTG J1 OED KSFO", "--wind", "170", "600"}),
              1);
    const std::string printed = place.Printed();
    for (const char* told :
         {"AIRAC 2612", "apts.txt                      22 rows, 1 skipped, the first is line 1: latitude",
          "landmarks.txt            missing\n", "selcal.txt               empty\n",
          "Given up, no progress for ten minutes: in the air, "})
        EXPECT_NE(printed.find(told), std::string::npos) << told << " in " << printed;
}

TEST(Program, RefusesWhatIsNoRecording) {
    const Workplace place;
    const struct {
        std::string lines, told;
    } kCases[] = {
        {"", "nothing flies in it"},
        {"log here\nstart\n", "nothing flies in it"},
        {"start\nlvar", "bad.scn:2: `lvar` can't take 0 words"},
        {"\x1b[2J\x7f", "bad.scn:1: \"?[2J?\" is no command"},
        {"start\nshot lower " + (place.folder / "x.png").string() + "\n", "bad.scn:2: a recording writes no"},
    };
    for (const auto& row : kCases) {
        EXPECT_EQ(place.Run({"fly", "--port", "0", "--play", place.Put("bad.scn", row.lines)}), 2);
        EXPECT_NE(place.Printed().find(row.told), std::string::npos) << place.Printed();
        EXPECT_TRUE(place.TemporaryIsEmpty());
    }
    EXPECT_EQ(place.Run({"fly", "--play", place.folder}), 2);
}

// Whole flights hands off, each to a stop on the runway; one without an approach in its route, which the
// pilot leads to the final by headings.
TEST(Program, FliesFromRunwayToRunway) {
    const Workplace place;
    const struct {
        std::vector<std::string> words;
        std::string stopped;
    } kFlights[] = {
        {{}, "Stopped on runway 24R, "},
        {{"--aircraft", "TZ900-8 RR House", "--route", "KSEA/16L KPDX/10R", "--wind", "250", "100"},
         "Stopped on runway 10R, "},
    };
    for (const auto& flight : kFlights) {
        std::vector<std::string> words = {"fly", "--headless"};
        words.insert(words.end(), flight.words.begin(), flight.words.end());
        EXPECT_EQ(place.Run(words), 0);
        const std::string printed = place.Printed();
        const std::size_t at = printed.find(flight.stopped);
        ASSERT_NE(at, std::string::npos) << printed;
        double past = 0, aside = 0;
        ASSERT_EQ(std::sscanf(printed.c_str() + at + flight.stopped.size(),
                              "%lf ft past the threshold, %lf ft from the centre line", &past, &aside),
                  2)
            << printed;
        EXPECT_GT(past, 3000);
        EXPECT_LT(past, 10000);
        EXPECT_LT(aside, 30);
        EXPECT_EQ(printed.find("going around"), std::string::npos) << printed;
        EXPECT_TRUE(place.TemporaryIsEmpty());
    }
}

}  // namespace
