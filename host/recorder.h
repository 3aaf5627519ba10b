#pragma once

#include <fstream>
#include <initializer_list>
#include <string>

// What pilots and host do, tick by tick, written down as a scenario: played back by `tz900 run` it comes to
// the same pictures. The file is whole after every line, so that it also tells what went before a crash.

namespace host {

struct Recorder {
    std::fstream file;
    std::streampos calls_line = 0;  // where the line of the present run of calls begins
    long calls = 0;                 // in that line, 0 = none begun
    bool paused = false;            // they are of a paused host
};

/// Begins a recording, over what the file held. False with the reason.
bool OpenRecording(Recorder& recorder, const std::string& file, std::string& error);

// The next two do nothing without a recorder.

/// Writes one command of the scenario language; words with blanks are quoted. One that the language can't
/// express becomes a comment.
void Record(Recorder* recorder, std::initializer_list<std::string> words);

/// Counts one pre-update call that is about to be made.
void RecordCall(Recorder* recorder, bool paused_frame);

}  // namespace host
