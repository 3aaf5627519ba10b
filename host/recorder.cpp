#include "host/recorder.h"

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <cstring>

namespace host {
namespace {

std::string Quoted(const std::string& word) {
    if (!word.empty() && word.find_first_of(" \t\r\n#") == std::string::npos) return word;
    std::string quoted = "\"";
    for (const char c : word) {
        if (c == '\n')
            quoted += "\\n";
        else if (c == '\\')
            quoted += "\"\\\"";  // outside the quotes it stands for itself, also before an n
        else
            quoted += c;
    }
    return quoted + '"';
}

void Flush(Recorder& recorder) {
    if (recorder.file.flush()) return;
    recorder.error = "the recording ends early, " + recorder.name + ": " + std::strerror(errno);
    std::fprintf(stderr, "tz900: %s\n", recorder.error.c_str());
}

}  // namespace

bool OpenRecording(Recorder& recorder, const std::string& file, std::string& error) {
    std::FILE* made = std::fopen(file.c_str(), "wx");
    if (made != nullptr) {
        std::fclose(made);
        recorder.name = file;
        recorder.file.open(file, std::ios::in | std::ios::out);
        if (recorder.file) return true;
    }
    error = file + (errno == EEXIST ? " exists, and a recording overwrites nothing"
                                    : std::string(": ") + std::strerror(errno));
    return false;
}

void DiscardRecording(Recorder& recorder) {
    if (!recorder.file.is_open()) return;
    recorder.file.close();
    std::remove(recorder.name.c_str());
}

void Record(Recorder* recorder, std::initializer_list<std::string> words) {
    if (recorder == nullptr || !recorder->error.empty()) return;
    recorder->calls = 0;
    const auto has_quote = [](const std::string& word) { return word.find('"') != std::string::npos; };
    std::string line = std::any_of(words.begin(), words.end(), has_quote) ? "# not expressible:" : "";
    for (const std::string& word : words) line += (line.empty() ? "" : " ") + Quoted(word);
    recorder->file << line << '\n';
    Flush(*recorder);
}

void RecordCall(Recorder* recorder, bool paused_frame) {
    if (recorder == nullptr || !recorder->error.empty()) return;
    if (recorder->calls == 0 || recorder->paused != paused_frame) {
        recorder->calls = 0;
        recorder->calls_line = recorder->file.tellp();
    }
    recorder->paused = paused_frame;
    recorder->file.seekp(recorder->calls_line);
    recorder->file << (paused_frame ? "frame " : "tick ") << ++recorder->calls << '\n';
    Flush(*recorder);
}

}  // namespace host
