#include "host/recorder.h"

#include <algorithm>
#include <cerrno>
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

}  // namespace

bool OpenRecording(Recorder& recorder, const std::string& file, std::string& error) {
    recorder.file.open(file, std::ios::in | std::ios::out | std::ios::trunc);
    if (recorder.file) return true;
    error = file + ": " + std::strerror(errno);
    return false;
}

void Record(Recorder* recorder, std::initializer_list<std::string> words) {
    if (recorder == nullptr) return;
    recorder->calls = 0;
    const auto has_quote = [](const std::string& word) { return word.find('"') != std::string::npos; };
    std::string line = std::any_of(words.begin(), words.end(), has_quote) ? "# not expressible:" : "";
    for (const std::string& word : words) line += (line.empty() ? "" : " ") + Quoted(word);
    recorder->file << line << '\n' << std::flush;
}

void RecordCall(Recorder* recorder, bool paused_frame) {
    if (recorder == nullptr) return;
    if (recorder->calls == 0 || recorder->paused != paused_frame) {
        recorder->calls = 0;
        recorder->calls_line = recorder->file.tellp();
    }
    recorder->paused = paused_frame;
    recorder->file.seekp(recorder->calls_line);
    recorder->file << (paused_frame ? "frame " : "tick ") << ++recorder->calls << '\n' << std::flush;
}

}  // namespace host
